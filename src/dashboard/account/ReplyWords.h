#ifndef REPLYWORDS_H
#define REPLYWORDS_H

#include <QString>

#include <initializer_list>

namespace Dashboard
{

/** The meaning of a word in a reply. */
enum class Word {
    Balance,       // a name for the balance
    Have,          // indicates that the subscriber has something, which may be the balance
    Link,          // has no influence: pronouns, articles, "is", "new", "dear customer"
    NotBalance,    // a different amount, such as a bonus, a price or a top-up
    NotBalanceYet, // like NotBalance, but only before the amount
    Price,         // a preposition that indicates that the next amount is a price
    Per,           // indicates that the previous amount is a price
    Subunit,       // a hundredth of a currency unit
    Validity,      // indicates how long something can be used
    Account,       // the account, the number or the SIM, to which the validity refers
    Extra,         // a bonus, a package or an offer, which has its own date
    Number,        // the subscriber's own number
    Hotline,       // a number to call, such as a hotline
    Left,          // indicates that a data volume remains
    Used,          // indicates that a data volume has been used
    Total,         // the total size of a data volume
    Of,            // separates the remaining volume from the total volume
    Data,          // data in general
    Offer          // a data volume that can be bought or that is limited to certain services
};

/// Returns the string in plain form, in which words and numbers can be found. Digits of all scripts
/// are replaced with 0 to 9, and accents and direction characters are removed. The case of letters
/// is preserved.
QString plainForm(const QString &text);

/// Returns true if `folded` contains a word with this meaning. In all of these functions, `folded`
/// is a lower-case string in plain form.
bool holdsWord(const QString &folded, Word meaning);
/// Returns true if every word of the string has one of the meanings. Digits and punctuation marks
/// are ignored.
bool hasOnlyWords(const QString &folded, std::initializer_list<Word> meanings);
/// Returns true if the last word of the string has this meaning.
bool endsWithWord(const QString &folded, Word meaning);
/// Returns true if the first word of the string has this meaning.
bool beginsWithWord(const QString &folded, Word meaning);
/// Returns the length of the word with this meaning at this position, or 0 if there is none.
int wordLengthAt(const QString &folded, int position, Word meaning);

} // namespace Dashboard

#endif
