#ifndef CHAINS_WORDS_H
#define CHAINS_WORDS_H

#include <string>

namespace Chains
{

/// Returns the UTF-8 string without white space at both ends.
std::string trimmed(const std::string &text);

/// Returns the string without the characters that control the text direction. Some networks send
/// such characters before the key of a choice.
std::string withoutDirectionMarks(const std::string &text);

/// Returns true if both strings contain the same words. The amount of white space, the direction
/// marks and the Unicode composition of the characters may differ.
bool areSameWords(const std::string &a, const std::string &b);

/// Returns true if both strings are the same name. The strings may differ in the case of their
/// letters and in everything that areSameWords() ignores.
bool areSameNames(const std::string &a, const std::string &b);

} // namespace Chains

#endif
