#include <QDir>

#include "Change.h"
#include "Languages.h"
#include "OperatorTexts.h"
#include "PluginFolderChoice.h"
#include "UssdTest.h"

using namespace HostCore;

/// Tests how the operator's strings are read, and how they replace the plug-in's strings.
class OperatorTextsTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void textsHaveLanguageAndKey();
    void mistakesHaveTheirLine_data();
    void mistakesHaveTheirLine();
    void escapesAreReplaced();
    void fileIsInTheFolderOfThePlugin();
    void operatorsTextComesFirst();
    void englishTextOfTheOperatorIsTheLastResort();
    void otherContextsAreNotReplaced();
    void anotherFolderHasOtherTexts();
    void languageChangeReadsTheFileAgain();
    void folderThatIsChosenAgainIsReadAgain();

private:
    QString operatorFolder(const char *name) { return folder() + QLatin1String(name); }
    void writeTexts(const char *name, const QByteArray &content);
};

namespace
{
QString pluginText(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}
} // namespace

void OperatorTextsTest::setUp()
{
    PluginFolderChoice::use(operatorFolder("/a"));
    QVERIFY(Languages::setCurrent(QLatin1String("en")));
}

void OperatorTextsTest::tearDown()
{
    PluginFolderChoice::use(QString());
    Languages::setCurrent(QLatin1String("en"));
}

void OperatorTextsTest::writeTexts(const char *name, const QByteArray &content)
{
    const QString path = QLatin1String(name + 1) + QLatin1String("/plugins/USSDUIPlugin");
    QVERIFY(QDir(folder()).mkpath(path));
    writeFile(path + QLatin1String("/ussdtexts.ini"), content);
}

// ---- reading -----------------------------------------------------------------------------------

void OperatorTextsTest::textsHaveLanguageAndKey()
{
    const OperatorTexts texts(
        "\xef\xbb\xbf# comment\n\n[de]\r\nA_B = M\xc3\xbcller=x \r\n[fr]\nA_B=f");
    QVERIFY(texts.mistakes().isEmpty());
    QCOMPARE(texts.entries().count(), 2);
    QCOMPARE(texts.entries().at(0).line, 4);
    QCOMPARE(texts.text(QLatin1String("de"), QLatin1String("A_B")), QStringLiteral("Müller=x"));
    QCOMPARE(texts.text(QLatin1String("fr"), QLatin1String("A_B")), QStringLiteral("f"));
    QVERIFY(texts.text(QLatin1String("en"), QLatin1String("A_B")).isEmpty());
}

void OperatorTextsTest::mistakesHaveTheirLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("entries");
    QTest::newRow("no section") << QByteArray("A_B=c") << 1 << 0;
    QTest::newRow("no equals sign") << QByteArray("[de]\nA_B c") << 2 << 0;
    QTest::newRow("no key") << QByteArray("[de]\n=c") << 2 << 0;
    QTest::newRow("small letters") << QByteArray("[de]\na_b=c") << 2 << 0;
    QTest::newRow("no text") << QByteArray("[de]\nA_B=") << 2 << 0;
    QTest::newRow("twice") << QByteArray("[de]\nA_B=c\nA_B=d") << 3 << 2;
    QTest::newRow("not UTF-8") << QByteArray("[de]\nA_B=\xfc") << 2 << 1;
    QTest::newRow("open section") << QByteArray("[de\nA_B=c\n[de]\n") << 1 << 0;
}

void OperatorTextsTest::mistakesHaveTheirLine()
{
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(int, entries);
    const OperatorTexts texts(content);
    QVERIFY(!texts.mistakes().isEmpty());
    QCOMPARE(texts.mistakes().first().line, line);
    QCOMPARE(texts.entries().count(), entries);
}

void OperatorTextsTest::escapesAreReplaced()
{
    const OperatorTexts texts("[de]\nA_B=1\\n2\\\\n3\\x\\");
    QCOMPARE(texts.text(QLatin1String("de"), QLatin1String("A_B")),
             QStringLiteral("1\n2\\n3\\x\\"));
}

void OperatorTextsTest::fileIsInTheFolderOfThePlugin()
{
    QCOMPARE(OperatorTexts::file(QLatin1String("/a")),
             QStringLiteral("/a/plugins/USSDUIPlugin/ussdtexts.ini"));
}

// ---- replacing ---------------------------------------------------------------------------------

void OperatorTextsTest::operatorsTextComesFirst()
{
    const QString shipped = pluginText("IDS_BUTTON_SEND");
    const QString close = pluginText("IDS_BUTTON_CLOSE");
    writeTexts("/a", "[en]\nIDS_BUTTON_SEND=Off it goes\n[de]\nIDS_BUTTON_SEND=Ab damit\n");
    Languages::forgetOperatorTexts();
    QCOMPARE(pluginText("IDS_BUTTON_SEND"), QStringLiteral("Off it goes"));
    QCOMPARE(pluginText("IDS_BUTTON_CLOSE"), close);
    QVERIFY(Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(pluginText("IDS_BUTTON_SEND"), QStringLiteral("Ab damit"));
    QVERIFY(Languages::setCurrent(QLatin1String("fr")));
    QVERIFY(pluginText("IDS_BUTTON_SEND") != QLatin1String("Off it goes"));
    QVERIFY(pluginText("IDS_BUTTON_SEND") != shipped);
}

void OperatorTextsTest::englishTextOfTheOperatorIsTheLastResort()
{
    writeTexts("/a", "[en]\nMY_OWN_KEY=Club\n");
    QVERIFY(Languages::setCurrent(QLatin1String("ru")));
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("Club"));
    QCOMPARE(pluginText("MY_OTHER_KEY"), QStringLiteral("MY_OTHER_KEY"));
}

void OperatorTextsTest::otherContextsAreNotReplaced()
{
    writeTexts("/a", "[en]\nMY_OWN_KEY=Club\n");
    Languages::forgetOperatorTexts();
    QCOMPARE(Change::tr(QLatin1String("Dashboard"), QLatin1String("MY_OWN_KEY")),
             QStringLiteral("MY_OWN_KEY"));
}

void OperatorTextsTest::anotherFolderHasOtherTexts()
{
    writeTexts("/a", "[en]\nMY_OWN_KEY=a\n");
    writeTexts("/b", "[en]\nMY_OWN_KEY=b\n");
    PluginFolderChoice::use(QString());
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(operatorFolder("/a")));
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("a"));
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(operatorFolder("/b")));
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("b"));
    qunsetenv("USSD_PLUGIN_LIBRARY_PATH");
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("MY_OWN_KEY"));
}

void OperatorTextsTest::languageChangeReadsTheFileAgain()
{
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("MY_OWN_KEY"));
    writeTexts("/a", "[en]\nMY_OWN_KEY=new\n");
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("MY_OWN_KEY"));
    QVERIFY(Languages::setCurrent(QLatin1String("en")));
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("new"));
}

void OperatorTextsTest::folderThatIsChosenAgainIsReadAgain()
{
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("MY_OWN_KEY"));
    writeTexts("/a", "[en]\nMY_OWN_KEY=new\n");
    PluginFolderChoice::use(operatorFolder("/a"));
    QCOMPARE(pluginText("MY_OWN_KEY"), QStringLiteral("new"));
}

USSD_TEST_MAIN(OperatorTextsTest)

#include "operator_texts_test.moc"
