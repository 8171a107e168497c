/* Fuzzes the profile file of a user. Reads the file, saves it, and reads it again. */
#include "FuzzSupport.h"

#include <QDir>
#include <QSet>

#include "profiles/USSDEditCmd.h"

using namespace Formats;

namespace
{

QString userFolder()
{
    return FuzzSupport::folder() + QLatin1String("/user/");
}

QList<USSDProfile> profilesOf(USSDEditCmd &store)
{
    QList<USSDProfile> profiles;
    store.GetProfileList(profiles);
    return profiles;
}

/// Reads the profile files, saves the profiles and returns them.
QList<USSDProfile> readAndSave()
{
    USSDEditCmd store;
    FUZZ_REQUIRE(store.saveToXMLFile(false) == USSDEditCmd::SAVE_OK);
    return profilesOf(store);
}

void checkProfiles(const QList<USSDProfile> &profiles, size_t bytes)
{
    FUZZ_REQUIRE(profiles.count() >= 1 && profiles.first().isSystem);
    FUZZ_REQUIRE(static_cast<size_t>(profiles.count()) <= bytes / 6 + 1); // "<item>" has six bytes
    QSet<QString> codes;
    for (const USSDProfile &profile : profiles) {
        // If several profiles have the same code, only the first one is kept.
        FUZZ_REQUIRE(!codes.contains(profile.value));
        codes.insert(profile.value);
    }
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzSupport::dropMessages();
    FuzzSupport::needApplication();
    const QString data = FuzzSupport::folder() + QLatin1String("/plugins/USSDUIPlugin");
    QDir().mkpath(data);
    QDir().mkpath(userFolder());
    qputenv("USSD_PLUGIN_LIBRARY_PATH", FuzzSupport::folder().toLocal8Bit());
    qputenv("USSD_FUZZ_USER_FOLDER", userFolder().toLocal8Bit());
    FuzzSupport::writeFile(data + QLatin1String("/ussdsysprofile.xml"),
                           "<tksvdoc><item><name>Balance</name><value>*100#</value></item>"
                           "</tksvdoc>");
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file(reinterpret_cast<const char *>(data), static_cast<int>(size));
    FuzzSupport::writeFile(userFolder() + QLatin1String("ussdprofile.xml"), file);
    checkProfiles(readAndSave(), size);
    // The first save may trim spaces, which can make two codes equal. The second save must not
    // change anything.
    const QList<USSDProfile> saved = readAndSave();
    checkProfiles(saved, size);
    FUZZ_REQUIRE(readAndSave() == saved);
    return 0;
}
