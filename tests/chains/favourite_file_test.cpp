#include "FavouriteFile.h"
#include "UssdTest.h"

using namespace Chains;

namespace
{

const char HEAD[] = "{\"version\":1,\"networks\":{\"26201\":";
const char GOOD_CHAIN[] =
    "{\"name\":\"Good\",\"code\":\"*123#\",\"steps\":[{\"key\":\"1\",\"text\":\"One\"}]}";

FavouriteFile sample()
{
    FavouriteFile file;
    NetworkFavourites &network = file.networks["26201"];
    network.areSelected = true;
    network.chains.push_back({"1 \"GB\" \\ ü", "*123#", {{"2", "Internet"}, {"1", "a\tb\nc"}}});
    network.favourites.push_back({"Balance", "*100#"});
    network.favourites.push_back({"1 \"GB\" \\ ü", ""});
    file.networks["unknown"].chains.push_back({"Other", "#5#", {{"#", "End"}}});
    return file;
}

} // namespace

/** Tests the favourites file, including damaged files. */
class FavouriteFileTest : public UssdTest
{
    Q_OBJECT
private slots:
    void everythingIsReadAsItWasWritten();
    void noSelectionIsNotAnEmptySelection();
    void aDamagedFileIsNoticed_data();
    void aDamagedFileIsNoticed();
    void theRestOfADamagedFileIsRead();
};

void FavouriteFileTest::everythingIsReadAsItWasWritten()
{
    const FavouriteFile written = sample();
    const FavouriteFile read = FavouriteFile::fromJson(written.toJson());
    QVERIFY(read.isWhole);
    QCOMPARE(read.networks.size(), std::size_t(2));
    const NetworkFavourites &network = read.networks.at("26201");
    QVERIFY(network.areSelected);
    QVERIFY(network.favourites == written.networks.at("26201").favourites);
    QCOMPARE(network.chains.size(), std::size_t(1));
    QCOMPARE(network.chains[0].name, std::string("1 \"GB\" \\ ü"));
    QVERIFY(network.chains[0].steps == written.networks.at("26201").chains[0].steps);
    QCOMPARE(read.toJson(), written.toJson());
}

void FavouriteFileTest::noSelectionIsNotAnEmptySelection()
{
    FavouriteFile file = sample();
    file.networks["26201"].favourites.clear();
    const FavouriteFile read = FavouriteFile::fromJson(file.toJson());
    QVERIFY(read.networks.at("26201").areSelected);
    QVERIFY(!read.networks.at("unknown").areSelected);
    // An empty string stands for a missing file.
    QVERIFY(FavouriteFile::fromJson(std::string()).isWhole);
}

void FavouriteFileTest::aDamagedFileIsNoticed_data()
{
    QTest::addColumn<QByteArray>("json");
    const QByteArray head = HEAD;
    const auto chain = [&head](const QByteArray &text) {
        return head + "{\"chains\":[" + text + "]}}}";
    };
    QTest::newRow("no JSON") << QByteArray("hello");
    QTest::newRow("half a file") << QByteArray(sample().toJson().c_str()).left(60);
    QTest::newRow("not UTF-8") << QByteArray("{\"version\":1,\"networks\":{},\"a\":\"\xff\"}");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("no version") << QByteArray("{\"networks\":{}}");
    QTest::newRow("later version") << QByteArray("{\"version\":2,\"networks\":{}}");
    QTest::newRow("version as text") << QByteArray("{\"version\":\"1\",\"networks\":{}}");
    QTest::newRow("no networks") << QByteArray("{\"version\":1}");
    QTest::newRow("network is a number") << head + "5}}";
    QTest::newRow("favourites are a text") << head + "{\"favourites\":\"*100#\"}}}";
    QTest::newRow("favourite is a number") << head + "{\"favourites\":[7]}}}";
    QTest::newRow("favourite without a code") << head + "{\"favourites\":[{\"name\":\"A\"}]}}}";
    QTest::newRow("unknown chain") << head + "{\"favourites\":[{\"chain\":\"A\"}]}}}";
    QTest::newRow("code is null") << chain(
        "{\"name\":\"A\",\"code\":null,\"steps\":[{\"key\":\"1\",\"text\":\"One\"}]}");
    QTest::newRow("steps are a text") << chain("{\"name\":\"A\",\"code\":\"*1#\",\"steps\":\"1\"}");
    QTest::newRow("step is a number") << chain("{\"name\":\"A\",\"code\":\"*1#\",\"steps\":[1]}");
    QTest::newRow("same name twice") << chain(QByteArray(GOOD_CHAIN) + "," + GOOD_CHAIN);
    QTest::newRow("deep") << QByteArray(100000, '[');
}

void FavouriteFileTest::aDamagedFileIsNoticed()
{
    QFETCH(QByteArray, json);
    QVERIFY(!FavouriteFile::fromJson(json.toStdString()).isWhole);
}

void FavouriteFileTest::theRestOfADamagedFileIsRead()
{
    const QByteArray json = QByteArray(HEAD) + "{\"chains\":[{\"name\":\"Bad\"}," + GOOD_CHAIN +
                            "],\"favourites\":[5,{\"chain\":\"Good\"}]}}}";
    const FavouriteFile file = FavouriteFile::fromJson(json.toStdString());
    QVERIFY(!file.isWhole);
    QCOMPARE(file.networks.at("26201").chains.size(), std::size_t(1));
    QCOMPARE(file.networks.at("26201").favourites.size(), std::size_t(1));
}

USSD_TEST_MAIN(FavouriteFileTest)
#include "favourite_file_test.moc"
