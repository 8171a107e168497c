#include <QFile>

#include <cstdio>

#include "account/ReplyReading.h"
#include "Languages.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const char *const VALUES[] = {"balance", "validity", "number", "data"};
const int FEWEST_REPLIES = 200;

/// The minimum share of the values in the corpus that must be read. If a change increases the
/// share, update this constant and docs/dashboard.md.
const int LEAST_RECALL = 95; // percent

/** A reply from the corpus, and the values that it contains, by the name of the value. */
struct Wording {
    int line = 0;
    QString text;
    QMap<QString, QString> told;
};

QList<Wording> corpus()
{
    QList<Wording> wordings;
    QFile file(QLatin1String(REPLY_CORPUS));
    if (!file.open(QIODevice::ReadOnly))
        return wordings;
    int number = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        ++number;
        const QString value = line.trimmed();
        if (line.startsWith(QLatin1Char('#')) || value.isEmpty())
            continue;
        if (line.startsWith(QLatin1Char(' '))) {
            wordings.last().told.insert(value.section(QLatin1Char(' '), 0, 0),
                                        value.section(QLatin1Char(' '), 1));
            continue;
        }
        Wording wording;
        wording.line = number;
        wording.text =
            line.section(QLatin1String(": "), 1).replace(QLatin1String("\\n"), QLatin1String("\n"));
        wordings << wording;
    }
    return wordings;
}

QString shown(qint64 bytes)
{
    const qint64 mega = qint64(1024) * 1024;
    const bool isGiga = bytes % mega != 0 || bytes / mega % 1024 == 0 || bytes > 1100 * mega;
    const qint64 unit = isGiga && bytes > 760 * mega ? 1024 * mega : mega;
    return QString::number(qRound64(double(bytes) / double(unit) * 10) / 10.0) +
           QLatin1String(unit == mega ? " MB" : " GB");
}

QString plain(const QString &volume)
{
    const QStringList words = volume.split(QLatin1Char(' '));
    const double size =
        words.value(0).toDouble() * (words.value(1) == QLatin1String("GB") ? 1024 : 1);
    return shown(qint64(size * 1024 * 1024));
}

/// Returns the data volume in a normalised form, for example "1 GB" for 1024 MB.
QString plainData(const QString &data)
{
    const QStringList parts = data.split(QLatin1String(" of "));
    return parts.size() == 2 ? plain(parts.at(0)) + QLatin1String(" of ") + plain(parts.at(1))
                             : plain(data);
}

QMap<QString, QString> valuesOf(const ReplyReading &reading)
{
    QMap<QString, QString> values;
    if (reading.amount)
        values.insert(QLatin1String("balance"),
                      plainAmount(*reading.amount) + QLatin1Char(' ') + reading.amount->currency);
    if (reading.date)
        values.insert(QLatin1String("validity"), reading.date->toString(Qt::ISODate));
    if (reading.number)
        values.insert(QLatin1String("number"), *reading.number);
    if (reading.data) {
        const DataVolume &data = *reading.data;
        values.insert(QLatin1String("data"),
                      data.total > 0 ? shown(data.left) + QLatin1String(" of ") + shown(data.total)
                                     : shown(data.left));
    }
    return values;
}

} // namespace

/**
 * Tests which values are read from the replies in the corpus. All values that are read must be
 * correct, and most of the values must be read.
 */
class ReplyReadingTest : public UssdTest
{
    Q_OBJECT
private slots:
    void noValueIsWrong();
    void mostValuesAreRead();
    void anEndlessReplyIsRead();
    void amountsKeepTheirDecimals();
    void amountsAreShownInTheLanguage();
};

void ReplyReadingTest::noValueIsWrong()
{
    const QList<Wording> wordings = corpus();
    QVERIFY(wordings.size() >= FEWEST_REPLIES);
    QStringList wrong;
    for (const Wording &wording : wordings) {
        const QMap<QString, QString> values = valuesOf(readReply(wording.text));
        for (const char *name : VALUES) {
            const QString key = QLatin1String(name);
            QString told = wording.told.value(key);
            if (key == QLatin1String("data") && !told.isEmpty())
                told = plainData(told);
            if (values.contains(key) && values.value(key) != told)
                wrong << QString::fromLatin1("line %1: %2 \"%3\", told \"%4\"")
                             .arg(wording.line)
                             .arg(key, values.value(key), told);
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void ReplyReadingTest::mostValuesAreRead()
{
    int told = 0;
    int read = 0;
    for (const Wording &wording : corpus()) {
        const QMap<QString, QString> values = valuesOf(readReply(wording.text));
        for (const QString &key : wording.told.keys()) {
            ++told;
            read += values.contains(key) ? 1 : 0;
            if (!values.contains(key))
                printf("line %d: %s is left\n", wording.line, qPrintable(key));
        }
    }
    QVERIFY(told > 0);
    const int recall = read * 100 / qMax(1, told);
    printf("%d of %d values are read, %d %%\n", read, told, recall);
    QVERIFY(recall >= LEAST_RECALL);
}

void ReplyReadingTest::anEndlessReplyIsRead()
{
    const QString part = QLatin1String("Balance: 12.50 EUR, 1.8 GB, +999550123456, 31.12.2027, ");
    const ReplyReading reading = readReply(part.repeated(100));
    QVERIFY(reading.amount);
    QVERIFY(readReply(QString(20000, QLatin1Char('1'))).amount == std::nullopt);
    QVERIFY(readReply(QString()).amount == std::nullopt);
}

void ReplyReadingTest::amountsKeepTheirDecimals()
{
    Money money;
    QVERIFY(readPlainAmount(QLatin1String("12.50"), &money));
    QCOMPARE(money.units, qint64(125000));
    QCOMPARE(plainAmount(money), QLatin1String("12.50"));
    QVERIFY(readPlainAmount(QLatin1String("-0,5"), &money));
    QCOMPARE(plainAmount(money), QLatin1String("-0.5"));
    for (const char *bad : {"", "-", ".5", "1.2.3", "1.23456", "12a", "1234567890123"})
        QVERIFY2(!readPlainAmount(QLatin1String(bad), &money), bad);
}

void ReplyReadingTest::amountsAreShownInTheLanguage()
{
    Money money;
    QVERIFY(readPlainAmount(QLatin1String("1250.50"), &money));
    money.currency = QLatin1String("EUR");
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("de")));
    QCOMPARE(amountText(money), QLatin1String("1.250,50"));
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("ar")));
    QCOMPARE(amountText(money), QLatin1String("1,250.50"));
    QVERIFY(moneyText(money).startsWith(QChar(0x2066)));
}

USSD_TEST_MAIN(ReplyReadingTest)
#include "reply_reading_test.moc"
