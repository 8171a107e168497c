#include "ForwardXml.h"
#include "SmsLayout.h"
#include "UssdTest.h"

#include <QBuffer>
#include <QFile>
#include <QScopedPointer>
#include <QWidget>
#include <QXmlStreamReader>

using namespace Formats;

/**
 * Tests the parser of the USSD-SMS dialog's layout section, including malformed and malicious
 * files.
 */
class SmsLayoutTest : public UssdTest
{
    Q_OBJECT

protected:
    void setUp() override { m_layout.reset(new SmsLayout); }

private:
    bool read(const QByteArray &document);
    bool readSection(const QByteArray &inside);
    bool complained(const char *part) const;
    const CWidgetItemInfo *onlyControl();
    const CWidgetItemInfo *readControl(const QByteArray &control);
    static QByteArray rootAnd(const QByteArray &entries);
    static QByteArray entry(int number, int parent = 0);
    static QByteArray group(int number, const QByteArray &controls);

    QScopedPointer<SmsLayout> m_layout;

private slots:
    // ---- valid files
    void dialogAndTreeSizesAreRead();
    void sectionIsFoundAnywhereInTheFile();
    void partsMayStandInAnyOrder();
    void unknownElementsAreSkipped();
    void entryKeepsItsNumbersAndText();
    void secondRootIsDropped();
    void rootInOtherLettersIsNone_data();
    void rootInOtherLettersIsNone();
    void twentySixthOrdinaryEntryIsDropped();
    void replacingEntriesCountToo();
    void entryBeforeTheRootIsDropped();
    void entryBelowAnotherThanTheRootIsDropped();
    void laterEntryWithTheSameNumberReplacesTheEarlier();
    void groupIsStoredUnderItsParent();
    void laterGroupOfTheSameEntryReplacesTheEarlier();
    void controlsKeepTheirOrder();
    void controlsFieldsAreRead();
    void otherElementsOfAControlAreSkipped();
    void controlWithoutVisibleIsVisible();
    void visibleInCapitalsIsVisible();
    void onlyExactFalseHides();
    void kindFollowsType_data();
    void kindFollowsType();
    void typeUssdInCapitalsHasKindOne();
    void shippedFileIsReadWithoutComplaints();
    void clearForgetsEverything();

    // ---- unusable values
    void textInPlaceOfANumberIsZero();
    void numberOfAMillionDigitsIsZero();
    void numbersBeyondAnyScreenStayUsable();
    void negativeSizesStayUsable();
    void hugeNumbersAreMirroredWithoutOverflow();
    void brokenFileKeepsWhatWasRead();
    void groupWithoutItsEndIsDropped();
    void faultIsNamedBeforeAllElse();
    void emptyFileIsAFault();
    void tenThousandControlsCostNoMemory();
    void tenThousandGroupsCostNoMemory();
    void groupWithTooFewControlsIsComplainedAbout();
    void groupWithoutEntryIsComplainedAbout();
    void tenThousandComplaintsAreCounted();
    void deepNestingEnds();
    void deepNestingInAControlEnds_data();
    void deepNestingInAControlEnds();
    void deepNestingOutsideTheSectionEnds();
    void textWithAnUnknownEntityIsNotTaken();
    void entityBombIsRefused();
    void longTextIsTakenWhole();
    void complaintsQuoteLittle();

    // ---- input patterns
    void patternIsMadeOfLimitTextAndLength_data();
    void patternIsMadeOfLimitTextAndLength();
    void limitTextThatIsNoClassIsLeftOut_data();
    void limitTextThatIsNoClassIsLeftOut();
    void endlessLimitTextIsLeftOut();
    void lengthsOutOfRangeAreBounded_data();
    void lengthsOutOfRangeAreBounded();
    void longestClassWithHighestLengthIsQuick();

    // ---- geometry
    void mirroringMeasuresFromTheOtherSide();
};

bool SmsLayoutTest::read(const QByteArray &document)
{
    QXmlStreamReader reader;
    ForwardXml::start(reader, document);
    return SmsLayoutFile::read(reader, *m_layout);
}

bool SmsLayoutTest::readSection(const QByteArray &inside)
{
    return read("<config><SMSUSSD>" + inside + "</SMSUSSD></config>");
}

bool SmsLayoutTest::complained(const char *part) const
{
    return !m_layout->complaints.filter(QString::fromUtf8(part)).isEmpty();
}

QByteArray SmsLayoutTest::entry(int number, int parent)
{
    return "<item name='" + QByteArray::number(number) + "' parent='" + QByteArray::number(parent) +
           "' id='KEY_" + QByteArray::number(number) + "'/>";
}

QByteArray SmsLayoutTest::rootAnd(const QByteArray &entries)
{
    return "<Tree><item name='0' parent='0' id='ROOT' type='root'/>" + entries + "</Tree>";
}

QByteArray SmsLayoutTest::group(int number, const QByteArray &controls)
{
    const QByteArray text = QByteArray::number(number);
    return "<Dialog><item name='" + text + "' parent='" + text + "'>" + controls +
           "</item></Dialog>";
}

const CWidgetItemInfo *SmsLayoutTest::onlyControl()
{
    const CWidget *controls = m_layout->groups.value(1);
    return controls && controls->controls.count() == 1 ? controls->controls.first() : nullptr;
}

/// Returns the only control of the only group, or null if no control was read.
const CWidgetItemInfo *SmsLayoutTest::readControl(const QByteArray &control)
{
    m_layout.reset(new SmsLayout);
    readSection(rootAnd(entry(1)) + group(1, control));
    return onlyControl();
}

// ---- valid files -----------------------------------------------------------------------------

void SmsLayoutTest::dialogAndTreeSizesAreRead()
{
    QVERIFY(readSection("<MainSize width='520' height='360'/>"
                        "<TreeSize posx='10' posy='11' width='150' height='330'/>"));
    QCOMPARE(m_layout->dialog.width, 520);
    QCOMPARE(m_layout->dialog.height, 360);
    QCOMPARE(m_layout->tree.posx, 10);
    QCOMPARE(m_layout->tree.posy, 11);
    QCOMPARE(m_layout->tree.width, 150);
    QCOMPARE(m_layout->tree.height, 330);
    QVERIFY(m_layout->complaints.isEmpty());
}

void SmsLayoutTest::sectionIsFoundAnywhereInTheFile()
{
    QVERIFY(read("<config><MainSize width='1' height='2'/><item name='9'/><deep><SMSUSSD>"
                 "<MainSize width='520' height='360'/></SMSUSSD></deep>"
                 "<MainSize width='3' height='4'/></config>"));
    QCOMPARE(m_layout->dialog.width, 520);
    QCOMPARE(m_layout->dialog.height, 360);
}

void SmsLayoutTest::partsMayStandInAnyOrder()
{
    QVERIFY(readSection(group(1, "<control/>") + rootAnd(entry(1)) +
                        "<TreeSize width='7'/><MainSize width='8'/>"));
    QVERIFY(m_layout->groups.contains(1));
    QVERIFY(m_layout->entries.contains(1));
    QCOMPARE(m_layout->tree.width, 7);
    QCOMPARE(m_layout->dialog.width, 8);
}

void SmsLayoutTest::unknownElementsAreSkipped()
{
    QVERIFY(readSection("<note>text</note><Tree><other/><item name='4' type='root'><x/></item>"
                        "<other><y/></other></Tree><MainSize width='8'/>"));
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 4);
    QCOMPARE(m_layout->dialog.width, 8);
}

void SmsLayoutTest::entryKeepsItsNumbersAndText()
{
    QVERIFY(readSection("<Tree><item name='7' parent='3' id='ROOT' type='root'/>"
                        "<item name='-2' parent='7' id='KEY' type='leaf'/></Tree>"));
    QVERIFY(m_layout->hasRoot);
    QCOMPARE(m_layout->rootNumber, 7);
    QCOMPARE(m_layout->entries.keys(), QList<int>() << -2 << 7);
    const CTreeItem *root = m_layout->entries.value(7);
    QCOMPARE(root->parent, 3);
    QCOMPARE(root->isChild, 0);
    const CTreeItem *child = m_layout->entries.value(-2);
    QCOMPARE(child->number, -2);
    QCOMPARE(child->parent, 7);
    QCOMPARE(child->textId, QStringLiteral("KEY"));
    QCOMPARE(child->isChild, 1);
    QVERIFY(!child->treeWidgetItem);
}

void SmsLayoutTest::secondRootIsDropped()
{
    QVERIFY(readSection("<Tree><item name='1' id='FIRST' type='root'/>"
                        "<item name='2' id='SECOND' type='root'/>" +
                        entry(3, 1) + entry(4, 2) + "</Tree>"));
    QCOMPARE(m_layout->rootNumber, 1);
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 1 << 3);
    QVERIFY(complained("entry 2 is a second root"));
}

void SmsLayoutTest::rootInOtherLettersIsNone_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char *type : {"ROOT", "Root", " root", "root "})
        QTest::newRow(type) << QByteArray(type);
}

void SmsLayoutTest::rootInOtherLettersIsNone()
{
    QFETCH(QByteArray, type);
    QVERIFY(readSection("<Tree><item name='9' id='NONE' type='" + type + "'/>" +
                        "<item name='0' type='root'/>" + entry(1) + "</Tree>"));
    QVERIFY(m_layout->hasRoot);
    QCOMPARE(m_layout->rootNumber, 0);
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0 << 1);
    QVERIFY(complained("entry 9 is left out: it stands before the root"));
}

void SmsLayoutTest::twentySixthOrdinaryEntryIsDropped()
{
    QByteArray entries;
    for (int number = 1; number <= 26; ++number)
        entries += entry(number);
    QVERIFY(readSection(rootAnd(entries)));
    QCOMPARE(m_layout->entries.count(), 1 + 25);
    QVERIFY(m_layout->entries.contains(25));
    QVERIFY(!m_layout->entries.contains(26));
    QVERIFY(complained("entry 26 is left out: there are 25 already"));
}

void SmsLayoutTest::replacingEntriesCountToo()
{
    QByteArray entries;
    for (int i = 0; i < 25; ++i)
        entries += entry(1);
    QVERIFY(readSection(rootAnd(entries + entry(2))));
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0 << 1);
}

void SmsLayoutTest::entryBeforeTheRootIsDropped()
{
    QVERIFY(
        readSection("<Tree>" + entry(5) + "<item name='0' type='root'/>" + entry(6) + "</Tree>"));
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0 << 6);
    QVERIFY(complained("entry 5 is left out: it stands before the root"));
}

void SmsLayoutTest::entryBelowAnotherThanTheRootIsDropped()
{
    QVERIFY(readSection(rootAnd(entry(1) + entry(2, 1))));
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0 << 1);
    QVERIFY(complained("entry 2 is left out: its parent 1 is not the root"));
}

void SmsLayoutTest::laterEntryWithTheSameNumberReplacesTheEarlier()
{
    QVERIFY(readSection(rootAnd(entry(1) + "<item name='1' parent='0' id='LATER'/>")));
    QCOMPARE(m_layout->entries.value(1)->textId, QStringLiteral("LATER"));
    QVERIFY(complained("entry 1 replaces an earlier one"));
}

void SmsLayoutTest::groupIsStoredUnderItsParent()
{
    QVERIFY(readSection("<Dialog><item name='9' parent='4'><control/></item></Dialog>"));
    QCOMPARE(m_layout->groups.keys(), QList<int>() << 4);
    QCOMPARE(m_layout->groups.value(4)->number, 9);
}

void SmsLayoutTest::laterGroupOfTheSameEntryReplacesTheEarlier()
{
    QVERIFY(readSection("<Dialog><item name='8' parent='4'><control/></item>"
                        "<item name='9' parent='4'/></Dialog>"));
    QCOMPARE(m_layout->groups.value(4)->number, 9);
    QVERIFY(m_layout->groups.value(4)->controls.isEmpty());
    QVERIFY(complained("the group of entry 4 replaces an earlier one"));
}

void SmsLayoutTest::controlsKeepTheirOrder()
{
    QVERIFY(readSection(group(1, "<control id='A'/><control id='B'/><control id='C'/>")));
    QString ids;
    for (const CWidgetItemInfo *control : m_layout->groups.value(1)->controls)
        ids += control->id;
    QCOMPARE(ids, QStringLiteral("ABC"));
}

void SmsLayoutTest::controlsFieldsAreRead()
{
    const CWidgetItemInfo *control =
        readControl("<control id='KEY' posx='1' posy='-2' width='3' height='4' type='ussd'>"
                    "<number>1200</number><command>*1*%s#</command><minlenth>2</minlenth>"
                    "<length>9</length><LimitText>0-9</LimitText></control>");
    QVERIFY(control);
    QCOMPARE(control->id, QStringLiteral("KEY"));
    QCOMPARE(control->posx, 1);
    QCOMPARE(control->posy, -2);
    QCOMPARE(control->width, 3);
    QCOMPARE(control->height, 4);
    QCOMPARE(control->number, QStringLiteral("1200"));
    QCOMPARE(control->command, QStringLiteral("*1*%s#"));
    QCOMPARE(control->minLength, 2);
    QCOMPARE(control->length, 9);
    QCOMPARE(control->limitText, QStringLiteral("0-9"));
    QVERIFY(!control->widget);
}

void SmsLayoutTest::otherElementsOfAControlAreSkipped()
{
    const CWidgetItemInfo *control =
        readControl("<control><note><command>*9#</command></note><command>*1#</command>"
                    "<Command>*8#</Command><control><command>*7#</command></control></control>");
    QVERIFY(control);
    QCOMPARE(control->command, QStringLiteral("*1#"));
}

void SmsLayoutTest::controlWithoutVisibleIsVisible()
{
    QVERIFY(readControl("<control/>")->visible);
}

void SmsLayoutTest::visibleInCapitalsIsVisible()
{
    QVERIFY(readControl("<control visible='FALSE'/>")->visible);
}

void SmsLayoutTest::onlyExactFalseHides()
{
    QVERIFY(!readControl("<control visible='false'/>")->visible);
    QVERIFY(readControl("<control visible=' false'/>")->visible);
    QVERIFY(readControl("<control visible='0'/>")->visible);
    QVERIFY(readControl("<control visible=''/>")->visible);
}

void SmsLayoutTest::kindFollowsType_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("kind");
    QTest::newRow("none") << QByteArray() << 0;
    QTest::newRow("empty") << QByteArray("type=''") << 1;
    QTest::newRow("sms") << QByteArray("type='sms'") << 1;
    QTest::newRow("ussd") << QByteArray("type='ussd'") << 2;
}

void SmsLayoutTest::kindFollowsType()
{
    QFETCH(QByteArray, type);
    QTEST(readControl("<control " + type + "/>")->kind, "kind");
}

void SmsLayoutTest::typeUssdInCapitalsHasKindOne()
{
    QCOMPARE(readControl("<control type='USSD'/>")->kind, 1);
}

void SmsLayoutTest::shippedFileIsReadWithoutComplaints()
{
    QFile file(QStringLiteral(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QXmlStreamReader reader(&file);
    QVERIFY(SmsLayoutFile::read(reader, *m_layout));
    QCOMPARE(m_layout->complaints, QStringList());
    QCOMPARE(m_layout->entries.count(), 13);
    QCOMPARE(m_layout->groups.count(), 12);
    for (const CWidget *group : qAsConst(m_layout->groups))
        QCOMPARE(group->controls.count(), SmsLayoutFile::CONTROLS_OF_GROUP);
}

void SmsLayoutTest::clearForgetsEverything()
{
    readSection("<MainSize width='9' height='x'/><TreeSize width='9'/>" + rootAnd(entry(1)) +
                group(1, "<control/>"));
    m_layout->clear();
    QVERIFY(m_layout->entries.isEmpty() && m_layout->groups.isEmpty());
    QVERIFY(!m_layout->hasRoot && m_layout->complaints.isEmpty());
    QCOMPARE(m_layout->dialog.width + m_layout->tree.width + m_layout->ordinaryEntries, 0);
}

// ---- unusable values -------------------------------------------------------------------------

void SmsLayoutTest::textInPlaceOfANumberIsZero()
{
    QVERIFY(readSection("<MainSize width='wide' height='3.5'/><TreeSize posx='' posy='0x10'/>" +
                        rootAnd("<item name='one' parent='0'/>") +
                        group(1, "<control><length>many</length></control>")));
    QCOMPARE(m_layout->dialog.width, 0);
    QCOMPARE(m_layout->dialog.height, 0);
    QCOMPARE(m_layout->tree.posy, 0);
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0);
    QVERIFY(complained("line 1: width \"wide\" is not a number; 0 is used"));
    QVERIFY(complained("posx \"\" is not a number"));
    QVERIFY(complained("name \"one\" is not a number"));
    QVERIFY(complained("length \"many\" is not a number"));
}

void SmsLayoutTest::numberOfAMillionDigitsIsZero()
{
    const QByteArray digits(1000000, '9');
    const CWidgetItemInfo *control =
        readControl("<control posx='" + digits + "'><length>" + digits + "</length></control>");
    QCOMPARE(control->posx, 0);
    QCOMPARE(control->length, 0);
    QVERIFY(complained("posx \"9999"));
    QVERIFY(complained("length \"9999"));
}

void SmsLayoutTest::numbersBeyondAnyScreenStayUsable()
{
    const CWidgetItemInfo *control =
        readControl("<control posx='2147483647' posy='-2147483648' width='2147483647' "
                    "height='2147483647'/>");
    QCOMPARE(control->width, 2147483647); // as specified in the file
    const QRect place = SmsLayoutFile::geometry(*control, 500, false);
    QCOMPARE(place, QRect(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QVERIFY(complained("width 2147483647 is out of range"));
    readSection("<MainSize width='2147483647' height='100000'/>");
    QCOMPARE(SmsLayoutFile::windowSize(m_layout->dialog),
             QSize(SmsLayoutFile::MAX_WINDOW_SIDE, SmsLayoutFile::MAX_WINDOW_SIDE));
    QVERIFY(complained("MainSize 2147483647 x 100000 is out of range"));
}

void SmsLayoutTest::negativeSizesStayUsable()
{
    const CWidgetItemInfo *control =
        readControl("<control posx='-5' posy='7' width='-1' height='-2147483648'/>");
    QCOMPARE(SmsLayoutFile::geometry(*control, 500, false), QRect(-5, 7, 0, 0));
    QVERIFY(complained("width -1 is out of range"));
    readSection("<MainSize width='-3' height='-4'/>");
    QCOMPARE(SmsLayoutFile::windowSize(m_layout->dialog), QSize(0, 0));
    QVERIFY(complained("MainSize -3 x -4 is out of range"));
}

void SmsLayoutTest::hugeNumbersAreMirroredWithoutOverflow()
{
    CTreeInfo tree;
    tree.posx = -2147483647;
    tree.width = -2147483647;
    QCOMPARE(SmsLayoutFile::geometry(tree, 4096, true).x(), 4096 + QWIDGETSIZE_MAX);
    tree.posx = 2147483647;
    tree.width = 2147483647;
    QCOMPARE(SmsLayoutFile::geometry(tree, 0, true).x(), -2 * QWIDGETSIZE_MAX);
}

void SmsLayoutTest::brokenFileKeepsWhatWasRead()
{
    QVERIFY(!read("<config><SMSUSSD><MainSize width='520' height='360'/>" + rootAnd(entry(1)) +
                  group(1, "<control/>") + "\n<Tree><item name='2' parent='0'/></Dialog>"));
    QCOMPARE(m_layout->dialog.width, 520);
    QCOMPARE(m_layout->entries.keys(), QList<int>() << 0 << 1 << 2);
    QVERIFY(m_layout->groups.contains(1));
    QVERIFY(complained("line 2: "));
}

void SmsLayoutTest::groupWithoutItsEndIsDropped()
{
    QVERIFY(!read("<c><SMSUSSD>" + rootAnd(entry(1)) +
                  "<Dialog><item name='1' parent='1'><control><command>*1#"));
    QVERIFY(m_layout->groups.isEmpty());
}

void SmsLayoutTest::faultIsNamedBeforeAllElse()
{
    QByteArray entries;
    for (int i = 0; i < 100; ++i)
        entries += entry(1, 7);
    QVERIFY(!read("<c><SMSUSSD>" + rootAnd(entries) + "\n\n</c>"));
    QVERIFY(m_layout->complaints.first().startsWith(QLatin1String("line 3: ")));
}

void SmsLayoutTest::emptyFileIsAFault()
{
    QVERIFY(!read(QByteArray()));
    QVERIFY(!m_layout->complaints.isEmpty());
}

void SmsLayoutTest::tenThousandControlsCostNoMemory()
{
    QVERIFY(readSection(rootAnd(entry(1)) + group(1, QByteArray("<control/>").repeated(10000))));
    QCOMPARE(m_layout->groups.value(1)->controls.count(), 6);
    QVERIFY(complained("the group of entry 1 has 10000 controls"));
}

void SmsLayoutTest::tenThousandGroupsCostNoMemory()
{
    QByteArray groups;
    for (int number = 1; number <= 10000; ++number)
        groups += group(number, QByteArray("<control/>").repeated(5));
    QVERIFY(readSection(groups + rootAnd(entry(1))));
    QCOMPARE(m_layout->groups.count(), 500);
    QVERIFY(m_layout->groups.contains(1));
    QVERIFY(complained("the group of entry 501 is left out: there are too many"));
}

void SmsLayoutTest::groupWithTooFewControlsIsComplainedAbout()
{
    QVERIFY(readSection(rootAnd(entry(1)) + group(1, "<control/><control/>")));
    QCOMPARE(m_layout->groups.value(1)->controls.count(), 2);
    QVERIFY(complained("the group of entry 1 has 2 controls; shown are 5 only"));
}

void SmsLayoutTest::groupWithoutEntryIsComplainedAbout()
{
    QVERIFY(readSection(rootAnd(entry(1)) + group(3, QByteArray("<control/>").repeated(5))));
    QVERIFY(complained("the tree has no entry 3 for a group"));
}

void SmsLayoutTest::tenThousandComplaintsAreCounted()
{
    QVERIFY(readSection(rootAnd(QByteArray("<item name='x'/>").repeated(10000))));
    const int noNumber = 10000;
    const int replacing = 25; // one for each number except 0, which is the root
    const int tooMany = 10000 - 25;
    QCOMPARE(m_layout->complaints.count() + m_layout->furtherComplaints,
             noNumber + replacing + tooMany);
    QVERIFY(m_layout->complaints.count() <= 20);
}

void SmsLayoutTest::deepNestingEnds()
{
    QVERIFY(!readSection("<MainSize width='9'/>" + QByteArray("<Tree>").repeated(500000)));
    QCOMPARE(m_layout->dialog.width, 9);
}

void SmsLayoutTest::deepNestingInAControlEnds_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("closed") << QByteArray("</b>").repeated(500000) + "</command></control>" << true;
    QTest::newRow("not closed") << QByteArray() << false;
}

void SmsLayoutTest::deepNestingInAControlEnds()
{
    QFETCH(QByteArray, end);
    QFETCH(bool, isWhole);
    const QByteArray levels = QByteArray("<b>").repeated(500000);
    QCOMPARE(
        readSection("<MainSize width='9'/>" + group(1, "<control><command>*1#" + levels + end)),
        isWhole);
    QCOMPARE(m_layout->dialog.width, 9);
    QCOMPARE(m_layout->groups.count(), isWhole ? 1 : 0);
    if (isWhole)
        QCOMPARE(m_layout->groups.first()->controls.first()->command, QStringLiteral("*1#"));
}

void SmsLayoutTest::deepNestingOutsideTheSectionEnds()
{
    const QByteArray section = "<SMSUSSD><MainSize width='9'/></SMSUSSD>";
    QVERIFY(
        read(QByteArray("<b>").repeated(500000) + section + QByteArray("</b>").repeated(500000)));
    QCOMPARE(m_layout->dialog.width, 9);
}

/// Tests that a text with an undeclared entity is discarded. If the document refers to an external
/// DTD, the XML parser skips the entity without reporting an error.
void SmsLayoutTest::textWithAnUnknownEntityIsNotTaken()
{
    const QByteArray control = "<control><command>*10&bad;3#</command></control>";
    const QByteArray document = "<c><SMSUSSD><MainSize width='9'/>" + rootAnd(entry(1)) +
                                group(1, control) + "</SMSUSSD></c>";
    for (const QByteArray &start : {QByteArray(), QByteArray("<!DOCTYPE c SYSTEM 'other.dtd'>")}) {
        m_layout.reset(new SmsLayout);
        QVERIFY(!read(start + document));
        QVERIFY(complained("Entity 'bad' not declared."));
        QVERIFY(m_layout->groups.isEmpty());
        QCOMPARE(m_layout->dialog.width, 9);
    }
}

/// Tests that a document whose entities would expand to 10^39 strings is rejected immediately.
void SmsLayoutTest::entityBombIsRefused()
{
    QByteArray document = "<!DOCTYPE c [<!ENTITY e0 'boom'>";
    for (int level = 1; level < 40; ++level) {
        const QByteArray part = "&e" + QByteArray::number(level - 1) + ";";
        document += "<!ENTITY e" + QByteArray::number(level) + " '" + part.repeated(10) + "'>";
    }
    document += "]><c><SMSUSSD><MainSize width='9'/>" + rootAnd(entry(1)) +
                group(1, "<control><command>&e39;</command></control>") + "</SMSUSSD></c>";
    QVERIFY(!read(document));
    QVERIFY(m_layout->entries.isEmpty());
    QVERIFY(complained("The document declares entities, which are not supported."));
}

void SmsLayoutTest::longTextIsTakenWhole()
{
    const QByteArray text(1000000, 'x');
    QCOMPARE(readControl("<control><command>" + text + "</command></control>")->command,
             QString::fromLatin1(text));
}

void SmsLayoutTest::complaintsQuoteLittle()
{
    const QByteArray text(1000000, 'x');
    readControl("<control width='" + text + "'><LimitText>" + text + "</LimitText></control>");
    QVERIFY(m_layout->complaints.count() >= 2);
    for (const QString &complaint : qAsConst(m_layout->complaints))
        QVERIFY(complaint.length() < 200);
}

// ---- input patterns --------------------------------------------------------------------------

void SmsLayoutTest::patternIsMadeOfLimitTextAndLength_data()
{
    QTest::addColumn<QString>("limitText");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("any") << "" << 5 << ".{0,5}";
    QTest::newRow("none") << "" << 0 << ".{0,0}";
    QTest::newRow("digits") << "0-9" << 15 << "[0-9]{0,15}";
    QTest::newRow("all but letters") << "^a-z" << 3 << "[^a-z]{0,3}";
    QTest::newRow("escaped bracket") << "a\\]b" << 3 << "[a\\]b]{0,3}";
    QTest::newRow("bracket in the first place") << "]" << 3 << "[]]{0,3}";
    QTest::newRow("bracket in the first place of all but") << "^]" << 3 << "[^]]{0,3}";
    QTest::newRow("opening bracket") << "[(*" << 3 << "[[(*]{0,3}";
    QTest::newRow("digit escape") << "\\d" << 3 << "[\\d]{0,3}";
    QTest::newRow("highest") << "0-9" << 1024 << "[0-9]{0,1024}";
}

void SmsLayoutTest::patternIsMadeOfLimitTextAndLength()
{
    QFETCH(QString, limitText);
    QFETCH(int, length);
    CWidgetItemInfo control;
    control.limitText = limitText;
    control.length = length;
    const QRegExp pattern = SmsLayoutFile::inputPattern(control);
    QTEST(pattern.pattern(), "pattern");
    QVERIFY(pattern.isValid());
    QVERIFY(pattern.exactMatch(QString()));
    QCOMPARE(pattern.caseSensitivity(), Qt::CaseSensitive);
}

void SmsLayoutTest::limitTextThatIsNoClassIsLeftOut_data()
{
    QTest::addColumn<QString>("limitText");
    QTest::newRow("lonely backslash") << "\\";
    QTest::newRow("backslash at the end") << "abc\\";
    QTest::newRow("lonely ^") << "^";
    QTest::newRow("closed class") << "a]|[b";
    QTest::newRow("multiplied") << "a]{0,1000}|(((a{1000}){1000}){1000})[b";
    QTest::newRow("looks back") << "a](a*)*\\1[b";
}

void SmsLayoutTest::limitTextThatIsNoClassIsLeftOut()
{
    QFETCH(QString, limitText);
    QVERIFY(!SmsLayoutFile::isCharacterClass(limitText));
    const CWidgetItemInfo *control = readControl("<control><LimitText>" + limitText.toUtf8() +
                                                 "</LimitText><length>7</length></control>");
    QCOMPARE(SmsLayoutFile::inputPattern(*control).pattern(), QStringLiteral(".{0,7}"));
    QVERIFY(complained("is no class of characters; any are allowed"));
}

void SmsLayoutTest::endlessLimitTextIsLeftOut()
{
    const CWidgetItemInfo *control =
        readControl("<control><LimitText>" + QByteArray("a").repeated(1000000) +
                    "</LimitText><length>1024</length></control>");
    QCOMPARE(SmsLayoutFile::inputPattern(*control).pattern(), QStringLiteral(".{0,1024}"));
    QVERIFY(complained("is no class of characters"));
}

void SmsLayoutTest::lengthsOutOfRangeAreBounded_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("negative") << -1 << ".{0,0}";
    QTest::newRow("lowest") << -2147483647 - 1 << ".{0,0}";
    QTest::newRow("one too many") << 1025 << ".{0,1024}";
    QTest::newRow("most") << 2147483647 << ".{0,1024}";
}

void SmsLayoutTest::lengthsOutOfRangeAreBounded()
{
    QFETCH(int, length);
    const CWidgetItemInfo *control =
        readControl("<control><length>" + QByteArray::number(length) + "</length></control>");
    const QRegExp pattern = SmsLayoutFile::inputPattern(*control);
    QTEST(pattern.pattern(), "pattern");
    QVERIFY(pattern.isValid());
    QVERIFY(complained("is out of range (0 to 1024)"));
}

void SmsLayoutTest::longestClassWithHighestLengthIsQuick()
{
    CWidgetItemInfo control;
    control.limitText = QString(SmsLayoutFile::MAX_LIMIT_TEXT, QLatin1Char('a'));
    control.length = SmsLayoutFile::MAX_INPUT_LENGTH;
    QElapsedTimer timer;
    timer.start();
    const QRegExp pattern = SmsLayoutFile::inputPattern(control);
    QVERIFY(pattern.exactMatch(QString(SmsLayoutFile::MAX_INPUT_LENGTH, QLatin1Char('a'))));
    QVERIFY(!pattern.exactMatch(QString(SmsLayoutFile::MAX_INPUT_LENGTH + 1, QLatin1Char('a'))));
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

// ---- geometry --------------------------------------------------------------------------------

void SmsLayoutTest::mirroringMeasuresFromTheOtherSide()
{
    CWidgetItemInfo control;
    control.posx = 170;
    control.posy = 20;
    control.width = 200;
    control.height = 24;
    QCOMPARE(SmsLayoutFile::geometry(control, 520, false), QRect(170, 20, 200, 24));
    QCOMPARE(SmsLayoutFile::geometry(control, 520, true), QRect(150, 20, 200, 24));
}

USSD_TEST_MAIN(SmsLayoutTest)
#include "sms_layout_test.moc"
