#ifndef SERVICETEST_H
#define SERVICETEST_H

#include "PluginTest.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "fake_tksv.h"
#include "windows/USSDService.h"

/** The base class of tests of the plug-in's service, which a host calls to show the windows. */
class ServiceTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    static void addFramedTypes(); ///< adds a row for each type of window that has a frame
    CUSSDService *service() { return CUSSDService::instance(); }
    USSDExtendDialog *frame(); ///< null unless there is exactly one frame
    USSDGeneralDlg *framedDialog();
    USSDGeneralDlg *embeddedDialog();
    template <typename Widget>
    static Widget *part(QWidget *dialog, const char *role);
    static void sendByHand(USSDGeneralDlg *dialog, const QString &command);

    QScopedPointer<QWidget> m_mainWindow;
    QRect m_rect;
};

template <typename Widget>
Widget *ServiceTest::part(QWidget *dialog, const char *role)
{
    return dialog->findChild<Widget *>(USSDGeneralDlg::objectNameOf(role));
}

#endif
