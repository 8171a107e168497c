#ifndef TKSV_INTERNAL_SCENARIOVALUE_H
#define TKSV_INTERNAL_SCENARIOVALUE_H

#include <string>
#include <vector>

#include "KeyFile.h"
#include "Scenario.h"

namespace Tksv
{

/** A keyword of the scenario file and the value that it represents. */
template <typename T>
struct Word {
    const char *word;
    T value;
};

/// Returns the words as "a, b or c".
std::string enumerate(const std::vector<std::string> &words);

/**
 * Converts the value of a key. If the value is not valid, the functions add a complaint and return
 * a value within the allowed range, which the caller ignores.
 */
class ScenarioValue
{
public:
    ScenarioValue(const KeyFileEntry &entry, Complaints &complaints)
        : m_entry(entry), m_complaints(complaints)
    {
    }

    const std::string &text() const { return m_entry.value; }
    /// Returns the value as a string of 1 to `maxBytes` bytes.
    std::string name(std::size_t maxBytes) const;
    int number(int min, int max) const;
    Milliseconds milliseconds() const;
    /// Returns the value in milliseconds, or std::nullopt if it is "never".
    AwayTime away() const;
    Amount amount() const;
    std::string digits(std::size_t min, std::size_t max) const;
    int deviceEvent() const;
    void digitCount(std::size_t &min, std::size_t &max) const;
    void credit(Rule &rule) const;

    template <typename T, std::size_t N>
    T word(const Word<T> (&words)[N]) const
    {
        std::vector<std::string> known;
        for (const Word<T> &word : words) {
            if (text() == word.word)
                return word.value;
            known.push_back(word.word);
        }
        expected(enumerate(known));
        return words[0].value;
    }

    /// Adds a complaint with a description of the expected value.
    void expected(const std::string &what) const;

private:
    const KeyFileEntry &m_entry;
    Complaints &m_complaints;
};

} // namespace Tksv

#endif
