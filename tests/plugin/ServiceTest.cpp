#include "ServiceTest.h"

#include "HostState.h"
#include "Languages.h"
#include "requests/USSDLogic.h"

void ServiceTest::setUp()
{
    PluginTest::setUp();
    // With these times, a window that is reopened does not have to wait for the previous command.
    const ReplyTimes times = {60000, 1};
    USSDLogic::setReplyTimes(times);
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#")));
    m_mainWindow.reset(new QWidget);
    m_mainWindow->resize(700, 600);
    m_mainWindow->show();
    HostCore::HostState::setMainWindow(m_mainWindow.data());
    m_rect = QRect(10, 20, 600, 500);
}

void ServiceTest::tearDown()
{
    HostCore::Languages::setCurrent(QStringLiteral("en"));
    HostCore::HostState::setMiniMode(false);
    PluginTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

void ServiceTest::addFramedTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("prepaid") << 0;
    QTest::newRow("postpaid") << 1;
    QTest::newRow("general") << 3;
    QTest::newRow("USSD-SMS") << 5;
}

USSDExtendDialog *ServiceTest::frame()
{
    const QList<USSDExtendDialog *> frames = m_mainWindow->findChildren<USSDExtendDialog *>();
    return frames.count() == 1 ? frames.first() : nullptr;
}

USSDGeneralDlg *ServiceTest::framedDialog()
{
    return frame() ? frame()->findChild<USSDGeneralDlg *>() : nullptr;
}

USSDGeneralDlg *ServiceTest::embeddedDialog()
{
    return m_mainWindow->findChild<USSDGeneralDlg *>(QString(), Qt::FindDirectChildrenOnly);
}

void ServiceTest::sendByHand(USSDGeneralDlg *dialog, const QString &command)
{
    QTest::keyClicks(part<QLineEdit>(dialog, "USSDCmdEdit"), command);
    QTest::mouseClick(part<QPushButton>(dialog, "SendButton"), Qt::LeftButton);
}
