#include "ProfileStoreTest.h"

#include <QBuffer>

#include <random>

#include "ProfileXml.h"

namespace
{

QByteArray written(const QList<USSDProfile> &profiles)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly | QIODevice::Text);
    ProfileXml::write(buffer, profiles);
    return buffer.data();
}

QByteArray describe(const USSDProfile &profile)
{
    QString fields;
    for (const QString &text : {profile.name, profile.value, profile.langID, profile.desLangID}) {
        for (QChar unit : text)
            fields += QString::number(unit.unicode(), 16) + QLatin1Char(' ');
        fields += QLatin1String("| ");
    }
    return fields.toLatin1();
}

quint32 seedOfThisRun()
{
    const QByteArray chosen = qgetenv("USSD_TEST_SEED");
    const quint32 seed = chosen.isEmpty() ? 20260102u : chosen.toUInt();
    qInfo("seed: USSD_TEST_SEED=%u", seed);
    return seed;
}

/// Returns a random character that is valid in XML 1.0. Characters with a special meaning in XML or
/// Unicode are more frequent.
QString randomCharacter(std::mt19937 &random)
{
    static const char16_t special[] = {
        u'<',   u'>',   u'&',    u'"',    u'\'',   u'\t',   u'\n',   u'\r',  u' ',   u']',   u';',
        u'#',   u'*',   u'%',    0x7f,    0x85,    0xa0,    0xad,    0x200e, 0x200f, 0x2028, 0x2029,
        0x202e, 0xd7ff, 0xe000u, 0xfeffu, 0xfdd0u, 0xfffcu, 0xfffdu, 0x3042, 0x645u, 0x0660u};
    switch (random() % 4) {
    case 0:
        return QString(QChar(special[random() % (sizeof(special) / sizeof(special[0]))]));
    case 1: {
        const char32_t beyond = 0x10000 + random() % 0x100000;
        return QString::fromUcs4(&beyond, 1);
    }
    case 2:
        return QString(QChar(ushort(0x20 + random() % 0x5f)));
    default:
        return QString(QChar(ushort(0xa0 + random() % 0xd000)));
    }
}

QString randomText(std::mt19937 &random, int longest = 12)
{
    QString text;
    for (int i = int(random() % uint(longest + 1)); i > 0; --i)
        text += randomCharacter(random);
    return text;
}

QList<USSDProfile> randomProfiles(std::mt19937 &random)
{
    QList<USSDProfile> profiles;
    for (int i = int(random() % 8); i > 0; --i) {
        USSDProfile next = profile(randomText(random), randomText(random).trimmed());
        next.readonly = random() % 2 == 0;
        next.showButton = random() % 2 == 0;
        next.langID = randomText(random).trimmed();
        next.desLangID = randomText(random).trimmed();
        profiles << next;
    }
    return profiles;
}

} // namespace

/** Tests the format of a profile file, and that its fields can contain any text. */
class ProfileXmlTest : public ProfileStoreTest
{
    Q_OBJECT

private slots:
    // ---- form
    void formIsThatOfTheReader();
    void blanksAtTheEndsAreWrittenForNamesOnly();

    // ---- any text
    void randomListsSurvive();
    void carriageReturnsSurvive();
    void illegalCharactersAreLeftOut_data();
    void illegalCharactersAreLeftOut();
    void randomUnitsNeverMakeAnUnreadableFile();
};

// ---- form ---------------------------------------------------------------------------------------

void ProfileXmlTest::formIsThatOfTheReader()
{
    USSDProfile balance = profile(latin1("Balance"), latin1("*101#"));
    balance.showButton = true;
    QCOMPARE(QString::fromUtf8(written(QList<USSDProfile>() << balance)),
             latin1("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                    "<tksvdoc type=\"USSDProfile\">\n"
                    "    <item>\n"
                    "        <name>Balance</name>\n"
                    "        <value>*101#</value>\n"
                    "        <readonly>false</readonly>\n"
                    "        <showButton>true</showButton>\n"
                    "        <langID></langID>\n"
                    "        <desLangID></desLangID>\n"
                    "    </item>\n"
                    "</tksvdoc>\n"));
}

void ProfileXmlTest::blanksAtTheEndsAreWrittenForNamesOnly()
{
    USSDProfile padded = profile(latin1("  my name "), latin1(" *1# "));
    padded.langID = latin1("\tL ");
    padded.desLangID = latin1(" D\n");
    const USSDProfile read = readBack(written(QList<USSDProfile>() << padded)).value(0);
    QCOMPARE(read.name, latin1("  my name "));
    QCOMPARE(read.value, latin1("*1#"));
    QCOMPARE(read.langID, latin1("L"));
    QCOMPARE(read.desLangID, latin1("D"));
}

// ---- any text -----------------------------------------------------------------------------------

void ProfileXmlTest::randomListsSurvive()
{
    std::mt19937 random(seedOfThisRun());
    int texts = 0;
    for (int round = 0; round < 3000; ++round) {
        const QList<USSDProfile> profiles = randomProfiles(random);
        QString error;
        const QList<USSDProfile> read = readBack(written(profiles), &error);
        QCOMPARE(error, QString());
        QCOMPARE(read.count(), profiles.count());
        for (int i = 0; i < profiles.count(); ++i) {
            texts += profiles.at(i).name.length();
            QVERIFY2(read.at(i) == profiles.at(i),
                     "written " + describe(profiles.at(i)) + "\nread    " + describe(read.at(i)));
        }
    }
    QVERIFY(texts > 1000);
}

/// Tests that carriage returns are written as character references. Otherwise, an XML parser would
/// convert them to line feeds.
void ProfileXmlTest::carriageReturnsSurvive()
{
    const QList<USSDProfile> profiles = QList<USSDProfile>()
                                        << profile(latin1("a\r\nb"), latin1("*1#"));
    QString error;
    QCOMPARE(readBack(written(profiles), &error).value(0).name, latin1("a\r\nb"));
    QCOMPARE(error, QString());
}

void ProfileXmlTest::illegalCharactersAreLeftOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    const QString high(QChar(0xd83d));
    const QString low(QChar(0xde00));
    for (ushort unit : {0x00, 0x01, 0x08, 0x0b, 0x0c, 0x0e, 0x1b, 0x1f, 0xfffe, 0xffff})
        QTest::newRow(qPrintable(QString::number(unit, 16)))
            << latin1("a") + QChar(unit) + latin1("b") << latin1("ab");
    QTest::newRow("high half") << latin1("a") + high + latin1("b") << latin1("ab");
    QTest::newRow("low half") << latin1("a") + low + latin1("b") << latin1("ab");
    QTest::newRow("halves swapped") << latin1("a") + low + high + latin1("b") << latin1("ab");
    QTest::newRow("high half at the end") << latin1("a") + high << latin1("a");
    QTest::newRow("both halves") << latin1("a") + high + low << latin1("a") + high + low;
}

void ProfileXmlTest::illegalCharactersAreLeftOut()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    USSDProfile odd = profile(text, text);
    odd.langID = odd.desLangID = text;
    QString error;
    const QList<USSDProfile> profiles = readBack(
        written(QList<USSDProfile>() << odd << profile(latin1("next"), QString())), &error);
    QCOMPARE(error, QString());
    QCOMPARE(profiles.count(), 2);
    QCOMPARE(profiles.at(0).name, read);
    QCOMPARE(profiles.at(0).value, read);
    QCOMPARE(profiles.at(0).langID, read);
    QCOMPARE(profiles.at(0).desLangID, read);
    QCOMPARE(profiles.at(1).name, latin1("next"));
}

void ProfileXmlTest::randomUnitsNeverMakeAnUnreadableFile()
{
    std::mt19937 random(seedOfThisRun());
    for (int round = 0; round < 500; ++round) {
        QList<USSDProfile> profiles;
        for (int i = 0; i < 4; ++i) {
            QString text;
            for (int units = int(random() % 20); units > 0; --units)
                text += QChar(ushort(random() % 2 ? random() % 0x40 : random() % 0x10000));
            profiles << profile(text, text);
        }
        QString error;
        const QList<USSDProfile> read = readBack(written(profiles), &error);
        QVERIFY2(error.isEmpty(), describe(profiles.first()) + error.toUtf8());
        QCOMPARE(read.count(), profiles.count());
    }
}

USSD_TEST_MAIN(ProfileXmlTest)

#include "profile_xml_test.moc"
