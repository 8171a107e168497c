#include "base/DashboardText.h"
#include "HostState.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "Languages.h"
#include "plugin/LoadedPlugin.h"
#include "UssdTest.h"

#include <QDir>

using namespace Dashboard;

Q_DECLARE_METATYPE(PluginFailure::Step)

namespace
{

const char NOTIFY_INTERFACE[] = "com.zelvor.portalcompass.plugin.INotify";
const char UI_INTERFACE[] = "com.zelvor.portalcompass.plugin.IUIPlugin";
const char USSD_INTERFACE[] = "com.zelvor.portalcompass.plugin.IUSSD";

QString testPlugin(const char *name)
{
    return QLatin1String(PLUGIN_FOLDER "/lib") + QLatin1String(name) + QLatin1String(".so");
}

QStringList calls()
{
    return qApp->property("calls").toStringList();
}

} // namespace

/**
 * Tests that each failure to load the plug-in is reported with the failed step, a message, the file
 * and the reason.
 */
class PluginLoadingTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override { HostCore::HostState::setShuttingDown(false); }

private slots:
    void theInstalledPluginLoads();
    void anOperatorsFolderTakesTheInstalledLibrary();
    void aMissingFileIsSaid();
    void aFolderIsNoFile();
    void aTextFileIsNoLibrary();
    void anEmptyFileIsNoLibrary();
    void aMissingSymbolIsSaidByName();
    void aLibraryThatIsNoPluginIsOfTheWrongBuild();
    void aPluginOfAnotherQtIsOfTheWrongBuild();
    void aPluginWithoutObjectIsSaid();
    void aMissingInterfaceIsSaidByName_data();
    void aMissingInterfaceIsSaidByName();
    void aPluginThatRefusesToStartIsSaid();
    void aPluginWithoutServiceIsSaid_data();
    void aPluginWithoutServiceIsSaid();
    void aGoodPluginLoadsAfterABadOne();
    void shutDownKeepsItsOrder();
    void shutDownTwiceIsHarmless();
    void aPluginThatFailedHalfwayIsShutDownToo();
    void theLanguageChangeReachesThePlugin();
    void theSimChangeReachesThePlugin();
    void aRestartTakesEverythingDownAndAsksForTheServiceAgain();
    void everyStepHasWordsOfItsOwn();

private:
    PluginFailure load(const QString &file);
};

void PluginLoadingTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    qApp->setProperty("calls", QStringList());
}

PluginFailure PluginLoadingTest::load(const QString &file)
{
    LoadedPlugin plugin;
    PluginFailure failure = plugin.load(file);
    if (failure.step != PluginFailure::None && plugin.isUsable())
        qWarning("usable in spite of a failure");
    return failure;
}

void PluginLoadingTest::theInstalledPluginLoads()
{
    LoadedPlugin plugin;
    const PluginFailure failure = plugin.load(LoadedPlugin::installedFile());
    QVERIFY2(failure.step == PluginFailure::None, qPrintable(failure.text()));
    QVERIFY(plugin.isUsable());
    QCOMPARE(plugin.plugin()->GetPluginName(), QLatin1String("USSDUIPluginImpl"));
    QVERIFY(failure.text().isEmpty());
}

/// Tests that the installed library is loaded if an operator's folder does not contain one, and
/// that a folder without the plug-in's files is not accepted.
void PluginLoadingTest::anOperatorsFolderTakesTheInstalledLibrary()
{
    const QString shipped = LoadedPlugin::installedFile();
    const QString own = folder() + QLatin1String("/plugins/USSDUIPlugin/libUSSDUIPlugin.so");
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder()));
    QCOMPARE(LoadedPlugin::installedFile(), own);
    QVERIFY(QDir(folder()).mkpath(QLatin1String("plugins/USSDUIPlugin")));
    writeFile(QLatin1String("plugins/USSDUIPlugin/USSDPluginConfig.xml"), "<ussdPlugin/>");
    QCOMPARE(LoadedPlugin::installedFile(), shipped);
    writeFile(QLatin1String("plugins/USSDUIPlugin/libUSSDUIPlugin.so"), "");
    QCOMPARE(LoadedPlugin::installedFile(), own);
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
}

void PluginLoadingTest::aMissingFileIsSaid()
{
    const QString file = folder() + QLatin1String("/missing.so");
    const PluginFailure failure = load(file);
    QCOMPARE(failure.step, PluginFailure::FileMissing);
    QCOMPARE(failure.file, file);
    QVERIFY(failure.text().contains(file));
}

void PluginLoadingTest::aFolderIsNoFile()
{
    QCOMPARE(load(folder()).step, PluginFailure::FileMissing);
}

void PluginLoadingTest::aTextFileIsNoLibrary()
{
    const PluginFailure failure = load(
        writeFile(QLatin1String("libtext.so"), QByteArray("this is a text file\n").repeated(99)));
    QCOMPARE(failure.step, PluginFailure::NotALibrary);
    QVERIFY(failure.text().contains(QLatin1String("libtext.so")));
    QVERIFY(!failure.detail.isEmpty());
    QVERIFY(failure.text().contains(failure.detail));
}

void PluginLoadingTest::anEmptyFileIsNoLibrary()
{
    allowWarning("libempty.so: failed to map to memory"); // Qt 6 logs this warning
    QCOMPARE(load(writeFile(QLatin1String("libempty.so"), QByteArray())).step,
             PluginFailure::NotALibrary);
}

void PluginLoadingTest::aMissingSymbolIsSaidByName()
{
    const PluginFailure failure = load(testPlugin("plugin_without_symbol"));
    QCOMPARE(failure.step, PluginFailure::NotALibrary);
    QVERIFY2(failure.text().contains(QLatin1String("functionThatNobodyHas")),
             qPrintable(failure.text()));
}

void PluginLoadingTest::aLibraryThatIsNoPluginIsOfTheWrongBuild()
{
    const PluginFailure failure = load(testPlugin("no_plugin"));
    QCOMPARE(failure.step, PluginFailure::WrongBuild);
    QVERIFY(!failure.detail.isEmpty());
}

void PluginLoadingTest::aPluginOfAnotherQtIsOfTheWrongBuild()
{
    QFile good(testPlugin("good_plugin"));
    QVERIFY(good.open(QIODevice::ReadOnly));
    QByteArray content = good.readAll();
    // The library contains a mark (Qt 5) or a note with the name of its owner (Qt 6). Each of
    // them has 12 bytes and is followed by the format of the meta data and the major and minor
    // version of Qt.
    const int mark = int(qMax(content.indexOf("QTMETADATA !"), content.indexOf("qt-project!")));
    QVERIFY(mark > 0);
    QCOMPARE(int(content.at(mark + 13)), QT_VERSION_MAJOR);
    content[mark + 14] = 99;
    allowWarning("incompatible Qt library"); // Qt 6 logs this warning
    const PluginFailure failure = load(writeFile(QLatin1String("libother.so"), content));
    QCOMPARE(failure.step, PluginFailure::WrongBuild);
    QVERIFY2(failure.detail.contains(QString::fromLatin1("%1.99").arg(QT_VERSION_MAJOR)),
             qPrintable(failure.detail));
}

void PluginLoadingTest::aPluginWithoutObjectIsSaid()
{
    QCOMPARE(load(testPlugin("plugin_without_instance")).step, PluginFailure::NoInstance);
}

void PluginLoadingTest::aMissingInterfaceIsSaidByName_data()
{
    QTest::addColumn<QByteArray>("plugin");
    QTest::addColumn<QByteArray>("interface");
    QTest::newRow("none") << QByteArray("plugin_without_interfaces") << QByteArray(UI_INTERFACE);
    QTest::newRow("INotify") << QByteArray("plugin_without_notify") << QByteArray(NOTIFY_INTERFACE);
    QTest::newRow("IUSSD") << QByteArray("plugin_with_other_service") << QByteArray(USSD_INTERFACE);
}

void PluginLoadingTest::aMissingInterfaceIsSaidByName()
{
    QFETCH(QByteArray, plugin);
    QFETCH(QByteArray, interface);
    const PluginFailure failure = load(testPlugin(plugin.constData()));
    QCOMPARE(failure.step, PluginFailure::NoInterface);
    QCOMPARE(failure.detail, QString::fromLatin1(interface));
    QVERIFY(failure.text().contains(QString::fromLatin1(interface)));
}

void PluginLoadingTest::aPluginThatRefusesToStartIsSaid()
{
    QCOMPARE(load(testPlugin("plugin_that_refuses")).step, PluginFailure::InitFailed);
}

void PluginLoadingTest::aPluginWithoutServiceIsSaid_data()
{
    QTest::addColumn<QByteArray>("plugin");
    QTest::newRow("says no") << QByteArray("plugin_without_service");
    QTest::newRow("says yes but gives none") << QByteArray("plugin_with_null_service");
}

void PluginLoadingTest::aPluginWithoutServiceIsSaid()
{
    QFETCH(QByteArray, plugin);
    const PluginFailure failure = load(testPlugin(plugin.constData()));
    QCOMPARE(failure.step, PluginFailure::NoService);
    QVERIFY(failure.text().contains(QLatin1String("4097")));
}

void PluginLoadingTest::aGoodPluginLoadsAfterABadOne()
{
    QCOMPARE(load(testPlugin("no_plugin")).step, PluginFailure::WrongBuild);
    QCOMPARE(load(testPlugin("good_plugin")).step, PluginFailure::None);
}

void PluginLoadingTest::shutDownKeepsItsOrder()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin.load(testPlugin("good_plugin")).step, PluginFailure::None);
    plugin.shutDown();
    QVERIFY(!plugin.isUsable());
    QCOMPARE(calls(), QStringList() << QLatin1String("Init") << QLatin1String("QueryInterface")
                                    << QLatin1String("UnSDKRegisterEvent, shutting down")
                                    << QLatin1String("OnDestroy") << QLatin1String("deleted"));
}

void PluginLoadingTest::shutDownTwiceIsHarmless()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin.load(testPlugin("good_plugin")).step, PluginFailure::None);
    plugin.shutDown();
    const QStringList once = calls();
    plugin.shutDown();
    plugin.notifyLanguageChange();
    QCOMPARE(calls(), once);
}

void PluginLoadingTest::aPluginThatFailedHalfwayIsShutDownToo()
{
    load(testPlugin("plugin_without_service"));
    QCOMPARE(calls().last(), QLatin1String("deleted"));
    QVERIFY(calls().contains(QLatin1String("OnDestroy")));
}

void PluginLoadingTest::theLanguageChangeReachesThePlugin()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin.load(testPlugin("good_plugin")).step, PluginFailure::None);
    plugin.notifyLanguageChange();
    QCOMPARE(calls().last(), QLatin1String("Notify 320"));
}

void PluginLoadingTest::theSimChangeReachesThePlugin()
{
    LoadedPlugin plugin;
    plugin.notifySimChange(); // does nothing without a plug-in
    QCOMPARE(plugin.load(testPlugin("good_plugin")).step, PluginFailure::None);
    plugin.notifySimChange();
    QCOMPARE(calls().last(), QLatin1String("Notify 579"));
}

void PluginLoadingTest::aRestartTakesEverythingDownAndAsksForTheServiceAgain()
{
    LoadedPlugin plugin;
    QCOMPARE(plugin.load(testPlugin("good_plugin")).step, PluginFailure::None);
    qApp->setProperty("calls", QStringList());
    QCOMPARE(plugin.restart().step, PluginFailure::None);
    QVERIFY(plugin.isUsable());
    QCOMPARE(calls(), QStringList()
                          << QLatin1String("UnSDKRegisterEvent") << QLatin1String("OnDestroy")
                          << QLatin1String("QueryInterface"));
}

void PluginLoadingTest::everyStepHasWordsOfItsOwn()
{
    for (const QString &code : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        QStringList texts;
        for (int step = PluginFailure::FileMissing; step <= PluginFailure::NoService; ++step) {
            PluginFailure failure;
            failure.step = PluginFailure::Step(step);
            failure.file = QLatin1String("/a/%2/file");
            failure.detail = QLatin1String("the-reason");
            texts << failure.text();
            QVERIFY(texts.last().contains(failure.file));
            QVERIFY(!texts.last().startsWith(QLatin1String("PLUGIN_")));
        }
        QCOMPARE(texts.removeDuplicates(), 0);
    }
}

USSD_TEST_MAIN(PluginLoadingTest)
#include "plugin_loading_test.moc"
