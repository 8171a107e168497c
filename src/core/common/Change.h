#ifndef CHANGE_H
#define CHANGE_H

#include <QString>

/**
 * Looks up texts in the user's language.
 *
 * The texts are stored in compiled Qt Linguist files whose source texts are keys. The host selects
 * the language and raises PluginContract::EVENT_LANGUAGE_CHANGED when the language has changed.
 */
class Q_DECL_EXPORT Change
{
public:
    /// Returns the text for `key` in the current language. `context` is the name of the plug-in
    /// that the key belongs to, such as "USSDUIPlugin".
    ///
    /// If the language has no such text, returns the English text, or the key itself if English has
    /// none either. Returns an empty text for an empty key. May be called on any thread.
    static QString tr(const QString &context, const QString &key);
};

#endif
