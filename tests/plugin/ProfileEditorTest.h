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

/// Returns the bounding rectangle of the differences between two images within `part`.
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
 * The base class of tests of the profile editor, as a separate widget or opened from the general
 * dialog.
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
    QLineEdit *cellEditor(); ///< the line edit in the current cell
    void type(int row, int column, const QString &text);
    /// Calls `act` once in the event loop of the next message box, and stores the text of the box.
    void whenMessageOpens(const std::function<void(QMessageBox *)> &act);
    /// Answers the next message box with the button whose text key is `buttonKey`.
    void answerNextMessage(const QString &buttonKey);
    void press(QMessageBox *box, const QString &buttonKey);
    /// Opens the editor of the cell, types the text, and leaves the cell in the specified way.
    void typeAndLeave(int row, int column, const QString &text, int way);
    QString systemFile() { return pluginFolder() + QLatin1String("/ussdsysprofile.xml"); }
    QString userFile() { return userFolder() + QLatin1String("ussdprofile.xml"); }
    /// Confirms the message box that requests confirmation for saving, and then the message box
    /// that follows.
    void saveAndAcknowledge();
    void shutDown(); ///< makes all shut-down calls listed in docs/host-integration.md
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
