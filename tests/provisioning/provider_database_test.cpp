#include "OddFiles.h"
#include "ProviderDatabase.h"
#include "UssdTest.h"

using namespace Provisioning;

/// Tests the database parser with valid, malformed and malicious files.
class ProviderDatabaseTest : public UssdTest
{
    Q_OBJECT

private slots:
    void readsNamesNetworksAndCodes();
    void replacementIsReadAndNotAssumed();
    void nameWithoutALanguageIsTheName();
    void passesOverWhatItDoesNotKnow();
    void complainsWithLineAndColumn();
    void refusedDocuments_data();
    void refusedDocuments();
    void missingFileIsSaid();
    void oddFilesAreRefused_data();
    void oddFilesAreRefused();
    void everyPrefixOfADatabaseIsReadOrRefused();
    void largeDatabaseIsReadInPieces();
};

namespace
{
QByteArray database(const QByteArray &countries)
{
    return "<?xml version='1.0'?>\n<serviceproviders format='2.0'>" + countries +
           "</serviceproviders>";
}

QByteArray provider(const QByteArray &gsm)
{
    return database("<country code='DE'><name>Germany</name><provider><name>One</name><gsm>" + gsm +
                    "</gsm></provider></country>");
}

QByteArray attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "='1'";
    return text;
}

const char RICH[] =
    "<network-id mcc='262' mnc='07'/><network-id mcc='262' mnc='007'/>"
    "<msisdn-query><ussd> *135#\n</ussd></msisdn-query>"
    "<balance-check><ussd>*101#</ussd><dtmf>800</dtmf><sms text='SALDO'>18258</sms>"
    "<ussd-response>4</ussd-response></balance-check>"
    "<balance-top-up><ussd replacement='PIN'>*103*PIN#</ussd></balance-top-up>"
    "<apn value='internet'><plan type='prepaid'/><name>Not the operator</name></apn>";
} // namespace

void ProviderDatabaseTest::readsNamesNetworksAndCodes()
{
    const ProviderDatabase read = readProviderDatabase(provider(RICH));
    QCOMPARE(read.error, QString());
    QCOMPARE(read.complaints.count(), 0);
    QCOMPARE(read.providers.count(), 1);
    const Provider one = read.providers.first();
    QCOMPARE(one.name(), QString::fromLatin1("One"));
    QCOMPARE(one.names.count(), 1);
    QCOMPARE(one.country, QString::fromLatin1("de"));
    QCOMPARE(one.countryName, QString::fromLatin1("Germany"));
    QCOMPARE(one.networks, QStringList()
                               << QString::fromLatin1("26207") << QString::fromLatin1("262007"));
    QCOMPARE(one.ownNumber.value(0).code, QString::fromLatin1("*135#"));
    QCOMPARE(one.balance.count(), 4);
    QCOMPARE(one.balance.at(0).way, ProviderCode::Ussd);
    QCOMPARE(one.balance.at(1).way, ProviderCode::Dtmf);
    QCOMPARE(one.balance.at(2).way, ProviderCode::Sms);
    QCOMPARE(one.balance.at(2).smsText, QString::fromLatin1("SALDO"));
    QCOMPARE(one.balance.at(3).way, ProviderCode::UssdResponse);
}

void ProviderDatabaseTest::replacementIsReadAndNotAssumed()
{
    const ProviderDatabase read = readProviderDatabase(
        provider("<balance-top-up><ussd replacement='PIN'>*1*PIN#</ussd>"
                 "<ussd>*1*CODE#</ussd><ussd replacement=''>*1*CODE#</ussd></balance-top-up>"));
    const QList<ProviderCode> codes = read.providers.value(0).topUp;
    QCOMPARE(codes.count(), 3);
    QCOMPARE(codes.at(0).replacement, QString::fromLatin1("PIN"));
    QVERIFY(codes.at(0).takesInput);
    QVERIFY(!codes.at(1).takesInput);
    QVERIFY(codes.at(2).takesInput && codes.at(2).replacement.isEmpty());
}

void ProviderDatabaseTest::nameWithoutALanguageIsTheName()
{
    const ProviderDatabase read = readProviderDatabase(
        database("<country code='ru'><provider><name xml:lang='ru'>\xd0\x9c\xd0\xa2\xd0\xa1</name>"
                 "<name>MTS</name></provider></country>"));
    QCOMPARE(read.providers.value(0).name(), QString::fromLatin1("MTS"));
    QCOMPARE(read.providers.value(0).names.at(0).language, QString::fromLatin1("ru"));
}

void ProviderDatabaseTest::passesOverWhatItDoesNotKnow()
{
    const ProviderDatabase read = readProviderDatabase(
        provider("<novelty><ussd>*999#</ussd><gsm/></novelty>"
                 "<balance-check><carrier>x</carrier><ussd>*1#</ussd></balance-check>"));
    QCOMPARE(read.providers.value(0).balance.count(), 1);
    QCOMPARE(read.providers.value(0).balance.at(0).code, QString::fromLatin1("*1#"));
}

void ProviderDatabaseTest::complainsWithLineAndColumn()
{
    const ProviderDatabase read = readProviderDatabase(
        provider("\n\n  <network-id mcc='26' mnc='07'/><balance-check>\n<ussd> </ussd>"
                 "</balance-check>"));
    QCOMPARE(read.complaints.count(), 2);
    QCOMPARE(read.complaints.at(0).line, qint64(4));
    QVERIFY(read.complaints.at(0).column > 2);
    QVERIFY(read.complaints.at(0).text.contains(QLatin1String("\"26\"")));
    QCOMPARE(read.complaints.at(1).line, qint64(5));
    QVERIFY(read.providers.value(0).networks.isEmpty());
    QVERIFY(!read.providers.value(0).hasCodes());
}

void ProviderDatabaseTest::refusedDocuments_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("why");
    const QString wellFormed = QLatin1String("line ");
    QTest::newRow("empty") << QByteArray() << wellFormed;
    QTest::newRow("cut off") << provider(RICH).left(300) << wellFormed;
    QTest::newRow("no XML") << QByteArray("balance *101#") << wellFormed;
    QTest::newRow("other root") << QByteArray("<apns/>")
                                << QString::fromLatin1("no database of mobile operators");
    QTest::newRow("other format") << QByteArray("<serviceproviders format='1.0'/>")
                                  << QString::fromLatin1("another format");
    QTest::newRow("no format") << QByteArray("<serviceproviders/>")
                               << QString::fromLatin1("another format");
    QTest::newRow("entities") << QByteArray("<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&b;&b;'>]>") +
                                     database("&d;")
                              << QString::fromLatin1("entities of its own");
    QTest::newRow("entity of another file")
        << provider("<balance-check><ussd>*10&bad;3#</ussd></balance-check>")
               .replace("<serviceproviders",
                        "<!DOCTYPE serviceproviders SYSTEM 'other.dtd'><serviceproviders")
        << QString::fromLatin1("Entity 'bad' not declared");
    QTest::newRow("deep") << provider(QByteArray("<a>").repeated(100000))
                          << QString::fromLatin1("nested too deeply");
    QTest::newRow("huge tag") << provider("<balance-check><ussd " + attributes(60000) +
                                          ">*1#</ussd></balance-check>")
                              << QString::fromLatin1("A tag or comment is longer than 64 KB.");
    QTest::newRow("huge comment") << provider("<!--" + QByteArray(100000, 'a') + "-->")
                                  << QString::fromLatin1("A tag or comment is longer than 64 KB.");
    QTest::newRow("deep text") << provider("<balance-check><ussd>" +
                                           QByteArray("<a>").repeated(100000))
                               << QString::fromLatin1("nested too deeply");
    QTest::newRow("not UTF-8") << provider("<balance-check><ussd>\xff\xfe</ussd></balance-check>")
                               << wellFormed;
}

void ProviderDatabaseTest::refusedDocuments()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, why);
    const ProviderDatabase read = readProviderDatabase(xml);
    QVERIFY2(read.error.contains(why), qPrintable(read.error));
    QVERIFY(read.providers.isEmpty());
}

void ProviderDatabaseTest::missingFileIsSaid()
{
    const ProviderDatabase read = readProviderDatabaseFile(folder() + QLatin1String("/none.xml"));
    QVERIFY(!read.error.isEmpty());
}

void ProviderDatabaseTest::oddFilesAreRefused_data()
{
    OddFiles::addColumns(64 << 20);
}

void ProviderDatabaseTest::oddFilesAreRefused()
{
    const QString path = folder() + QLatin1String("/odd.xml");
    const QString why = OddFiles::make(path);
    QCOMPARE(readProviderDatabaseFile(path).error, why);
}

void ProviderDatabaseTest::everyPrefixOfADatabaseIsReadOrRefused()
{
    const QByteArray whole = provider(RICH);
    for (int length = 0; length < whole.size(); ++length) {
        const ProviderDatabase read = readProviderDatabase(whole.left(length));
        QVERIFY2(!read.error.isEmpty() && read.providers.isEmpty(),
                 qPrintable(QString::number(length)));
    }
}

/// Tests that a large file, which is read in chunks, is read completely and only once. A euro sign
/// has three bytes, so some euro signs are split between two chunks.
void ProviderDatabaseTest::largeDatabaseIsReadInPieces()
{
    QByteArray gsm = "<!--" + QByteArray(60000, 'a') + "--><balance-check>\n";
    for (int i = 0; i < 20000; ++i)
        gsm += "<sms text='\xe2\x82\xac'>" + QByteArray::number(i) + "</sms>\n";
    gsm += "</balance-check><network-id mcc='1' mnc='1'/>";
    const ProviderDatabase read = readProviderDatabase(provider(gsm));
    QCOMPARE(read.error, QString());
    const QList<ProviderCode> codes = read.providers.value(0).balance;
    QCOMPARE(codes.count(), 20000);
    for (int i = 0; i < codes.count(); ++i) {
        QCOMPARE(codes.at(i).code, QString::number(i));
        QCOMPARE(codes.at(i).smsText, QString(QChar(0x20ac)));
        QCOMPARE(codes.at(i).line, qint64(i + 3));
    }
    QCOMPARE(read.complaints.value(0).line, qint64(20003));
}

USSD_TEST_MAIN(ProviderDatabaseTest)
#include "provider_database_test.moc"
