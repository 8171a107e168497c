#ifndef CHANGE_H
#define CHANGE_H

#include <QString>

/** Texts in the user's language. */
class Q_DECL_EXPORT Change
{
public:
    /// The text behind `key` in the current language; the key itself when no language has it;
    /// empty for an empty key. Any thread.
    static QString tr(const QString &context, const QString &key);
};

#endif
