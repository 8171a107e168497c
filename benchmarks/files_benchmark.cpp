/*
 * Measures the time for reading and writing the plug-in's files, and for finding an IMSI in the
 * configuration.
 */
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "Benchmark.h"
#include "PluginConfig.h"
#include "profiles/USSDEditCmd.h"
#include "requests/USSDLogic.h"

using namespace Formats;

namespace
{

const int CONFIGURATION_BYTES = 1000000;
const int PROFILES = 10000;
const int MANY_PREFIXES = 100000;
const int FEW_PREFIXES = 10;
const int IMSIS = 100;
const int IMSI_ROUNDS = 20;

/// Temporary folders that serve as the plug-in's library folder and the user data folder.
class Folders
{
public:
    Folders()
    {
        QDir().mkpath(m_folder.filePath(QLatin1String("plugins/USSDUIPlugin")));
        qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(m_folder.path()));
        qputenv("TKSV_USER_DATA", QFile::encodeName(m_folder.path() + QLatin1Char('/')));
    }

    QString configuration() const
    {
        return m_folder.filePath(QLatin1String("plugins/USSDUIPlugin/USSDPluginConfig.xml"));
    }
    QString profiles() const { return m_folder.filePath(QLatin1String("ussdprofile.xml")); }
    QString otherProfiles() const { return m_folder.filePath(QLatin1String("other.xml")); }

private:
    QTemporaryDir m_folder;
};

/// Writes the installed configuration, enlarged to the required size with additional SIMs.
void writeConfiguration(const QString &path)
{
    QFile shipped(QLatin1String(USSD_SHIPPED_CONFIGURATION));
    if (!shipped.open(QIODevice::ReadOnly))
        qFatal("no configuration to start from: %s", USSD_SHIPPED_CONFIGURATION);
    QByteArray text = shipped.readAll();
    const int place = text.indexOf("</autoUSSD>");
    QByteArray cards;
    for (int i = 0; text.size() + cards.size() < CONFIGURATION_BYTES; ++i)
        cards += "    <item imsi=\"" + QByteArray::number(200000000 + i) +
                 "\" ussd=\"Prepaid/Advanced\"/>\n";
    text.insert(place, cards);
    QFile file(path);
    if (place < 0 || !file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(path));
}

double bareRead(const QString &path)
{
    return Benchmark::microseconds([&path] {
        QFile file(path);
        file.open(QIODevice::ReadOnly | QIODevice::Text);
        QXmlStreamReader reader(&file);
        while (!reader.atEnd())
            reader.readNext();
    });
}

QList<USSDProfile> manyProfiles()
{
    QList<USSDProfile> profiles;
    for (int i = 0; i < PROFILES; ++i) {
        USSDProfile profile;
        profile.name = QString::fromLatin1("Service number %1").arg(i);
        profile.value = QString::fromLatin1("*149*%1#").arg(i);
        profile.showButton = true;
        profiles << profile;
    }
    return profiles;
}

void bareWriteFields(QXmlStreamWriter &writer, const USSDProfile &profile)
{
    writer.writeTextElement(QLatin1String("name"), profile.name);
    writer.writeTextElement(QLatin1String("value"), profile.value);
    writer.writeTextElement(QLatin1String("readonly"), QLatin1String("false"));
    writer.writeTextElement(QLatin1String("showButton"), QLatin1String("true"));
    writer.writeTextElement(QLatin1String("langID"), profile.langID);
    writer.writeTextElement(QLatin1String("desLangID"), profile.desLangID);
}

double bareWrite(const QString &path, const QList<USSDProfile> &profiles)
{
    return Benchmark::microseconds([&path, &profiles] {
        QFile::remove(path);
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Text);
        QXmlStreamWriter writer(&file);
        writer.setAutoFormatting(true);
        writer.writeStartDocument();
        writer.writeStartElement(QLatin1String("tksvdoc"));
        writer.writeAttribute(QLatin1String("type"), QLatin1String("USSDProfile"));
        for (const USSDProfile &profile : profiles) {
            writer.writeStartElement(QLatin1String("item"));
            bareWriteFields(writer, profile);
            writer.writeEndElement();
        }
        writer.writeEndElement();
        writer.writeEndDocument();
    });
}

/// Returns the time for constructing the logic object, which reads the configuration.
double firstLoad()
{
    const double time = Benchmark::microseconds([] { USSDLogic::GetUSSDLogicInstance(); });
    USSDLogic *logic = USSDLogic::GetUSSDLogicInstance();
    if (!logic->IsImsiDynamicMatch())
        qFatal("the configuration was not loaded");
    logic->unSDKRegisterEvent();
    USSDLogic::Destroy();
    return time;
}

void compareConfiguration(const Folders &folders)
{
    Benchmark::compare(Benchmark::Title("configuration loaded, 1 MB", "Qt's XML reader alone", 1.5),
                       firstLoad, [&folders] { return bareRead(folders.configuration()); });
}

void compareProfiles(const Folders &folders)
{
    const QList<USSDProfile> profiles = manyProfiles();
    bareWrite(folders.profiles(), profiles);
    USSDEditCmd store;
    Benchmark::compare(
        Benchmark::Title("10,000 profiles loaded", "Qt's XML reader alone", 2),
        [&store] { return Benchmark::microseconds([&store] { store.load(); }); },
        [&folders] { return bareRead(folders.profiles()); });
    QList<USSDProfile> loaded;
    store.GetProfileList(loaded);
    if (loaded.count() != PROFILES)
        qFatal("%d profiles were loaded", loaded.count());
    Benchmark::compare(
        Benchmark::Title("10,000 profiles saved", "bare writer", 2),
        [&store] { return Benchmark::microseconds([&store] { store.saveToXMLFile(false); }); },
        [&folders, &profiles] { return bareWrite(folders.otherProfiles(), profiles); });
}

/// Returns a map of `count` IMSI prefixes of at least six digits.
QHash<QString, int> prefixes(int count)
{
    QHash<QString, int> map;
    for (int i = 0; i < count; ++i)
        map.insert(QString::number(20000 + i % 1000) + QString::number(i / 1000), WINDOW_ADVANCED);
    return map;
}

/// Returns IMSIs that do not match any prefix. A search for such an IMSI tries all prefix lengths.
QStringList imsis()
{
    QStringList result;
    for (int i = 0; i < IMSIS; ++i)
        result << QString::number(900000000000000LL + i * 4999979999LL % 10000000000000LL);
    return result;
}

double match(const QHash<QString, int> &map, const QStringList &cards)
{
    int flags = 0;
    return Benchmark::microseconds([&] {
               for (int round = 0; round < IMSI_ROUNDS; ++round) {
                   for (const QString &card : cards)
                       matchImsi(map, card, flags);
               }
           }) /
           (IMSI_ROUNDS * cards.count());
}

void compareImsis()
{
    const QHash<QString, int> many = prefixes(MANY_PREFIXES), few = prefixes(FEW_PREFIXES);
    const QStringList cards = imsis();
    Benchmark::compare(
        Benchmark::Title("IMSI looked up in 100,000 prefixes", "in 10 prefixes", 1.5),
        [&] { return match(many, cards); }, [&] { return match(few, cards); },
        5 * Benchmark::ROUNDS);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Benchmark::dropMessages();
    Folders folders;
    writeConfiguration(folders.configuration());
    compareConfiguration(folders);
    compareProfiles(folders);
    compareImsis();
    return 0;
}
