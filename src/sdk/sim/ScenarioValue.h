#ifndef TKSV_INTERNAL_SCENARIOVALUE_H
#define TKSV_INTERNAL_SCENARIOVALUE_H

#include <optional>
#include <string>
#include <vector>

#include "KeyFile.h"
#include "Scenario.h"

namespace tksv
{

/** A word of the file and what it stands for. */
template <typename T>
struct Word {
    const char *word;
    T value;
};

/// "a, b or c"
std::string enumerate(const std::vector<std::string> &words);

/**
 * The value of one key. Each reading function returns what `fallback` or the type's empty value is
 * when the text is not what was expected, and complains.
 */
class ScenarioValue
{
public:
    ScenarioValue(const KeyFileEntry &entry, Complaints &complaints)
        : m_entry(entry), m_complaints(complaints)
    {
    }

    const std::string &text() const { return m_entry.value; }
    /// At most `maxBytes` long and not empty.
    std::string name(std::size_t maxBytes) const;
    int number(int min, int max) const;
    Milliseconds milliseconds() const;
    /// A number of milliseconds, or "never".
    AwayTime away() const;
    Amount amount() const;
    std::string digits(std::size_t fewest, std::size_t most) const;
    int deviceEvent() const;
    void digitCount(std::size_t &fewest, std::size_t &most) const;
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

    void expected(const std::string &what) const;

private:
    const KeyFileEntry &m_entry;
    Complaints &m_complaints;
};

} // namespace tksv

#endif
