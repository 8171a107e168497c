#ifndef USSDPROFILE_H
#define USSDPROFILE_H

#include <QString>

namespace Formats
{

/** A named command that a preset button sends. */
struct USSDProfile {
    USSDProfile() : readonly(false), showButton(false), isSystem(false) {}

    QString name;      // shown if there is no translated name
    QString value;     // the code; the user's input replaces "%s"
    bool readonly;     // true if the editor must not change the profile
    bool showButton;   // true if the profile has a preset button
    QString langID;    // key of the translated name; may be empty
    QString desLangID; // key of the translated description; may be empty
    bool isSystem;     // true if read from the system file; not stored in the file
};

/// Returns the name of a placeholder, which is a profile without a code. The button of a
/// placeholder does not send a command. Because the last two buttons are payment buttons,
/// placeholders at the end make the buttons before them ordinary buttons.
inline QString placeholderName()
{
    return QString(QChar(0x2013)); // an en dash, which is understood in every language
}

inline bool operator==(const USSDProfile &a, const USSDProfile &b)
{
    return a.name == b.name && a.value == b.value && a.readonly == b.readonly &&
           a.showButton == b.showButton && a.langID == b.langID && a.desLangID == b.desLangID &&
           a.isSystem == b.isSystem;
}

} // namespace Formats

#endif
