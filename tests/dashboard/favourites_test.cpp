#include <QSettings>
#include <QSignalSpy>

#include "account/Favourites.h"
#include "FavouriteFile.h"
#include "Languages.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const char NETWORK[] = "26201";

Chains::Chain chain(const char *name, const char *key = "1")
{
    return {name, "*123#", {{key, "One"}}};
}

AccountCodes codes()
{
    AccountCodes codes;
    for (int i = 0; i < 8; ++i) {
        NamedCode code;
        code.code = QString::fromLatin1("*10%1#").arg(i);
        code.name = QString::fromLatin1("Code %1").arg(i);
        code.kind = i == 0 ? CodeKind::Balance : CodeKind::Other;
        codes.all << code;
    }
    return codes;
}

QStringList namesOf(const QList<NamedCode> &codes)
{
    QStringList names;
    for (const NamedCode &code : codes)
        names << code.name;
    return names;
}

} // namespace

/** Tests how favourites and chains are stored in their file. */
class FavouritesTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void aChainBecomesAFavourite();
    void aFullPageKeepsTheChainForTheList();
    void chainsBelongToTheirNetwork();
    void chainsAreRenamedAndRemoved();
    void aNameIsUsedOnce();
    void theEarlierFileIsTakenOver();
    void anUnreadableEarlierFileIsKept();
    void aDamagedFileIsSetAside();
    void anotherWindowReadsTheSameFile();
    void onlyTheUserReadsTheFile();
    void everythingIsRemoved();

private:
    QString file() { return folder() + QLatin1String("/data/favourites.json"); }
    QByteArray content();
};

void FavouritesTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
}

QByteArray FavouritesTest::content()
{
    QFile opened(file());
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

void FavouritesTest::aChainBecomesAFavourite()
{
    Favourites favourites{QString()};
    QSignalSpy changed(&favourites, SIGNAL(changed()));
    QVERIFY(favourites.keep(chain("Mine")));
    QCOMPARE(changed.size(), 1);
    const QList<NamedCode> usual = favourites.among(codes());
    QCOMPARE(namesOf(usual), (QStringList{QLatin1String("Code 0"), QLatin1String("Mine")}));
    QCOMPARE(usual.last().keys, QString::fromUtf8("*123# › 1"));
    QVERIFY(usual.last().isChain() && !usual.first().isChain());
    QVERIFY(favourites.select({codes().all.at(3)}));
    QVERIFY(favourites.keep(chain("Other", "2")));
    QCOMPARE(namesOf(favourites.among(codes())),
             (QStringList{QLatin1String("Code 3"), QLatin1String("Other")}));
    QVERIFY(favourites.isKept(chain("Any name", "2")));
    QVERIFY(!favourites.isKept(chain("Mine", "3")));
}

void FavouritesTest::aFullPageKeepsTheChainForTheList()
{
    Favourites favourites{QString()};
    QVERIFY(favourites.select(codes().all.mid(0, Favourites::MOST)));
    QVERIFY(favourites.keep(chain("Mine")));
    QCOMPARE(favourites.among(codes()).size(), Favourites::MOST);
    QVERIFY(!namesOf(favourites.among(codes())).contains(QLatin1String("Mine")));
    QCOMPARE(namesOf(favourites.chains()), QStringList(QLatin1String("Mine")));
}

void FavouritesTest::chainsBelongToTheirNetwork()
{
    Favourites favourites{QString()};
    favourites.setNetwork(QLatin1String(NETWORK));
    QVERIFY(favourites.keep(chain("Mine")));
    favourites.setNetwork(QLatin1String("26202"));
    QVERIFY(favourites.chains().isEmpty());
    QVERIFY(favourites.chain(QLatin1String("Mine")).steps.empty());
    favourites.setNetwork(QLatin1String(NETWORK));
    QCOMPARE(favourites.chain(QLatin1String("Mine")).steps.size(), std::size_t(1));
}

void FavouritesTest::chainsAreRenamedAndRemoved()
{
    Favourites favourites(file());
    QVERIFY(favourites.select({codes().all.at(0)}));
    QVERIFY(favourites.keep(chain("Mine")));
    QVERIFY(favourites.rename(QLatin1String("Mine"), QLatin1String(" Yours ")));
    QCOMPARE(namesOf(favourites.among(codes())),
             (QStringList{QLatin1String("Code 0"), QLatin1String("Yours")}));
    QVERIFY(!favourites.rename(QLatin1String("Mine"), QLatin1String("A")));
    QVERIFY(!favourites.rename(QLatin1String("Yours"), QLatin1String("  ")));
    QVERIFY(favourites.remove(QLatin1String("Yours")));
    QVERIFY(!favourites.remove(QLatin1String("Yours")));
    QCOMPARE(namesOf(Favourites(file()).among(codes())), QStringList(QLatin1String("Code 0")));
    QVERIFY(!content().contains("Yours"));
}

void FavouritesTest::aNameIsUsedOnce()
{
    Favourites favourites{QString()};
    QVERIFY(favourites.select({codes().all.at(3)}));
    QVERIFY(favourites.keep(chain("Mine")));
    QVERIFY(!favourites.keep(chain("mine", "2")));
    QVERIFY(!favourites.keep(chain("Code 3", "2")));
    QVERIFY(favourites.keep(chain("Other", "2")));
    QVERIFY(!favourites.rename(QLatin1String("Other"), QLatin1String("MINE")));
    QVERIFY(favourites.rename(QLatin1String("Other"), QLatin1String("other")));
    QVERIFY(!favourites.keep({"No steps", "*123#", {}}));
    QVERIFY(!favourites.isNameFree(QLatin1String("mine")));
}

void FavouritesTest::theEarlierFileIsTakenOver()
{
    const QString earlier = folder() + QLatin1String("/data/favourites.ini");
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/data")));
    {
        QSettings settings(earlier, QSettings::IniFormat);
        settings.setValue(QLatin1String("favourites/26201"),
                          QStringList{QLatin1String("*103#"), QLatin1String("*105#")});
        settings.setValue(QLatin1String("favourites/26202"), QStringList(QLatin1String("none")));
    }
    Favourites favourites(file());
    favourites.setNetwork(QLatin1String(NETWORK));
    QCOMPARE(namesOf(favourites.among(codes())),
             (QStringList{QLatin1String("Code 3"), QLatin1String("Code 5")}));
    favourites.setNetwork(QLatin1String("26202"));
    QVERIFY(favourites.among(codes()).isEmpty());
    favourites.setNetwork(QLatin1String("26203"));
    QCOMPARE(favourites.among(codes()).size(), 1);
    QVERIFY(!QFile::exists(earlier));
    Favourites again(file());
    again.setNetwork(QLatin1String(NETWORK));
    QCOMPARE(again.among(codes()).size(), 2);
}

void FavouritesTest::anUnreadableEarlierFileIsKept()
{
    const QString earlier = folder() + QLatin1String("/data/favourites.ini");
    QVERIFY(QDir().mkpath(earlier)); // a folder in place of the file
    Favourites favourites(file());
    QCOMPARE(favourites.among(codes()).size(), 1);
    QVERIFY(favourites.keep(chain("Mine")));
    QVERIFY(QFile::exists(earlier));
}

void FavouritesTest::aDamagedFileIsSetAside()
{
    const QByteArray damaged = "{\"version\":1,\"networks\":{\"unknown\":{\"chains\":[5,"
                               "{\"name\":\"Mine\",\"code\":\"*123#\",\"steps\":"
                               "[{\"key\":\"1\",\"text\":\"One\"}]}]}}}";
    QVERIFY(QDir().mkpath(folder() + QLatin1String("/data")));
    writeFile(QLatin1String("data/favourites.json"), damaged);
    Favourites favourites(file());
    QSignalSpy problems(&favourites, SIGNAL(problem(QString)));
    QCOMPARE(namesOf(favourites.chains()), QStringList(QLatin1String("Mine")));
    QCOMPARE(content(), damaged); // reading does not change the file
    QVERIFY(favourites.keep(chain("Other", "2")));
    QCOMPARE(problems.size(), 1);
    const QStringList kept = QDir(folder() + QLatin1String("/data"))
                                 .entryList({QLatin1String("favourites.json.damaged-*")});
    QCOMPARE(kept.size(), 1);
    QVERIFY(problems.first().first().toString().contains(kept.first()));
    QFile aside(folder() + QLatin1String("/data/") + kept.first());
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), damaged);
    QCOMPARE(Favourites(file()).chains().size(), 2);
}

void FavouritesTest::anotherWindowReadsTheSameFile()
{
    Favourites favourites(file());
    QVERIFY(favourites.keep(chain("Mine \"1\"")));
    const Chains::FavouriteFile read = Chains::FavouriteFile::fromJson(content().toStdString());
    QVERIFY(read.isWhole);
    QVERIFY(read.networks.at(Chains::UNKNOWN_NETWORK).chain("Mine \"1\""));
}

void FavouritesTest::onlyTheUserReadsTheFile()
{
    Favourites favourites(file());
    QVERIFY(favourites.keep(chain("Mine")));
    QCOMPARE(QFile::permissions(file()) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
}

void FavouritesTest::everythingIsRemoved()
{
    Favourites favourites(file());
    QVERIFY(favourites.keep(chain("Mine")));
    writeFile(QLatin1String("data/favourites.json.damaged-2026-01-01"), "x");
    favourites.removeAll();
    QVERIFY(favourites.chains().isEmpty());
    QVERIFY(QDir(folder() + QLatin1String("/data")).entryList(QDir::Files).isEmpty());
}

USSD_TEST_MAIN(FavouritesTest)
#include "favourites_test.moc"
