#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include "HostState.h"
#include "IUIPlugin.h"
#include "Languages.h"
#include "plugin/GeneralWindow.h"
#include "plugin/KeyboardHelper.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

/**
 * A window that uses the object names of the plug-in, so that the keyboard helper mistakes it for
 * the general window.
 */
class LookAlike : public QWidget
{
public:
    LookAlike() : edit(new QLineEdit(this)), other(new QLineEdit(this)), send(new QPushButton(this))
    {
        QHBoxLayout *row = new QHBoxLayout(this);
        row->addWidget(other);
        row->addWidget(edit);
        row->addWidget(send);
        edit->setObjectName(QLatin1String(GeneralWindow::COMMAND_EDIT));
        send->setObjectName(QLatin1String(GeneralWindow::SEND_BUTTON));
    }

    QLineEdit *edit;
    QLineEdit *other;
    QPushButton *send;
};

} // namespace

class KeyboardTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en"))); }
    void tearDown() override { HostCore::HostState::setShuttingDown(false); }

private slots:
    void returnPressesSend_data();
    void returnPressesSend();
    void otherKeysAreTyped();
    void aHeldReturnPressesOnce();
    void aDisabledButtonIsNotPressed();
    void returnElsewhereDoesNotSend();
    void theEditHasTheFocusWhenItAppears();
    void theFocusComesBackWithTheAnswer();
    void theWholeDialogueIsTypedInThePage();
    void theWholeDialogueIsTypedInTheFrame();

private:
    static void talk(const GeneralWindow &general);

    KeyboardHelper m_helper;
};

void KeyboardTest::returnPressesSend_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void KeyboardTest::returnPressesSend()
{
    QFETCH(int, key);
    LookAlike window;
    QSignalSpy clicked(window.send, SIGNAL(clicked()));
    QTest::keyClick(window.edit, Qt::Key(key));
    QCOMPARE(clicked.count(), 1);
}

void KeyboardTest::otherKeysAreTyped()
{
    LookAlike window;
    QSignalSpy clicked(window.send, SIGNAL(clicked()));
    QTest::keyClicks(window.edit, QLatin1String("*100#"));
    QCOMPARE(window.edit->text(), QLatin1String("*100#"));
    QCOMPARE(clicked.count(), 0);
}

void KeyboardTest::aHeldReturnPressesOnce()
{
    LookAlike window;
    QSignalSpy clicked(window.send, SIGNAL(clicked()));
    QTest::keyClick(window.edit, Qt::Key_Return);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(window.edit, &repeated);
    QCOMPARE(clicked.count(), 1);
}

void KeyboardTest::aDisabledButtonIsNotPressed()
{
    LookAlike window;
    window.send->setEnabled(false);
    QSignalSpy clicked(window.send, SIGNAL(clicked()));
    QTest::keyClick(window.edit, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
}

void KeyboardTest::returnElsewhereDoesNotSend()
{
    LookAlike window;
    QSignalSpy clicked(window.send, SIGNAL(clicked()));
    QTest::keyClick(window.other, Qt::Key_Return);
    QCOMPARE(clicked.count(), 0);
}

void KeyboardTest::theEditHasTheFocusWhenItAppears()
{
    LookAlike window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTRY_VERIFY(window.edit->hasFocus());
}

void KeyboardTest::theFocusComesBackWithTheAnswer()
{
    LookAlike window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.edit->setEnabled(false);
    window.other->setFocus();
    drainEvents();
    QVERIFY(window.other->hasFocus());
    window.edit->setEnabled(true);
    QTRY_VERIFY(window.edit->hasFocus());
}

/// Sends commands and checks the replies, using only key events that are sent to the focus widget.
void KeyboardTest::talk(const GeneralWindow &general)
{
    QVERIFY(general.isComplete());
    QVERIFY(QTest::qWaitForWindowActive(general.commandEdit()->window()));
    for (const char *text : {"*123#", "2", "1"}) {
        QTRY_VERIFY(general.commandEdit()->hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(general.isWaiting());
        QTRY_VERIFY(!general.isWaiting());
    }
    QCOMPARE(general.lastReceived(), QLatin1String("Deep enough"));
}

void KeyboardTest::theWholeDialogueIsTypedInThePage()
{
    LoadedPlugin plugin;
    QCOMPARE(int(plugin.load(LoadedPlugin::installedFile()).step), int(PluginFailure::None));
    QWidget host;
    host.resize(900, 600);
    host.show();
    QRect rect = host.rect();
    plugin.plugin()->ShowWindow(&host, rect);
    talk(GeneralWindow(&host));
    plugin.shutDown();
}

void KeyboardTest::theWholeDialogueIsTypedInTheFrame()
{
    LoadedPlugin plugin;
    QCOMPARE(int(plugin.load(LoadedPlugin::installedFile()).step), int(PluginFailure::None));
    QCOMPARE(plugin.plugin()->DoModal(), 1);
    talk(GeneralWindow::framed());
    plugin.shutDown();
    QVERIFY(!GeneralWindow::framed().isComplete());
}

USSD_TEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
