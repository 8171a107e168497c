#ifndef CHANGE_H
#define CHANGE_H

#include <QString>

/**
 * Looks up texts in the user's language.
 *
 * The texts are stored in compiled Qt Linguist files whose source texts are keys. The host chooses
 * the language; a plug-in learns of a change by PluginContract::EVENT_LANGUAGE_CHANGED.
 */
class Q_DECL_EXPORT Change
{
public:
    /// Returns the text for `key` in the current language. `context` is the name of the plug-in
    /// that the key belongs to, such as "USSDUIPlugin".
    ///
    /// Falls back to the English text, and to the key itself when English lacks it too. Returns an
    /// empty text for an empty key. May be called on any thread.
    static QString tr(const QString &context, const QString &key);
};

#endif
