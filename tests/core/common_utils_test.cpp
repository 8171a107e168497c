#include <QApplication>
#include <QPushButton>
#include <QScreen>

#include <thread>

#include "CommonUtils.h"
#include "HostState.h"
#include "IPluginContainer.h"
#include "Startup.h"
#include "UssdTest.h"

namespace
{

class Container : public IPluginContainer
{
public:
    QObject *GetPlugin(const QString &) override { return nullptr; }
};

QRect screen()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QByteArray asText(const QRect &rect)
{
    QString text;
    QDebug(&text) << rect << "on" << screen();
    return text.toLocal8Bit();
}

} // namespace

class CommonUtilsTest : public UssdTest
{
    Q_OBJECT
protected:
    void tearDown() override;

private slots:
    void theMainWindowIsForgottenWhenItDies();
    void miniModeAndContainerAreWhatTheHostSaid();
    void shuttingDownIsSeenByOtherThreads();
    void aWindowIsCentredOverTheMainWindow();
    void aWindowIsCentredOnTheScreenWithoutMainWindow();
    void aHiddenMainWindowDoesNotCount();
    void theMainWindowItselfIsCentredOnTheScreen();
    void aCentredWindowStaysOnTheScreen();
    void aWindowLargerThanTheScreenShowsItsCorner();
    void centringNothingIsHarmless();

    void aTextThatFitsIsLeftAlone();
    void aTextThatIsTooWideIsElided();
    void aTextOfExactlyTheWidthIsElided();
    void anEarlierToolTipIsEmptied();
};

void CommonUtilsTest::tearDown()
{
    HostCore::HostState::setMainWindow(nullptr);
    HostCore::HostState::setMiniMode(false);
    HostCore::HostState::setShuttingDown(false);
    HostCore::HostState::setPluginContainer(nullptr);
}

void CommonUtilsTest::theMainWindowIsForgottenWhenItDies()
{
    QVERIFY(!CommonUtils::GetMainWindow());
    QWidget *window = new QWidget;
    HostCore::HostState::setMainWindow(window);
    QCOMPARE(CommonUtils::GetMainWindow(), window);
    delete window;
    QVERIFY(!CommonUtils::GetMainWindow());
    QWidget other;
    CommonUtils::MoveCentre(&other);
}

void CommonUtilsTest::miniModeAndContainerAreWhatTheHostSaid()
{
    QVERIFY(!CommonUtils::IsMiniMode());
    QVERIFY(!Startup::GetPluginContainer());
    Container container;
    HostCore::HostState::setMiniMode(true);
    HostCore::HostState::setPluginContainer(&container);
    QVERIFY(CommonUtils::IsMiniMode());
    QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer *>(&container));
}

void CommonUtilsTest::shuttingDownIsSeenByOtherThreads()
{
    bool before = true;
    bool after = false;
    const auto ask = [](bool *answer) {
        std::thread([answer] { *answer = CommonUtils::IsShuttingDown(); }).join();
    };
    ask(&before);
    HostCore::HostState::setShuttingDown(true);
    ask(&after);
    QVERIFY(!before);
    QVERIFY(after);
}

void CommonUtilsTest::aWindowIsCentredOverTheMainWindow()
{
    QWidget window;
    window.setGeometry(200, 150, 400, 300);
    window.show();
    HostCore::HostState::setMainWindow(&window);
    QWidget frame;
    frame.setFixedSize(100, 60);
    CommonUtils::MoveCentre(&frame);
    const QPoint apart = frame.frameGeometry().center() - window.frameGeometry().center();
    QVERIFY(apart.manhattanLength() <= 2);
}

void CommonUtilsTest::aWindowIsCentredOnTheScreenWithoutMainWindow()
{
    QWidget frame;
    frame.setFixedSize(100, 60);
    CommonUtils::MoveCentre(&frame);
    const QPoint apart = frame.frameGeometry().center() - screen().center();
    QVERIFY(apart.manhattanLength() <= 2);
}

void CommonUtilsTest::aHiddenMainWindowDoesNotCount()
{
    QWidget window;
    window.setGeometry(0, 0, 50, 50);
    HostCore::HostState::setMainWindow(&window);
    aWindowIsCentredOnTheScreenWithoutMainWindow();
}

void CommonUtilsTest::theMainWindowItselfIsCentredOnTheScreen()
{
    QWidget window;
    window.setGeometry(0, 0, 200, 100);
    window.show();
    HostCore::HostState::setMainWindow(&window);
    CommonUtils::MoveCentre(&window);
    const QPoint apart = window.frameGeometry().center() - screen().center();
    QVERIFY(apart.manhattanLength() <= 2);
}

void CommonUtilsTest::aCentredWindowStaysOnTheScreen()
{
    QWidget window;
    window.setGeometry(screen().right() - 20, screen().bottom() - 20, 200, 200);
    window.show();
    HostCore::HostState::setMainWindow(&window);
    QWidget frame;
    frame.setFixedSize(300, 200);
    CommonUtils::MoveCentre(&frame);
    QVERIFY2(screen().contains(frame.frameGeometry()), asText(frame.frameGeometry()).constData());
    window.move(screen().left() - 190, screen().top() - 190);
    CommonUtils::MoveCentre(&frame);
    QVERIFY2(screen().contains(frame.frameGeometry()), asText(frame.frameGeometry()).constData());
}

void CommonUtilsTest::aWindowLargerThanTheScreenShowsItsCorner()
{
    QWidget frame;
    frame.setFixedSize(screen().size() + QSize(500, 500));
    CommonUtils::MoveCentre(&frame);
    QCOMPARE(frame.pos(), screen().topLeft());
}

void CommonUtilsTest::centringNothingIsHarmless()
{
    QWidget window;
    window.setGeometry(3, 4, 50, 60);
    HostCore::HostState::setMainWindow(&window);
    CommonUtils::MoveCentre(nullptr);
    QCOMPARE(window.geometry(), QRect(3, 4, 50, 60));
}

void CommonUtilsTest::aTextThatFitsIsLeftAlone()
{
    QPushButton button(QLatin1String("OK"));
    CommonUtils::setElidedTextForWidgetText(&button, 500, Qt::ElideRight);
    QCOMPARE(button.text(), QLatin1String("OK"));
    QVERIFY(button.toolTip().isEmpty());
}

void CommonUtilsTest::aTextThatIsTooWideIsElided()
{
    const QString text(60, QLatin1Char('m'));
    QPushButton button(text);
    CommonUtils::setElidedTextForWidgetText(&button, 127, Qt::ElideRight);
    QVERIFY(button.text() != text);
    QVERIFY(button.text().startsWith(QLatin1String("mm")));
    QVERIFY(button.fontMetrics().horizontalAdvance(button.text()) <= 127);
    QCOMPARE(button.toolTip(), text);
}

void CommonUtilsTest::aTextOfExactlyTheWidthIsElided()
{
    const QString text = QLatin1String("Balance");
    QPushButton button(text);
    const int width = button.fontMetrics().horizontalAdvance(text);
    CommonUtils::setElidedTextForWidgetText(&button, width, Qt::ElideRight);
    QCOMPARE(button.toolTip(), text);
    QPushButton wider(text);
    CommonUtils::setElidedTextForWidgetText(&wider, width + 1, Qt::ElideRight);
    QVERIFY(wider.toolTip().isEmpty());
}

void CommonUtilsTest::anEarlierToolTipIsEmptied()
{
    QPushButton button(QLatin1String("OK"));
    button.setToolTip(QLatin1String("old"));
    CommonUtils::setElidedTextForWidgetText(&button, 500, Qt::ElideRight);
    QVERIFY(button.toolTip().isEmpty());
}

USSD_TEST_MAIN(CommonUtilsTest)
#include "common_utils_test.moc"
