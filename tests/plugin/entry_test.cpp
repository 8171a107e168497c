/*
 * Tests the plug-in library as a host uses it: only through its entry points and virtual tables.
 * The test does not include any headers of the plug-in or its interfaces.
 */
#include "UssdTest.h"

#include <QDir>
#include <QLibrary>
#include <QLineEdit>
#include <QPluginLoader>
#include <QPushButton>
#include <QRect>
#include <QTextEdit>

#include "fake_tksv.h"
#include "slot_table.h"

using namespace SlotTable;

class EntryTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    /// Returns the plug-in object. If the previous object has been deleted, creates a new one.
    QObject *instance();
    void *as(const char *name) { return instance()->qt_metacast(name); }
    void *plugin() { return as("IUIPlugin"); }
    void *destroyEvents() { return secondBase(plugin()); }
    void *notify() { return as("INotify"); }
    QObject *service();
    void *ussd() { return service()->qt_metacast("IUSSD"); }

    QLibrary m_library;

private slots:
    void qt5LoaderLoadsIt();
    void verificationTextHasTheBuildKey();
    void noQt4HostTakesThisBuild();
    void shippedBuildKeyIsTheKnownOne();
    void secondCallGivesTheSameObject();
    void callAfterDeletionMakesANewObject();
    void metacastAnswersEachName();
    void bothNamesOfTheBaseGiveOnePointer();
    void fixedAnswers();
    void unknownInterfaceLeavesTheTargetAlone();
    void ussdInterfaceIsTheSameEachTime();
    void changeLangRefusesAnEmptyLanguage();
    void changeLangLeavesTheWindowsAlone();
    void languageEventBeforeAnyWindowDoesNothing();
    void parametersOfAnEventAreNotLookedAt();
    void servicesSlotsAreInOrder();
    void windowShowsHidesAndFits();
    void modalWindowIsShown();
    void commandGoesOutAndItsReplyIsShown();
    void destroyThenDestructorIsHarmless();
    void shutDownCallsInAnyOrder_data();
    void shutDownCallsInAnyOrder();
    void callbacksDuringShutDown();
};

void EntryTest::setUp()
{
    fakeSdkReset();
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    fakeSdkSetUserDataDirectory((folder() + QLatin1Char('/')).toStdU16String());
    m_library.setFileName(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
}

void EntryTest::tearDown()
{
    callVoid(destroyEvents(), UnSDKRegisterEvent);
    callVoid(destroyEvents(), OnDestroy);
    delete instance();
    drainEvents();
    fakeSdkReset();
}

QObject *EntryTest::instance()
{
    typedef QObject *(*Instance)();
    const Instance make = reinterpret_cast<Instance>(m_library.resolve("qt_plugin_instance"));
    return make ? make() : nullptr;
}

QObject *EntryTest::service()
{
    QObject *object = nullptr;
    callQueryInterface(plugin(), 4097, &object);
    return object;
}

// ---- entry points ----------------------------------------------------------------------------

void EntryTest::qt5LoaderLoadsIt()
{
    QPluginLoader loader(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    QVERIFY2(loader.instance(), qPrintable(loader.errorString()));
    QCOMPARE(loader.instance(), instance());
}

namespace
{

const char VERIFICATION[] = "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                            "buildkey=" USSD_QT4_BUILD_KEY;

/// Returns the build key that Qt 4 would read from the library file. Qt 4 searches the file for the
/// first line of the verification data, and reads the build key up to the end of the line or
/// string.
QByteArray keyThatQt4Reads()
{
    QFile file(QString::fromLocal8Bit(USSD_PLUGIN_FILE));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray content = file.readAll();
    const QByteArray name("\nbuildkey=");
    const int pattern = int(content.indexOf("pattern=QT_PLUGIN_VERIFICATION_DATA\n"));
    const int start = int(content.indexOf(name, pattern)) + name.size();
    if (pattern < 0 || start < pattern)
        return QByteArray();
    return QByteArray(content.constData() + start).split('\n').first();
}

} // namespace

/// Tests that the verification data contains the configured build key, followed by the Qt version.
void EntryTest::verificationTextHasTheBuildKey()
{
    typedef const char *(*Query)();
    const Query query =
        reinterpret_cast<Query>(m_library.resolve("qt_plugin_query_verification_data"));
    QVERIFY(query);
    QCOMPARE(QByteArray(query()),
             QByteArray(VERIFICATION) + " qt" + QByteArray::number(QT_VERSION_MAJOR));
}

/// Tests that the build key differs from that of Qt 4. If a Qt 4 host loaded this library, the
/// process would contain two versions of Qt and crash.
void EntryTest::noQt4HostTakesThisBuild()
{
    const QByteArray key = keyThatQt4Reads();
    QVERIFY(key.startsWith(USSD_QT4_BUILD_KEY));
    QVERIFY(key != USSD_QT4_BUILD_KEY);
}

/// Tests that the CMake variable for the build key has the known default value.
void EntryTest::shippedBuildKeyIsTheKnownOne()
{
    QFile file(QStringLiteral(USSD_SOURCE_DIR "/CMakeLists.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(
        "set(USSD_QT4_BUILD_KEY \"i386 linux g++-4 full-config\" CACHE STRING"));
}

void EntryTest::secondCallGivesTheSameObject()
{
    QVERIFY(instance());
    QCOMPARE(instance(), instance());
}

void EntryTest::callAfterDeletionMakesANewObject()
{
    QPointer<QObject> first(instance());
    delete first;
    QVERIFY(!first);
    QVERIFY(instance());
}

void EntryTest::metacastAnswersEachName()
{
    QObject *object = instance();
    QVERIFY(!object->qt_metacast(nullptr));
    QCOMPARE(object->qt_metacast("CUSSDUIPluginImpl"), static_cast<void *>(object));
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QCOMPARE(as("com.zelvor.portalcompass.plugin.IUIPlugin"), plugin());
    QCOMPARE(as("com.zelvor.portalcompass.plugin.INotify"), notify());
    QVERIFY(plugin() != static_cast<void *>(object));
    QVERIFY(notify() != plugin());
    QVERIFY(!as("IBaseInterface"));
    QVERIFY(!as("com.zelvor.portalcompass.plugin.IUSSD"));
}

void EntryTest::bothNamesOfTheBaseGiveOnePointer()
{
    QVERIFY(plugin());
    QCOMPARE(as("com.zelvor.portalcompass.plugin.IBasePlugin"), plugin());
}

// ---- operations ------------------------------------------------------------------------------

void EntryTest::fixedAnswers()
{
    callVoid(plugin(), Release);
    QCOMPARE(callInt(plugin(), GetLastError), 0);
    QCOMPARE(callBool(plugin(), Init), true);
    QCOMPARE(callInt(plugin(), GetPluginType), 0);
    QCOMPARE(callString(plugin(), GetCLSID), QString());
    QCOMPARE(callInt(plugin(), GetVersion), 0);
    QCOMPARE(callString(plugin(), GetPluginName), QStringLiteral("USSDUIPluginImpl"));
    QCOMPARE(callBool(plugin(), IsAllowRelease), false);
    QCOMPARE(callBool(plugin(), IsReady), false);
}

void EntryTest::unknownInterfaceLeavesTheTargetAlone()
{
    QObject *const untouched = this;
    QObject *target = untouched;
    const QList<int> others = {4096, 4098, 0, 1, -1, -4097, 0x1002, 0x11001, 0x7fffffff};
    for (int id : others) {
        QCOMPARE(callQueryInterface(plugin(), id, &target), false);
        QCOMPARE(target, untouched);
    }
    // These lines are logged without the time that most log lines contain.
    QCOMPARE(logLines().count(QStringLiteral(
                 "../../src/USSDUIPlugin/USSDUIPluginImpl.cpp: QueryInterface called")),
             others.count());
}

void EntryTest::ussdInterfaceIsTheSameEachTime()
{
    QObject *first = nullptr;
    QObject *second = nullptr;
    QCOMPARE(callQueryInterface(plugin(), 4097, &first), true);
    QCOMPARE(callQueryInterface(plugin(), 4097, &second), true);
    QVERIFY(first);
    QCOMPARE(first, second);
    QVERIFY(first->qt_metacast("com.zelvor.portalcompass.plugin.IUSSD"));
}

void EntryTest::changeLangRefusesAnEmptyLanguage()
{
    QCOMPARE(callChangeLang(plugin(), QString()), false);
    QCOMPARE(callChangeLang(plugin(), QStringLiteral("")), false);
    QCOMPARE(callChangeLang(plugin(), QStringLiteral("en")), true);
    QVERIFY(fakeSdkCalls().empty()); // the calls do not have any other effect
}

void EntryTest::changeLangLeavesTheWindowsAlone()
{
    QWidget page;
    QRect rect(0, 0, 600, 500);
    callShowWindow(plugin(), &page, rect);
    clearLog();
    QCOMPARE(callChangeLang(plugin(), QStringLiteral("en")), true);
    QCOMPARE(timesLogged("SetLanguage"), 0);
    QCOMPARE(timesLogged(": Notify "), 0);
    QCOMPARE(timesLogged("/USSDUIPluginImpl.cpp: ChangeLang Enter"), 1);
}

void EntryTest::languageEventBeforeAnyWindowDoesNothing()
{
    QCOMPARE(callNotify(notify(), 320, 0, 0), 0);
    QVERIFY(fakeSdkCalls().empty());
}

void EntryTest::parametersOfAnEventAreNotLookedAt()
{
    QCOMPARE(callInt(plugin(), DoModal), 1);
    clearLog();
    for (unsigned int event : {320u, 579u}) {
        QCOMPARE(callNotify(notify(), 0, event, 0), 0);
        QCOMPARE(callNotify(notify(), 0, 0, event), 0);
        QCOMPARE(callNotify(notify(), 4711, event, event), 0);
    }
    drainEvents();
    QVERIFY(QApplication::activeModalWidget());
    QCOMPARE(timesLogged("SetLanguage"), 0);
    QCOMPARE(callNotify(notify(), 320, 579, 579), 0);
    QVERIFY(timesLogged("SetLanguage") > 0);
    QVERIFY(QApplication::activeModalWidget());
    QCOMPARE(callNotify(notify(), 579, 320, 320), 0);
    drainEvents();
    QVERIFY(!QApplication::activeModalWidget());
}

void EntryTest::servicesSlotsAreInOrder()
{
    QWidget page;
    QRect rect(0, 0, 600, 500);
    int flags = -1;
    QCOMPARE(callBool(ussd(), IsImsiDynamicMatch), true);
    QCOMPARE(callCheckImsiIsValid(ussd(), QStringLiteral("001010123456789"), flags), true);
    QVERIFY(flags & 8);
    QCOMPARE(callShowPrePostPaidWindow(ussd(), &page, rect, 0), 0);
    QVERIFY(page.findChildren<QWidget *>().isEmpty());
    QCOMPARE(callShowPrePostPaidWindow(ussd(), &page, rect, 3), 0);
    QVERIFY(!page.findChildren<QWidget *>().isEmpty());
    bool inUse = false, postpaid = true;
    int result = -1;
    QCOMPARE(callGetPrePostInfo(ussd(), inUse, postpaid, result, true), 1);
    QCOMPARE(inUse, true);
    QCOMPARE(postpaid, false);
    QCOMPARE(callDoPrePostPaidModal(ussd(), 4), 0);
    QCOMPARE(callDoPrePostPaidModal(ussd(), 3), 1);
}

// ---- windows ---------------------------------------------------------------------------------

void EntryTest::windowShowsHidesAndFits()
{
    QWidget page;
    page.show();
    QRect rect(5, 6, 600, 500);
    QCOMPARE(callShowWindow(plugin(), &page, rect), 0);
    QWidget *window = page.findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(window && window->isVisible());
    QCOMPARE(window->geometry(), rect);
    QRect other(0, 0, 700, 550);
    callFitSize(plugin(), other);
    QCOMPARE(window->geometry(), other);
    callVoid(plugin(), Hide);
    QVERIFY(!window->isVisible());
}

void EntryTest::modalWindowIsShown()
{
    QCOMPARE(callInt(plugin(), DoModal), 1);
    QWidget *frame = QApplication::activeModalWidget();
    QVERIFY(frame);
    QCOMPARE(frame->size(), QSize(588, 465));
    frame->close();
    drainEvents();
    QVERIFY(!QApplication::activeModalWidget());
}

void EntryTest::commandGoesOutAndItsReplyIsShown()
{
    fakeSdkSetAnswer(fakeReply(u"12.50 EUR"));
    QWidget page;
    QRect rect(0, 0, 600, 500);
    callShowWindow(plugin(), &page, rect);
    const QString prefix = QStringLiteral("USSDUIPlugin_AdvancedDialog_");
    QLineEdit *edit = page.findChild<QLineEdit *>(prefix + QStringLiteral("USSDCmdEdit"));
    QVERIFY(edit);
    QTest::keyClicks(edit, QStringLiteral("*100#"));
    QTest::mouseClick(page.findChild<QPushButton *>(prefix + QStringLiteral("SendButton")),
                      Qt::LeftButton);
    QTextEdit *history = page.findChild<QTextEdit *>(prefix + QStringLiteral("History"));
    QTRY_VERIFY(history->toPlainText().contains(QLatin1String("12.50 EUR")));
    QVERIFY(edit->isEnabled());
    QVERIFY(edit->text().isEmpty());
}

// ---- life cycle ------------------------------------------------------------------------------

void EntryTest::destroyThenDestructorIsHarmless()
{
    callInt(plugin(), DoModal);
    callVoid(destroyEvents(), OnDestroy);
    QPointer<QObject> object(instance());
    delete object;
    QVERIFY(!object);
    QVERIFY(!QApplication::activeModalWidget());
}

void EntryTest::shutDownCallsInAnyOrder_data()
{
    QTest::addColumn<QString>("calls");
    // u: UnSDKRegisterEvent, o: OnDestroy, d: deletion
    const QString letters = QStringLiteral("uod");
    for (int length = 1; length <= 4; ++length) {
        int combinations = 1;
        for (int i = 0; i < length; ++i)
            combinations *= letters.length();
        for (int c = 0; c < combinations; ++c) {
            QString calls;
            for (int i = 0, rest = c; i < length; ++i, rest /= letters.length())
                calls += letters.at(rest % letters.length());
            QTest::newRow(qPrintable(calls)) << calls;
        }
    }
}

void EntryTest::shutDownCallsInAnyOrder()
{
    QFETCH(QString, calls);
    QWidget page;
    QRect rect(0, 0, 600, 500);
    callShowWindow(plugin(), &page, rect);
    callInt(plugin(), DoModal);
    for (const QChar call : calls) {
        if (call == QLatin1Char('u'))
            callVoid(destroyEvents(), UnSDKRegisterEvent);
        else if (call == QLatin1Char('o'))
            callVoid(destroyEvents(), OnDestroy);
        else
            delete instance();
    }
    if (calls.contains(QLatin1Char('o')) || calls.contains(QLatin1Char('d')))
        QVERIFY(page.findChildren<QWidget *>().isEmpty());
    if (calls.endsWith(QLatin1Char('u')))
        QCOMPARE(fakeSdkRegistered(FakeService::Ussd), size_t(0));
}

void EntryTest::callbacksDuringShutDown()
{
    for (int i = 0; i < 30; ++i) {
        QWidget page;
        QRect rect(0, 0, 600, 500);
        callShowWindow(plugin(), &page, rect);
        for (int n = 0; n < 5; ++n) {
            fakeSdkRespond(u"unasked");
            fakeSdkRaiseDeviceEvent(6016);
            fakeSdkRaiseSmsStatus(7 + n % 2);
        }
        if (i % 2)
            callVoid(destroyEvents(), UnSDKRegisterEvent);
        callVoid(destroyEvents(), OnDestroy);
        if (i % 3 == 0)
            delete instance();
    }
    QVERIFY(fakeSdkWaitIdle());
}

USSD_TEST_MAIN(EntryTest)

#include "entry_test.moc"
