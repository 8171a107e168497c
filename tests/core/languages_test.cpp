#include <QApplication>
#include <QLocale>
#include <QThread>

#include <atomic>

#include "Change.h"
#include "Languages.h"
#include "UssdTest.h"

namespace
{

QString pluginText(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}

/** Asks for texts until it is told to stop, and counts those that belong to no language. */
class Reader : public QThread
{
public:
    std::atomic<bool> stop{false};
    std::atomic<int> asked{0};
    std::atomic<int> strange{0};
    QStringList possible;

protected:
    void run() override
    {
        while (!stop) {
            if (!possible.contains(pluginText("IDS_BUTTON_SEND")))
                ++strange;
            ++asked;
        }
    }
};

} // namespace

class LanguagesTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override { QVERIFY(Languages::setCurrent(QLatin1String("en"))); }

private slots:
    void englishIsThereBeforeAnyLanguageIsChosen();
    void allEightLanguagesAreOffered();
    void theTextFollowsTheLanguageAtOnce();
    void namesAreThoseOfTheLanguageItself();
    void anEmptyKeyGivesAnEmptyText();
    void anUnknownKeyGivesTheKey();
    void anUnknownContextGivesTheKey();
    void anUnknownLanguageChangesNothing();
    void arabicTurnsTheLayoutAndBack();
    void theDefaultLocaleFollows();
    void otherThreadsMayAskDuringAChange();
};

void LanguagesTest::englishIsThereBeforeAnyLanguageIsChosen()
{
    QCOMPARE(Languages::current(), QLatin1String("en"));
    QVERIFY(pluginText("IDS_BUTTON_SEND") != QLatin1String("IDS_BUTTON_SEND"));
}

void LanguagesTest::allEightLanguagesAreOffered()
{
    const QStringList wanted =
        QString(QLatin1String("en de fr es pt ru ar zh")).split(QLatin1Char(' '));
    QCOMPARE(Languages::codes(), wanted);
}

void LanguagesTest::theTextFollowsTheLanguageAtOnce()
{
    const QString english = pluginText("IDS_CANCEL");
    QVERIFY(Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(Languages::current(), QLatin1String("de"));
    const QString german = pluginText("IDS_CANCEL");
    QVERIFY(german != english);
    QVERIFY(german != QLatin1String("IDS_CANCEL"));
    QVERIFY(Languages::setCurrent(QLatin1String("en")));
    QCOMPARE(pluginText("IDS_CANCEL"), english);
}

void LanguagesTest::namesAreThoseOfTheLanguageItself()
{
    QCOMPARE(Languages::nativeName(QLatin1String("de")), QLatin1String("Deutsch"));
    QCOMPARE(Languages::nativeName(QLatin1String("ru")), QString::fromUtf8("Русский"));
    QCOMPARE(Languages::nativeName(QLatin1String("xx")), QLatin1String("xx"));
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
    QVERIFY(Languages::setCurrent(QLatin1String("ar")));
    const QString text = pluginText("IDS_CANCEL");
    QVERIFY(!Languages::setCurrent(QLatin1String("xx")));
    QVERIFY(!Languages::setCurrent(QString()));
    QVERIFY(!Languages::setCurrent(QLatin1String("../translations/de")));
    QCOMPARE(Languages::current(), QLatin1String("ar"));
    QCOMPARE(pluginText("IDS_CANCEL"), text);
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
}

void LanguagesTest::arabicTurnsTheLayoutAndBack()
{
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(Languages::setCurrent(QLatin1String("ar")));
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QVERIFY(Languages::isRightToLeft(QLatin1String("ar")));
    QVERIFY(!Languages::isRightToLeft(QLatin1String("de")));
}

void LanguagesTest::theDefaultLocaleFollows()
{
    QVERIFY(Languages::setCurrent(QLatin1String("fr")));
    QCOMPARE(QLocale().language(), QLocale::French);
}

void LanguagesTest::otherThreadsMayAskDuringAChange()
{
    Reader readers[2];
    QStringList possible;
    for (const QString &code : Languages::codes()) {
        QVERIFY(Languages::setCurrent(code));
        possible << pluginText("IDS_BUTTON_SEND");
    }
    for (Reader &reader : readers) {
        reader.possible = possible;
        reader.start();
    }
    for (int round = 0; round < 30; ++round) {
        for (const QString &code : Languages::codes())
            QVERIFY(Languages::setCurrent(code));
    }
    for (Reader &reader : readers) {
        QTRY_VERIFY(reader.asked > 0);
        reader.stop = true;
        QVERIFY(reader.wait(10000));
        QCOMPARE(reader.strange.load(), 0);
    }
}

USSD_TEST_MAIN(LanguagesTest)
#include "languages_test.moc"
