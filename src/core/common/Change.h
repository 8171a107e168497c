#ifndef CHANGE_H
#define CHANGE_H

#include <QString>

/**
 * Looks up strings in the user's language.
 *
 * The strings are stored in compiled Qt Linguist files whose source texts are the text keys. The
 * host selects the language and sends PluginContract::EVENT_LANGUAGE_CHANGED after each change.
 */
class Q_DECL_EXPORT Change
{
public:
    /// Returns the string for `key` in the current language. `context` is the name of the plug-in
    /// to which the key belongs, such as "USSDUIPlugin".
    ///
    /// An operator can override the strings of the plug-in.
    ///
    /// If the language has no string for the key, returns the English string. If there is no
    /// English string either, returns the key itself. Returns an empty string if the key is empty.
    /// May be called from any thread.
    static QString tr(const QString &context, const QString &key);
};

#endif
