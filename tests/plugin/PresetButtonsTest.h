#ifndef PRESETBUTTONSTEST_H
#define PRESETBUTTONSTEST_H

#include "DialogTest.h"

/** The base class of tests of the general dialog's preset buttons. */
class PresetButtonsTest : public DialogTest
{
    Q_OBJECT

protected:
    static QByteArray nameOf(int index); ///< "Name 0" and so on
    static QByteArray codeOf(int index); ///< "*100#" and so on
    /// Writes profiles with these names and codes. Each '1' in the mask gives its profile a button.
    void writeProfiles(const QByteArray &mask);
    /// Writes one profile with a button for each name.
    void writeNames(const QList<QByteArray> &names);
    QStringList labels(); ///< the texts of all preset buttons, or "(hidden)"
    /// Presses Edit in the dialog and then Save in the editor.
    void editAndSave() { editAndPress("SaveButton"); }
    void editAndPress(const char *button);
};

#endif
