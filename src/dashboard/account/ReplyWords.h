#ifndef REPLYWORDS_H
#define REPLYWORDS_H

#include <QString>

#include <initializer_list>

namespace Dashboard
{

/** The meaning of a word in a reply. */
enum class Word {
    Balance,       // names the balance
    Have,          // says that the subscriber has something, which may be the balance
    Link,          // says nothing of its own: pronouns, articles, "is", "new", "dear customer"
    NotBalance,    // names another amount, such as a bonus, a price or a top-up
    NotBalanceYet, // the same, but only in front of the amount
    Price,         // a preposition that makes the next amount a price
    Per,           // makes the amount before it a price
    Subunit,       // a hundredth of a currency
    Validity,      // says how long something can be used
    Account,       // the account, the number or the SIM as the thing that is valid
    Extra,         // a bonus, a pack or an offer, which has a date of its own
    Number,        // names the subscriber's own number
    Hotline,       // names a number that can be called
    Left,          // says that a volume of data remains
    Used,          // says that a volume of data has been used
    Total,         // names the size of a volume of data
    Of,            // stands between what remains and the size
    Data,          // names data in general
    Offer          // names a volume of data that can be bought, or a volume for some services only
};

/// Returns the string in the form in which words and numbers are searched: with the digits 0 to 9,
/// without accents and without direction characters. Letters keep their case.
QString plainForm(const QString &text);

/// Returns true if `folded`, a lower-case string in plain form, contains a word of this meaning.
bool holdsWord(const QString &folded, Word meaning);
/// Returns true if every word of the string has one of the meanings. Digits and marks are ignored.
bool hasOnlyWords(const QString &folded, std::initializer_list<Word> meanings);
/// Returns true if the string ends with such a word, or with such a word and a blank.
bool endsWithWord(const QString &folded, Word meaning);
/// Returns true if the string begins with such a word, after blanks.
bool beginsWithWord(const QString &folded, Word meaning);
/// Returns the length of the word of this meaning at this position, or 0 if there is none.
int wordLengthAt(const QString &folded, int position, Word meaning);

} // namespace Dashboard

#endif
