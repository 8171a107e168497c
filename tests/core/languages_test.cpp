#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>

#include <atomic>
#include <random>
#include <thread>

#include "Change.h"
#include "Languages.h"
#include "UssdTest.h"

namespace
{

QString pluginText(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}

/**
 * Looks up translations in a separate thread, and counts results that do not belong to any
 * language.
 */
class Reader
{
public:
    explicit Reader(const QStringList &possible) : m_possible(possible), m_thread([this] { run(); })
    {
    }
    ~Reader() { finish(); }

    int asked() const { return m_asked; }
    int strange() const { return m_strange; }
    void finish()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    void run()
    {
        while (!m_stop) {
            if (!m_possible.contains(pluginText("IDS_BUTTON_SEND")))
                ++m_strange;
            ++m_asked;
        }
    }

    const QStringList &m_possible;
    std::atomic<bool> m_stop{false};
    std::atomic<int> m_asked{0};
    std::atomic<int> m_strange{0};
    std::thread m_thread;
};

} // namespace

class LanguagesTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en"))); }

private slots:
    void englishIsThereBeforeAnyLanguageIsChosen();
    void allLanguagesAreOffered();
    void theTextFollowsTheLanguageAtOnce();
    void namesAreThoseOfTheLanguageItself();
    void localeHasItsLanguage();
    void anEmptyKeyGivesAnEmptyText();
    void anUnknownKeyGivesTheKey();
    void anUnknownContextGivesTheKey();
    void anUnknownLanguageChangesNothing();
    void arabicTurnsTheLayoutAndBack();
    void theDefaultLocaleFollows();
    void otherThreadsMayAskDuringAChange();
    void everyInstalledFileIsWhole();
    void everyDamageIsSeen_data();
    void everyDamageIsSeen();
    void anyTranslatorReadsTheFiles();
};

void LanguagesTest::englishIsThereBeforeAnyLanguageIsChosen()
{
    QCOMPARE(HostCore::Languages::current(), QLatin1String("en"));
    QVERIFY(pluginText("IDS_BUTTON_SEND") != QLatin1String("IDS_BUTTON_SEND"));
}

void LanguagesTest::allLanguagesAreOffered()
{
    const QStringList wanted =
        QString(QLatin1String("en de fr es pt pt_BR ru ar zh")).split(QLatin1Char(' '));
    QCOMPARE(HostCore::Languages::codes(), wanted);
}

void LanguagesTest::theTextFollowsTheLanguageAtOnce()
{
    const QString english = pluginText("IDS_CANCEL");
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(HostCore::Languages::current(), QLatin1String("de"));
    const QString german = pluginText("IDS_CANCEL");
    QVERIFY(german != english);
    QVERIFY(german != QLatin1String("IDS_CANCEL"));
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QCOMPARE(pluginText("IDS_CANCEL"), english);
}

void LanguagesTest::namesAreThoseOfTheLanguageItself()
{
    QCOMPARE(HostCore::Languages::nativeName(QLatin1String("de")), QLatin1String("Deutsch"));
    QCOMPARE(HostCore::Languages::nativeName(QLatin1String("ru")), QString::fromUtf8("Русский"));
    QCOMPARE(HostCore::Languages::nativeName(QLatin1String("xx")), QLatin1String("xx"));
}

void LanguagesTest::localeHasItsLanguage()
{
    const auto codeFor = [](const char *locale) {
        return HostCore::Languages::codeFor(QLatin1String(locale));
    };
    QCOMPARE(codeFor("pt_BR"), QStringLiteral("pt_BR"));
    QCOMPARE(codeFor("pt_BR.UTF-8"), QStringLiteral("pt_BR"));
    QCOMPARE(codeFor("pt_PT"), QStringLiteral("pt"));
    QCOMPARE(codeFor("de_AT"), QStringLiteral("de"));
    QCOMPARE(codeFor("de"), QStringLiteral("de"));
    QCOMPARE(codeFor("C"), QStringLiteral("C"));
}

void LanguagesTest::anEmptyKeyGivesAnEmptyText()
{
    QVERIFY(Change::tr(QLatin1String("USSDUIPlugin"), QString()).isEmpty());
    QVERIFY(Change::tr(QString(), QString()).isEmpty());
}

void LanguagesTest::anUnknownKeyGivesTheKey()
{
    QCOMPARE(pluginText("NO_SUCH_KEY"), QLatin1String("NO_SUCH_KEY"));
    const QString notLatin = QString::fromUtf8("ключ");
    QCOMPARE(Change::tr(QLatin1String("USSDUIPlugin"), notLatin), notLatin);
}

void LanguagesTest::anUnknownContextGivesTheKey()
{
    QCOMPARE(Change::tr(QLatin1String("Elsewhere"), QLatin1String("IDS_CANCEL")),
             QLatin1String("IDS_CANCEL"));
}

void LanguagesTest::anUnknownLanguageChangesNothing()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("ar")));
    const QString text = pluginText("IDS_CANCEL");
    QVERIFY(!HostCore::Languages::setCurrent(QLatin1String("xx")));
    QVERIFY(!HostCore::Languages::setCurrent(QString()));
    QVERIFY(!HostCore::Languages::setCurrent(QLatin1String("../translations/de")));
    QCOMPARE(HostCore::Languages::current(), QLatin1String("ar"));
    QCOMPARE(pluginText("IDS_CANCEL"), text);
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
}

void LanguagesTest::arabicTurnsTheLayoutAndBack()
{
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("ar")));
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(HostCore::Languages::isRightToLeft(QLatin1String("ar")));
    QVERIFY(!HostCore::Languages::isRightToLeft(QLatin1String("de")));
}

void LanguagesTest::theDefaultLocaleFollows()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("fr")));
    QCOMPARE(QLocale().language(), QLocale::French);
}

void LanguagesTest::otherThreadsMayAskDuringAChange()
{
    QStringList possible;
    for (const QString &code : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(code));
        possible << pluginText("IDS_BUTTON_SEND");
    }
    Reader first(possible);
    Reader second(possible);
    for (int round = 0; round < 30; ++round) {
        for (const QString &code : HostCore::Languages::codes())
            QVERIFY(HostCore::Languages::setCurrent(code));
    }
    QTRY_VERIFY(first.asked() > 0 && second.asked() > 0);
    first.finish();
    second.finish();
    QCOMPARE(first.strange() + second.strange(), 0);
}

void LanguagesTest::everyInstalledFileIsWhole()
{
    for (const QString &code : HostCore::Languages::codes()) {
        QCOMPARE(HostCore::Languages::fileState(code), HostCore::Languages::Whole);
        QCOMPARE(HostCore::Languages::content(code), contentOf(HostCore::Languages::file(code)));
    }
    QCOMPARE(HostCore::Languages::fileState(QLatin1String("xx")),
             HostCore::Languages::NoSuchLanguage);
    QVERIFY(HostCore::Languages::content(QLatin1String("xx")).isEmpty());
}

void LanguagesTest::everyDamageIsSeen_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = contentOf(HostCore::Languages::file(QLatin1String("de")));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("first half") << whole.left(whole.size() / 2);
    QTest::newRow("one byte less") << whole.left(whole.size() - 1);
    QTest::newRow("one byte more") << whole + '\0';
    QTest::newRow("without its start") << whole.mid(1);
    QTest::newRow("end alone") << whole.right(45);
    QTest::newRow("as lrelease alone writes it") << whole.left(whole.size() - 45);
    QTest::newRow("zeros") << QByteArray(whole.size(), '\0');
    std::mt19937 random(20260102);
    for (int i = 0; i < 500; ++i) {
        QByteArray damaged = whole;
        for (int bytes = 1 + int(random() % 20); bytes > 0; --bytes)
            damaged.data()[random() % uint(whole.size())] = char(random());
        if (damaged != whole)
            QTest::newRow(qPrintable(QString::number(i))) << damaged;
    }
}

/// Tests that damage to any byte is detected. Before the checksum was added, looking up a
/// translation in a damaged file crashed the program in about one in a hundred cases.
void LanguagesTest::everyDamageIsSeen()
{
    QFETCH(QByteArray, content);
    QVERIFY(!HostCore::Languages::isWhole(content));
}

/// Tests that QTranslator can read the files. QTranslator skips the section with the checksum.
void LanguagesTest::anyTranslatorReadsTheFiles()
{
    for (const QString &code : HostCore::Languages::codes()) {
        QTranslator translator;
        QVERIFY(translator.load(HostCore::Languages::file(code)));
        QVERIFY(HostCore::Languages::setCurrent(code));
        QCOMPARE(translator.translate("USSDUIPlugin", "IDS_CANCEL"), pluginText("IDS_CANCEL"));
    }
}

USSD_TEST_MAIN(LanguagesTest)
#include "languages_test.moc"
