#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimer>

#include "OddFiles.h"
#include "pages/CodesPage.h"
#include "pages/HistoryPopup.h"
#include "pages/HistoryView.h"
#include "plugin/EditorHints.h"
#include "plugin/ProfileBackup.h"
#include "PluginFiles.h"
#include "SimTest.h"
#include "window/Banners.h"
#include "window/ProfileKeeper.h"

using namespace Dashboard;

namespace
{

const char GOOD[] = "<?xml version=\"1.0\"?>\n<tksvdoc type=\"USSDProfile\"><item><name>A</name>"
                    "<value>*1#</value></item></tksvdoc>\n";
const char NEWER[] = "<tksvdoc><item><name>B</name><value>*2#</value></item></tksvdoc>\n";
const char CUT_OFF[] = "<tksvdoc><item><name>A</name>";

QTableWidget *openTable()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() == QLatin1String("USSDUIPlugin_ProfileTable"))
            return qobject_cast<QTableWidget *>(widget);
    }
    return nullptr;
}

int firstEmptyRow(const QTableWidget *table)
{
    int row = 0;
    while (table->item(row, 1) && !table->item(row, 1)->text().isEmpty())
        ++row;
    return row;
}

QMessageBox *openBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

} // namespace

/** Tests when the user's own codes are backed up, and how a backup is offered and restored. */
class ProfileBackupTest : public SimTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void theCopyIsMadeAndFollowsTheFile();
    void onlyTheUserCanReadTheCopy();
    void nothingIsLeftBesideTheCopy();
    void whatDoesNotParseIsNotCopied_data();
    void whatDoesNotParseIsNotCopied();
    void anOddFileIsNeitherCopiedNorOffered_data();
    void anOddFileIsNeitherCopiedNorOffered();
    void anOddCopyIsNoCopy_data();
    void anOddCopyIsNoCopy();
    void aFileThatHasGoneLeavesTheCopy();
    void aFileWithoutCodesIsCopiedToo();
    void aCopyThatCannotBeWrittenIsSaid();

    void lostMeansGoneWithAGoodCopy();
    void whatIsThereIsNotLost_data();
    void whatIsThereIsNotLost();
    void theCopyIsRestoredWhole();
    void aBrokenCopyIsNeverRestored();
    void restoringWhereNothingCanBeWrittenKeepsTheCopy();
    void aRestoreThatFailsLeavesNothingBeside();
    void forgettingDeletesTheCopy();
    void theUsersFoldersAreUsed();

    void nothingIsOfferedWhileTheFileIsThere();
    void theOfferRestores_data();
    void theOfferRestores();
    void theCopyCanBeDeletedInstead();
    void anOfferThatIsLeftComesAgain();
    void whatIsSavedMeanwhileDoesNotReplaceTheOfferedCopy();
    void aRestoreThatFailsIsSaid();
    void whatTheEditorSavesIsCopied();
    void theEditorShowsWhereToType();
    void aCodeWithoutAButtonIsShownInTheHistory();
    void aCodeGetsAFreeButton();

private:
    void confirm();
    bool write(const QByteArray &content) { return writeTo(m_file, content); }
    bool writeCopy(const QByteArray &content) { return writeTo(m_copy, content); }
    bool writeTo(const QString &path, const QByteArray &content);
    void typeCode();
    void edit();

    QString m_file;
    QString m_copy;
    QScopedPointer<ProfileBackup> m_backup;
};

void ProfileBackupTest::setUp()
{
    SimTest::setUp();
    m_file = folder() + QLatin1String("/user/ussdprofile.xml");
    m_copy = folder() + QLatin1String("/own/deep/ussdprofile.xml");
    m_backup.reset(new ProfileBackup(
        m_file, folder() + QLatin1String("/user/userdata/ussdprofile.xml"), m_copy));
}

bool ProfileBackupTest::writeTo(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

void ProfileBackupTest::theCopyIsMadeAndFollowsTheFile()
{
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
    QVERIFY(write(NEWER));
    QVERIFY(m_backup->refresh());
    QCOMPARE(contentOf(m_copy), QByteArray(NEWER));
    QVERIFY(qAbs(m_backup->time().secsTo(QDateTime::currentDateTime())) < 60);
}

void ProfileBackupTest::onlyTheUserCanReadTheCopy()
{
    QVERIFY(write(GOOD));
    QVERIFY(QFile::setPermissions(m_file, QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(m_backup->refresh());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther |
                                      QFile::WriteOther | QFile::ExeOwner;
    QCOMPARE(QFile::permissions(m_copy) & others, QFile::Permissions());
    QVERIFY(QFile::permissions(m_copy) & QFile::ReadOwner);
}

void ProfileBackupTest::nothingIsLeftBesideTheCopy()
{
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QVERIFY(QFile::remove(m_file));
    QVERIFY(m_backup->restore());
    for (const QString &path : {m_copy, m_file}) {
        const QDir beside = QFileInfo(path).dir();
        QCOMPARE(beside.entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
}

void ProfileBackupTest::whatDoesNotParseIsNotCopied_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray(CUT_OFF);
    QTest::newRow("no XML") << QByteArray("*100#");
    QTest::newRow("two roots") << QByteArray(NEWER) + NEWER;
    QTest::newRow("too large") << "<a>" + QByteArray(5 << 20, 'x') + "</a>";
}

void ProfileBackupTest::whatDoesNotParseIsNotCopied()
{
    QFETCH(QByteArray, content);
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QVERIFY(write(content));
    allowWarning("it is larger than 4194304 bytes");
    QVERIFY(!m_backup->refresh());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
}

void ProfileBackupTest::anOddFileIsNeitherCopiedNorOffered_data()
{
    OddFiles::addColumns(4 << 20);
}

void ProfileBackupTest::anOddFileIsNeitherCopiedNorOffered()
{
    QVERIFY(writeCopy(GOOD));
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    expectWarning(m_file + QLatin1String(": ") + OddFiles::make(m_file));
    QVERIFY(!m_backup->refresh());
    QVERIFY(!m_backup->isOutdated());
    QVERIFY(!m_backup->isLost());
    QVERIFY(!m_backup->isDamaged());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
}

void ProfileBackupTest::anOddCopyIsNoCopy_data()
{
    OddFiles::addColumns(4 << 20);
}

void ProfileBackupTest::anOddCopyIsNoCopy()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_copy).path()));
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    expectWarning(m_copy + QLatin1String(": ") + OddFiles::make(m_copy));
    QVERIFY(!m_backup->isLost());
    QVERIFY(!m_backup->restore());
    QVERIFY(!QFile::exists(m_file));
    QVERIFY(write(GOOD));
    const bool isReplaced = !QFileInfo(m_copy).isDir();
    QCOMPARE(m_backup->refresh(), isReplaced);
    QCOMPARE(m_backup->isOutdated(), !isReplaced);
}

void ProfileBackupTest::aFileThatHasGoneLeavesTheCopy()
{
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QVERIFY(QFile::remove(m_file));
    QVERIFY(!m_backup->refresh());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
}

void ProfileBackupTest::aFileWithoutCodesIsCopiedToo()
{
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QVERIFY(write("<tksvdoc type=\"USSDProfile\"/>"));
    QVERIFY(m_backup->refresh());
    QCOMPARE(contentOf(m_copy), QByteArray("<tksvdoc type=\"USSDProfile\"/>"));
}

void ProfileBackupTest::aCopyThatCannotBeWrittenIsSaid()
{
    QVERIFY(write(GOOD));
    writeFile(QLatin1String("own"), "a file where the folder should be");
    QVERIFY(!m_backup->refresh());
}

void ProfileBackupTest::lostMeansGoneWithAGoodCopy()
{
    QVERIFY(!m_backup->isLost());
    QVERIFY(write(GOOD));
    QVERIFY(m_backup->refresh());
    QVERIFY(!m_backup->isLost());
    QVERIFY(QFile::remove(m_file));
    QVERIFY(m_backup->isLost());
    QVERIFY(!ProfileBackup(QString(), QString(), m_copy).isLost());
    QVERIFY(writeCopy(CUT_OFF));
    QVERIFY(!m_backup->isLost());
}

void ProfileBackupTest::whatIsThereIsNotLost_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    const QString name = QLatin1String("/user/ussdprofile.xml");
    QTest::newRow("broken file") << name << QByteArray(CUT_OFF);
    QTest::newRow("folder") << name + QLatin1String("/inside") << QByteArray();
    QTest::newRow("file of old") << QString::fromLatin1("/user/userdata/ussdprofile.xml")
                                 << QByteArray(GOOD);
}

void ProfileBackupTest::whatIsThereIsNotLost()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QVERIFY(writeCopy(GOOD));
    QVERIFY(m_backup->isLost());
    QVERIFY(writeTo(folder() + path, content));
    QVERIFY(!m_backup->isLost());
}

void ProfileBackupTest::theCopyIsRestoredWhole()
{
    QVERIFY(writeCopy(GOOD));
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    QVERIFY(m_backup->restore());
    QCOMPARE(contentOf(m_file), QByteArray(GOOD));
    QVERIFY(!m_backup->isLost());
}

void ProfileBackupTest::aBrokenCopyIsNeverRestored()
{
    QVERIFY(writeCopy(CUT_OFF));
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    QVERIFY(!m_backup->restore());
    QVERIFY(!QFile::exists(m_file));
}

void ProfileBackupTest::restoringWhereNothingCanBeWrittenKeepsTheCopy()
{
    QVERIFY(writeCopy(GOOD));
    writeFile(QLatin1String("user"), "a file where the folder should be");
    QVERIFY(!m_backup->restore());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
}

void ProfileBackupTest::aRestoreThatFailsLeavesNothingBeside()
{
    QVERIFY(writeCopy(GOOD));
    QVERIFY(QDir().mkpath(m_file + QLatin1String("/inside")));
    QVERIFY(!m_backup->restore());
    QCOMPARE(QFileInfo(m_file).dir().entryList(QDir::Files | QDir::Hidden), QStringList());
}

void ProfileBackupTest::forgettingDeletesTheCopy()
{
    QVERIFY(writeCopy(GOOD));
    QVERIFY(m_backup->forget());
    QVERIFY(!QFile::exists(m_copy));
    QVERIFY(!m_backup->isLost());
}

void ProfileBackupTest::theUsersFoldersAreUsed()
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder()));
    const ProfileBackup backup = ProfileBackup::ofUser();
    qputenv("XDG_DATA_HOME", before);
    QCOMPARE(backup.userFile(), m_library->userProfileFile());
    QCOMPARE(backup.copy(), folder() + QLatin1String("/ussd-dashboard/last-good/ussdprofile.xml"));
}

void ProfileBackupTest::nothingIsOfferedWhileTheFileIsThere()
{
    QVERIFY(write(GOOD));
    ProfileKeeper keeper(*m_backup);
    keeper.start();
    QCOMPARE(keeper.offer(), QString());
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
    keeper.restore();
    QCOMPARE(contentOf(m_file), QByteArray(GOOD));
}

void ProfileBackupTest::theOfferRestores_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("offer");
    QTest::newRow("lost") << QByteArray() << QString::fromLatin1("has gone");
    QTest::newRow("damaged") << QByteArray(CUT_OFF) << QString::fromLatin1("incomplete");
}

void ProfileBackupTest::theOfferRestores()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, offer);
    QVERIFY(writeCopy(GOOD));
    QVERIFY(QDir().mkpath(QFileInfo(m_file).path()));
    QVERIFY(content.isEmpty() || write(content));
    ProfileKeeper keeper(*m_backup);
    QSignalSpy restored(&keeper, &ProfileKeeper::restored);
    keeper.start();
    QVERIFY2(keeper.offer().contains(offer), qPrintable(keeper.offer()));
    QVERIFY2(!keeper.offer().contains(QLatin1Char('%')), qPrintable(keeper.offer()));
    QCOMPARE(restored.count(), 0);
    keeper.restore();
    QCOMPARE(restored.count(), 1);
    QCOMPARE(keeper.offer(), QString());
    QCOMPARE(contentOf(m_file), QByteArray(GOOD));
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
}

void ProfileBackupTest::theCopyCanBeDeletedInstead()
{
    QVERIFY(writeCopy(GOOD));
    ProfileKeeper keeper(*m_backup);
    keeper.start();
    keeper.forget();
    QVERIFY(!QFile::exists(m_copy));
    QVERIFY(!QFile::exists(m_file));
    QCOMPARE(keeper.offer(), QString());
}

void ProfileBackupTest::anOfferThatIsLeftComesAgain()
{
    QVERIFY(writeCopy(GOOD));
    for (int start = 0; start < 2; ++start) {
        ProfileKeeper keeper(*m_backup);
        keeper.start();
        QVERIFY(!keeper.offer().isEmpty());
    }
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
    QVERIFY(!QFile::exists(m_file));
}

void ProfileBackupTest::whatIsSavedMeanwhileDoesNotReplaceTheOfferedCopy()
{
    QVERIFY(writeCopy(GOOD));
    ProfileKeeper keeper(*m_backup);
    keeper.start();
    QVERIFY(write(NEWER));
    keeper.refresh();
    QCOMPARE(contentOf(m_copy), QByteArray(GOOD));
    keeper.forget();
    QCOMPARE(contentOf(m_copy), QByteArray(NEWER));
}

void ProfileBackupTest::aRestoreThatFailsIsSaid()
{
    QVERIFY(writeCopy(GOOD));
    writeFile(QLatin1String("user"), "a file where the folder should be");
    ProfileKeeper keeper(*m_backup);
    QSignalSpy problem(&keeper, &ProfileKeeper::problem);
    keeper.start();
    keeper.restore();
    QCOMPARE(problem.count(), 1);
    QVERIFY(problem.first().first().toString().contains(m_copy));
    QVERIFY(!keeper.offer().isEmpty());
}

/// Confirms the next message box that opens.
void ProfileBackupTest::confirm()
{
    QTimer::singleShot(0, this, [] {
        if (QMessageBox *box = openBox())
            QTest::mouseClick(box->buttons().first(), Qt::LeftButton);
    });
}

/// Enters a code in the first empty row of the editor and saves the codes.
void ProfileBackupTest::typeCode()
{
    QTableWidget *table = openTable();
    if (!table)
        return;
    const int row = firstEmptyRow(table);
    table->setItem(row, 0, new QTableWidgetItem(QLatin1String("Mine")));
    table->setItem(row, 1, new QTableWidgetItem(QLatin1String("*777#")));
    confirm();
    table->window()
        ->findChild<QPushButton *>(QLatin1String("USSDUIPlugin_ProfileDialog_SaveButton"))
        ->click();
}

/// Opens the editor, and saves a new code.
void ProfileBackupTest::edit()
{
    QTimer::singleShot(0, this, [this] { typeCode(); });
    window().editCodes();
}

void ProfileBackupTest::whatTheEditorSavesIsCopied()
{
    const ProfileBackup backup(m_library->userProfileFile(), QString(), m_copy);
    openDashboard();
    ProfileKeeper keeper(backup);
    window().setProfiles(&keeper);
    edit();
    QTRY_VERIFY2(contentOf(m_copy).contains("*777#"), contentOf(m_copy).constData());
    QCOMPARE(contentOf(m_copy), contentOf(m_library->userProfileFile()));
}

void ProfileBackupTest::theEditorShowsWhereToType()
{
    openDashboard();
    QStringList hints;
    QTimer::singleShot(0, this, [&hints] {
        QTableWidget *table = openTable();
        drainEvents();
        const int row = firstEmptyRow(table);
        hints << EditorHints::hintAt(table, row - 1, 0) << EditorHints::hintAt(table, row, 0)
              << EditorHints::hintAt(table, row, 1);
        table->setItem(row, 0, new QTableWidgetItem(QLatin1String("Mine")));
        hints << EditorHints::hintAt(table, row, 0) << EditorHints::hintAt(table, row, 1);
        table->setItem(row, 1, new QTableWidgetItem(QLatin1String("*777#")));
        hints << EditorHints::hintAt(table, row, 1) << EditorHints::hintAt(table, row + 1, 0);
        table->window()->close();
    });
    window().editCodes();
    QCOMPARE(hints.join(QLatin1Char('|')),
             QLatin1String("|Type a name|Type a code||Type a code||Type a name"));
}

void ProfileBackupTest::aCodeWithoutAButtonIsShownInTheHistory()
{
    openDashboard();
    const Banners *banners = window().findChild<Banners *>();
    edit();
    QTRY_COMPARE(banners->shown(), int(Banners::Saved));
    QVERIFY(banners->banner(Banners::Saved).text.contains(QLatin1String("Mine")));
    button("Dashboard_BannerAction")->click();
    QVERIFY(banners->shown() != Banners::Saved);
    QCOMPARE(window().currentPage(), PageId::Codes);
    const HistoryView *list = window().findChild<HistoryPopup *>()->view();
    const QModelIndex current = list->currentIndex();
    QVERIFY(list->isVisible());
    QVERIFY(current.data().toString().contains(QLatin1String("*777#")));
    QVERIFY(list->viewport()->rect().contains(list->visualRect(current)));
}

void ProfileBackupTest::aCodeGetsAFreeButton()
{
    const QByteArray profiles =
        "<tksvdoc type=\"USSDProfile\"><item><name>A</name><value>*1#</value>"
        "<showButton>true</showButton></item></tksvdoc>\n";
    QVERIFY(m_library->write(Formats::PluginFiles::SYSTEM_PROFILES, profiles));
    openDashboard();
    edit();
    const CodesPage *codes = window().findChild<CodesPage *>();
    QTRY_VERIFY(codes->hasPreset(QLatin1String("Mine")));
    QVERIFY(window().findChild<Banners *>()->shown() != Banners::Saved);
}

USSD_TEST_MAIN(ProfileBackupTest)
#include "profile_backup_test.moc"
