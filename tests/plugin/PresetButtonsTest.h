#ifndef PRESETBUTTONSTEST_H
#define PRESETBUTTONSTEST_H

#include "DialogTest.h"

/** The base class for tests of the preset buttons in the general dialog. */
class PresetButtonsTest : public DialogTest
{
    Q_OBJECT

protected:
    static QByteArray nameOf(int index); ///< "Name 0" and so on
    static QByteArray codeOf(int index); ///< "*100#" and so on
    /// Writes one profile for each character of the mask, with the names and codes that nameOf()
    /// and codeOf() return. A profile is shown as a button if its character is '1'.
    void writeProfiles(const QByteArray &mask);
    /// Writes a profile with a button for each name.
    void writeNames(const QList<QByteArray> &names);
    QStringList labels(); ///< the texts of all preset buttons, or "(hidden)"
    /// Presses Edit in the dialog, and Save in the editor.
    void editAndSave() { editAndPress("SaveButton"); }
    void editAndPress(const char *button);
};

#endif
