#include "Catalogue.h"
#include "UssdTest.h"

#include <QDirIterator>
#include <QFile>

/// Tests the language files, and the checks that this test applies to them.
class TranslationsTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUpClass() override;

private slots:
    void everyLanguageHasAFile();
    void fileIsWellFormed_data() { addLanguages(); }
    void fileIsWellFormed();
    void noKeyStandsTwice_data() { addLanguages(); }
    void noKeyStandsTwice();
    void nothingIsUnfinished_data() { addLanguages(); }
    void nothingIsUnfinished();
    void keysAreThoseOfEnglish_data() { addLanguages(); }
    void keysAreThoseOfEnglish();
    void keysOfCodeAndDataAreThere_data() { addLanguages(); }
    void keysOfCodeAndDataAreThere();
    void placeholdersAreThoseOfEnglish_data() { addLanguages(); }
    void placeholdersAreThoseOfEnglish();
    void captionsEndInASeparator_data() { addLanguages(); }
    void captionsEndInASeparator();
    void arabicCaptionsEndInALeftToRightMark();
    void arabicCodesReadFromLeftToRight();
    void mnemonicsOfAWindowDiffer_data() { addLanguages(); }
    void mnemonicsOfAWindowDiffer();

    void damagedFileIsFound();
    void keyThatStandsTwiceIsFound();
    void unfinishedTextIsFound();
    void missingKeyIsFound();
    void otherPlaceholderIsFound();
    void unmarkedCodeIsFound();
    void clashingMnemonicIsFound();
    void keysOfCodeAreFound();
    void keysOfDataAreFound();

private:
    void addLanguages();
    Catalogue current() const;
    static Catalogue sample(const QByteArray &messages);

    QStringList m_usedKeys;
    QMap<QString, Catalogue> m_catalogues;
};

namespace
{
const QString ROOT = QString::fromUtf8(USSD_SOURCE_DIR);
const QString ENGLISH = QLatin1String("en");
const QString PLUGIN = QLatin1String("USSDUIPlugin");

QStringList languages()
{
    return QString::fromLatin1("en de fr es pt pt_BR ru ar zh").split(QLatin1Char(' '));
}

QStringList filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator it(ROOT + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}

QStringList keysInUse()
{
    const QStringList code = QStringList() << QLatin1String("*.cpp") << QLatin1String("*.h");
    const QStringList data = QStringList() << QLatin1String("*.xml");
    QStringList keys;
    for (const QString &file : filesBelow(QLatin1String("/src"), code))
        keys << SourceKeys::ofCode(QString::fromUtf8(contentOf(file)));
    for (const QString &file : filesBelow(QLatin1String("/plugins"), data))
        keys << SourceKeys::ofData(QString::fromUtf8(contentOf(file)));
    keys.removeDuplicates();
    return keys;
}

QStringList keys(const char *blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

/// Returns the text keys of the push buttons, one list for each window.
QList<QStringList> windows()
{
    return QList<QStringList>()
           << keys("IDS_BUTTON_SEND IDC_BUTTON_CLEARHISTOTY IDC_GENERAL_CLOSE "
                   "IDC_TITLE_EDITCOMMAND")
           << keys("IDC_CMDEDIT_SAVE IDS_BUTTON_CANCEL") << keys("IDS_YES IDS_NO")
           << keys("IDS_OK IDS_CANCEL")
           << keys("IDS_BUTTON_UPDATA IDS_BUTTON_ACTIVATE IDS_BUTTON_UPDATAMSISDN "
                   "IDS_BUTTON_CLOSE");
}

QByteArray message(const char *key, const char *text)
{
    return QByteArray("<message><source>") + key + "</source><translation>" + text +
           "</translation></message>";
}
} // namespace

#define NO_COMPLAINTS(list) QVERIFY2((list).isEmpty(), qPrintable((list).join(QLatin1String("\n"))))

void TranslationsTest::setUpClass()
{
    m_usedKeys = keysInUse();
    for (const QString &language : languages())
        m_catalogues.insert(language,
                            Catalogue::fromXml(contentOf(ROOT + QLatin1String("/translations/") +
                                                         language + QLatin1String(".ts"))));
}

void TranslationsTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

Catalogue TranslationsTest::current() const
{
    QFETCH(QString, language);
    return m_catalogues.value(language);
}

Catalogue TranslationsTest::sample(const QByteArray &messages)
{
    return Catalogue::fromXml("<TS><context><name>USSDUIPlugin</name>" + messages +
                              "</context></TS>");
}

// ---- the files ---------------------------------------------------------------------------------

void TranslationsTest::everyLanguageHasAFile()
{
    QStringList found;
    for (const QString &file :
         filesBelow(QLatin1String("/translations"), QStringList() << QLatin1String("*.ts")))
        found << QFileInfo(file).completeBaseName();
    QStringList expected = languages();
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void TranslationsTest::fileIsWellFormed()
{
    NO_COMPLAINTS(current().complaints());
    QVERIFY(current().entries().size() > 90);
}

void TranslationsTest::noKeyStandsTwice()
{
    NO_COMPLAINTS(current().keysTwice());
}

void TranslationsTest::nothingIsUnfinished()
{
    NO_COMPLAINTS(current().unfinished());
}

void TranslationsTest::keysAreThoseOfEnglish()
{
    const Catalogue english = m_catalogues.value(ENGLISH);
    NO_COMPLAINTS(current().missing(english.texts().keys()));
    NO_COMPLAINTS(english.missing(current().texts().keys()));
}

void TranslationsTest::keysOfCodeAndDataAreThere()
{
    QVERIFY(m_usedKeys.contains(QLatin1String("USSDUIPlugin/IDS_PROFILE_BALANCE")));
    NO_COMPLAINTS(current().missing(m_usedKeys));
}

void TranslationsTest::placeholdersAreThoseOfEnglish()
{
    NO_COMPLAINTS(current().otherPlaceholders(m_catalogues.value(ENGLISH)));
}

void TranslationsTest::captionsEndInASeparator()
{
    for (const QString &key : keys("IDS_USSD_SEND IDS_USSD_RECEIVED")) {
        QString caption = current().text(PLUGIN, key);
        caption.remove(QChar(0x200E));
        QVERIFY2(caption.endsWith(QLatin1String(": ")), qPrintable(caption));
    }
}

void TranslationsTest::arabicCaptionsEndInALeftToRightMark()
{
    const Catalogue arabic = m_catalogues.value(QLatin1String("ar"));
    QVERIFY(arabic.text(PLUGIN, QLatin1String("IDS_USSD_SEND")).endsWith(QChar(0x200E)));
    QVERIFY(arabic.text(PLUGIN, QLatin1String("IDS_USSD_RECEIVED")).endsWith(QChar(0x200E)));
}

void TranslationsTest::arabicCodesReadFromLeftToRight()
{
    NO_COMPLAINTS(m_catalogues.value(QLatin1String("ar")).unmarkedCodes());
}

void TranslationsTest::mnemonicsOfAWindowDiffer()
{
    for (const QStringList &window : windows())
        NO_COMPLAINTS(current().clashingMnemonics(window));
}

// ---- the checks themselves ---------------------------------------------------------------------

void TranslationsTest::damagedFileIsFound()
{
    QCOMPARE(Catalogue::fromXml("<TS>\n<context>\n</TS>").complaints().size(), 1);
}

void TranslationsTest::keyThatStandsTwiceIsFound()
{
    QCOMPARE(sample(message("A", "a") + message("B", "b") + message("A", "c")).keysTwice(),
             QStringList() << QLatin1String("USSDUIPlugin/A"));
}

void TranslationsTest::unfinishedTextIsFound()
{
    const Catalogue catalogue =
        sample(message("A", "a") + message("B", " ") +
               "<message><source>C</source><translation type=\"unfinished\">c</translation>"
               "</message>");
    QCOMPARE(catalogue.unfinished(),
             QStringList() << QLatin1String("USSDUIPlugin/B") << QLatin1String("USSDUIPlugin/C"));
}

void TranslationsTest::missingKeyIsFound()
{
    const QStringList wanted = QStringList()
                               << QLatin1String("USSDUIPlugin/A") << QLatin1String("Dashboard/A");
    QCOMPARE(sample(message("A", "a")).missing(wanted), QStringList()
                                                            << QLatin1String("Dashboard/A"));
}

void TranslationsTest::otherPlaceholderIsFound()
{
    const Catalogue english = sample(message("A", "%1 of %2") + message("B", "%s"));
    QVERIFY(
        sample(message("A", "%2, %1") + message("B", "b %s")).otherPlaceholders(english).isEmpty());
    QCOMPARE(sample(message("A", "%1 of %3")).otherPlaceholders(english).size(), 1);
    QCOMPARE(sample(message("B", "s")).otherPlaceholders(english).size(), 1);
    QCOMPARE(sample(message("B", "%s %s")).otherPlaceholders(english).size(), 1);
}

void TranslationsTest::unmarkedCodeIsFound()
{
    QCOMPARE(sample(message("A", "a *100# b")).unmarkedCodes().size(), 1);
    QCOMPARE(sample(message("A", "a &#x200e;*100# b")).unmarkedCodes().size(), 1);
    QCOMPARE(sample(message("A", "a %s b")).unmarkedCodes().size(), 1);
    QVERIFY(sample(message("A", "a &#x200e;*100#&#x200e; b")).unmarkedCodes().isEmpty());
}

void TranslationsTest::clashingMnemonicIsFound()
{
    const Catalogue catalogue =
        sample(message("A", "&amp;Send") + message("B", "&amp;Close") + message("C", "Clo&amp;se"));
    QVERIFY(catalogue.clashingMnemonics(keys("A B")).isEmpty());
    QCOMPARE(catalogue.clashingMnemonics(keys("A B C")), QStringList() << QLatin1String("A and C"));
}

void TranslationsTest::keysOfCodeAreFound()
{
    QCOMPARE(SourceKeys::ofCode(QLatin1String(
                 "tr(key(\"IDS_OK\")); f(\"USSD_CODE_FAILED\"); dashboardText(\n  \"TITLE\")")),
             QStringList() << QLatin1String("USSDUIPlugin/IDS_OK")
                           << QLatin1String("USSDUIPlugin/USSD_CODE_FAILED")
                           << QLatin1String("Dashboard/TITLE"));
}

void TranslationsTest::keysOfDataAreFound()
{
    QCOMPARE(SourceKeys::ofData(QLatin1String("<langID>IDS_A</langID><control id=\"IDC_B\"/>")),
             QStringList() << QLatin1String("USSDUIPlugin/IDS_A")
                           << QLatin1String("USSDUIPlugin/IDC_B"));
}

USSD_TEST_MAIN(TranslationsTest)
#include "translations_test.moc"
