#ifndef PROFILEEDITORTEST_H
#define PROFILEEDITORTEST_H

#include "PluginTest.h"

#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include <functional>

#include <sys/stat.h>

#include "fake_tksv.h"
#include "HostState.h"
#include "Languages.h"
#include "ProcessLimits.h"
#include "profiles/ProfileLineEdit.h"
#include "profiles/ProfileRows.h"
#include "profiles/USSDEditCmd.h"
#include "windows/USSDGeneralDlg.h"
#include "windows/USSDService.h"

using namespace Formats;

inline QPushButton *editButton(QWidget *window)
{
    return window->findChild<QPushButton *>(
        QStringLiteral("USSDUIPlugin_AdvancedDialog_EditButton"));
}

/// Returns the bounding rectangle of all pixels within `part` that differ between the images.
inline QRect differenceOf(const QImage &a, const QImage &b, const QRect &part)
{
    QRect difference;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                difference |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

/**
 * The base class for tests of the profile editor. The editor is either a separate widget, or opened
 * from the general dialog.
 */
class ProfileEditorTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

protected:
    void openEditor();
    QTableWidget *table() { return find<QTableWidget>("USSDUIPlugin_ProfileTable"); }
    QPushButton *saveButton() { return find<QPushButton>("USSDUIPlugin_ProfileDialog_SaveButton"); }
    template <typename Widget>
    Widget *find(const char *name);
    QString cell(int row, int column);
    void doubleClick(int row, int column);
    QLineEdit *cellEditor(); ///< the line edit in the current table cell
    void type(int row, int column, const QString &text);
    /// When the next message box has opened, stores its text and calls `act` once.
    void whenMessageOpens(const std::function<void(QMessageBox *)> &act);
    /// Presses the button whose text key is `buttonKey` in the next message box.
    void answerNextMessage(const QString &buttonKey);
    void press(QMessageBox *box, const QString &buttonKey);
    /// Starts editing the cell, types the text, and leaves the cell in the given way.
    void typeAndLeave(int row, int column, const QString &text, int way);
    QString systemFile() { return pluginFolder() + QLatin1String("/ussdsysprofile.xml"); }
    QString userFile() { return userFolder() + QLatin1String("ussdprofile.xml"); }
    /// Presses the confirming button of the next two message boxes: the request to confirm saving,
    /// and the message after saving.
    void saveAndAcknowledge();
    void shutDown(); ///< shuts the plug-in down as docs/host-integration.md describes
    QList<USSDProfile> savedProfiles();

    enum WayToLeave { Tab, ClickOnSave, ClickOnAnotherCell, AnotherWindow, Return };
    static void waysToLeave();

    QScopedPointer<QWidget> m_mainWindow;
    QScopedPointer<QWidget> m_otherWindow;
    QScopedPointer<USSDEditCmd> m_editor;
    QString m_message;
    int m_messages = 0;
};

template <typename Widget>
Widget *ProfileEditorTest::find(const char *name)
{
    return m_mainWindow->findChild<Widget *>(QString::fromLatin1(name));
}

#endif
