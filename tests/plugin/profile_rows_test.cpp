#include "UssdTest.h"

#include "profiles/ProfileRows.h"

using namespace Formats;

/** Tests how the rows of the profile editor's table are converted to profiles. */
class ProfileRowsTest : public UssdTest
{
    Q_OBJECT

private slots:
    void emptyRowIsLeftOut();
    void rowWithoutCodeIsLeftOut();
    void codeServesAsNameWhenThereIsNone();
    void untouchedProfileStaysAsItIs();
    void untouchedProfileWithoutNameOrCodeStaysAsItIs_data();
    void untouchedProfileWithoutNameOrCodeStaysAsItIs();
    void editedCodeLeavesAMissingNameAsItIs();
    void editedNameLeavesAMissingCodeAsItIs();
    void emptiedCodeTakesTheProfileAway();
    void emptiedNameOfAProfileWithoutCodeTakesItAway();
    void emptiedNameIsReplacedByTheCode();
    void editedCodeKeepsTheTranslatedName();
    void editedNameDropsTheTranslatedName();
    void newRowIsAUserProfileWithAButton();
    void profilesBeyondTheRowsAreKept();
    void changeIsANumberANameOrACode();
};

static USSDProfile fullProfile()
{
    USSDProfile profile;
    profile.name = QStringLiteral("Balance");
    profile.value = QStringLiteral(" *100# ");
    profile.readonly = true;
    profile.langID = QStringLiteral("IDS_A");
    profile.desLangID = QStringLiteral("IDS_B");
    profile.isSystem = true;
    return profile;
}

static ProfileRows::Row row(const char *name, const char *code)
{
    ProfileRows::Row cells = {QString::fromUtf8(name), QString::fromUtf8(code)};
    return cells;
}

static QList<USSDProfile> read(const QList<ProfileRows::Row> &rows,
                               const QList<USSDProfile> &shown = QList<USSDProfile>())
{
    return ProfileRows::profiles(rows, shown);
}

void ProfileRowsTest::emptyRowIsLeftOut()
{
    QVERIFY(read({row("", ""), row("  ", "\t")}).isEmpty());
    QVERIFY(read({row(" ", "")}, {fullProfile()}).isEmpty());
}

void ProfileRowsTest::rowWithoutCodeIsLeftOut()
{
    QVERIFY(read({row("Name", " ")}).isEmpty());
}

void ProfileRowsTest::codeServesAsNameWhenThereIsNone()
{
    const USSDProfile profile = read({row(" ", "*1#")}).at(0);
    QCOMPARE(profile.name, QStringLiteral("*1#"));
    QCOMPARE(profile.value, QStringLiteral("*1#"));
}

void ProfileRowsTest::untouchedProfileStaysAsItIs()
{
    QVERIFY(read({row("Balance", " *100# ")}, {fullProfile()}).at(0) == fullProfile());
}

void ProfileRowsTest::untouchedProfileWithoutNameOrCodeStaysAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("readonly");
    for (bool readonly : {false, true}) {
        const char *kind = readonly ? ", read-only" : "";
        QTest::addRow("no name%s", kind) << QString() << QStringLiteral("*1#") << readonly;
        QTest::addRow("no code%s", kind) << QStringLiteral("Name") << QString() << readonly;
        QTest::addRow("blank code%s", kind)
            << QStringLiteral("Name") << QStringLiteral(" ") << readonly;
        QTest::addRow("neither%s", kind) << QString() << QString() << readonly;
    }
}

void ProfileRowsTest::untouchedProfileWithoutNameOrCodeStaysAsItIs()
{
    USSDProfile profile = fullProfile();
    QFETCH(QString, name);
    QFETCH(QString, code);
    QFETCH(bool, readonly);
    profile.name = name;
    profile.value = code;
    profile.readonly = readonly;
    const QList<USSDProfile> saved = read({{name, code}}, {profile});
    QCOMPARE(saved.count(), 1);
    QVERIFY(saved.at(0) == profile);
}

void ProfileRowsTest::editedCodeLeavesAMissingNameAsItIs()
{
    USSDProfile profile = fullProfile();
    profile.name.clear();
    USSDProfile expected = profile;
    expected.value = QStringLiteral("*101#");
    QVERIFY(read({row("", "*101#")}, {profile}).at(0) == expected);
}

void ProfileRowsTest::editedNameLeavesAMissingCodeAsItIs()
{
    USSDProfile profile = fullProfile();
    profile.value.clear();
    USSDProfile expected = profile;
    expected.name = QStringLiteral("Other");
    expected.langID.clear();
    const QList<USSDProfile> saved = read({row("Other", "")}, {profile});
    QCOMPARE(saved.count(), 1);
    QVERIFY(saved.at(0) == expected);
}

void ProfileRowsTest::emptiedCodeTakesTheProfileAway()
{
    QVERIFY(read({row("Balance", " ")}, {fullProfile()}).isEmpty());
}

void ProfileRowsTest::emptiedNameOfAProfileWithoutCodeTakesItAway()
{
    USSDProfile profile = fullProfile();
    profile.value.clear();
    QVERIFY(read({row(" ", "")}, {profile}).isEmpty());
}

void ProfileRowsTest::emptiedNameIsReplacedByTheCode()
{
    USSDProfile expected = fullProfile();
    expected.name = QStringLiteral("*100#");
    expected.langID.clear();
    QVERIFY(read({row(" ", " *100# ")}, {fullProfile()}).at(0) == expected);
}

void ProfileRowsTest::editedCodeKeepsTheTranslatedName()
{
    USSDProfile expected = fullProfile();
    expected.value = QStringLiteral("*101#");
    QVERIFY(read({row("Balance", "*101# ")}, {fullProfile()}).at(0) == expected);
}

void ProfileRowsTest::editedNameDropsTheTranslatedName()
{
    USSDProfile expected = fullProfile();
    expected.name = QStringLiteral("Money");
    expected.langID.clear();
    QVERIFY(read({row("Money", " *100# ")}, {fullProfile()}).at(0) == expected);
}

void ProfileRowsTest::newRowIsAUserProfileWithAButton()
{
    const USSDProfile profile =
        read({row("Balance", " *100# "), row("New", "*2#")}, {fullProfile()}).at(1);
    USSDProfile expected;
    expected.name = QStringLiteral("New");
    expected.value = QStringLiteral("*2#");
    expected.showButton = true;
    QVERIFY(profile == expected);
}

void ProfileRowsTest::profilesBeyondTheRowsAreKept()
{
    QList<USSDProfile> shown;
    QList<ProfileRows::Row> rows;
    for (int i = 0; i < 130; ++i) {
        USSDProfile profile = fullProfile();
        profile.value = QString::number(i);
        shown << profile;
        if (i < ProfileRows::ROWS)
            rows << row("Balance", qPrintable(profile.value));
    }
    QVERIFY(read(rows, shown) == shown);
    // Only the profile of the last row must be deleted.
    rows[99].code.clear();
    QCOMPARE(read(rows, shown).count(), 129);
    QVERIFY(read(rows, shown).last() == shown.last());
}

void ProfileRowsTest::changeIsANumberANameOrACode()
{
    const QList<USSDProfile> one = {fullProfile()};
    QVERIFY(!ProfileRows::differ(one, one));
    QVERIFY(ProfileRows::differ(one, QList<USSDProfile>()));
    QList<USSDProfile> other = one;
    other[0].name += QLatin1Char('x');
    QVERIFY(ProfileRows::differ(one, other));
    other = one;
    other[0].value += QLatin1Char('x');
    QVERIFY(ProfileRows::differ(one, other));
    other = one;
    other[0].langID.clear();
    QVERIFY(!ProfileRows::differ(one, other));
}

USSD_TEST_MAIN(ProfileRowsTest)

#include "profile_rows_test.moc"
