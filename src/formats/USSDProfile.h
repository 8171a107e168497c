#ifndef USSDPROFILE_H
#define USSDPROFILE_H

#include <QString>

/** A named command, as offered by the preset buttons. */
struct USSDProfile {
    USSDProfile() : readonly(false), showButton(false), isSystem(false) {}

    QString name;      // shown when there is no translated text
    QString value;     // the code; "%s" stands for what the user enters
    bool readonly;     // not to be changed in the editor
    bool showButton;   // offered as a preset button
    QString langID;    // key of the translated name; may be empty
    QString desLangID; // key of the translated description; may be empty
    bool isSystem;     // from the system file; never written
};

inline bool operator==(const USSDProfile &a, const USSDProfile &b)
{
    return a.name == b.name && a.value == b.value && a.readonly == b.readonly &&
           a.showButton == b.showButton && a.langID == b.langID && a.desLangID == b.desLangID &&
           a.isSystem == b.isSystem;
}

#endif
