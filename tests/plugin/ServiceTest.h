#ifndef SERVICETEST_H
#define SERVICETEST_H

#include "PluginTest.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "fake_tksv.h"
#include "windows/USSDService.h"

/** The base class for tests of the service with which a host shows the plug-in's windows. */
class ServiceTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

    static void addFramedTypes(); ///< adds a test row for each window type with a frame
    CUSSDService *service() { return CUSSDService::instance(); }
    USSDExtendDialog *frame(); ///< returns the frame, or null unless there is exactly one
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
