#include "AccountCodes.h"

#include <QSet>
#include <QXmlStreamReader>

#include "Change.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "plugin/ProfileBackup.h"
#include "PluginConfig.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"
#include "ProfileXml.h"
#include "UssdCode.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

/**
 * A text key that identifies the purpose of a profile, and this purpose. The plug-in's profiles and
 * those generated from the operator database use these keys.
 */
struct KnownKey {
    const char *key;
    CodeKind kind;
};

const KnownKey KNOWN_KEYS[] = {
    {"IDS_PROFILE_BALANCE", CodeKind::Balance},      {"IDS_PROFILE_OWN_NUMBER", CodeKind::Number},
    {"IDS_PROFILE_DATA_LEFT", CodeKind::Data},       {"IDS_PROFILE_VALIDITY", CodeKind::Validity},
    {"IDS_PROFILE_TOP_UP", CodeKind::TopUp},         {"IDS_PROFILE_MENU", CodeKind::Menu},
    {"IDS_PROFILE_DATA_PACKS", CodeKind::Packs},     {"IDS_PROFILE_ROAMING", CodeKind::Roaming},
    {"IDS_PROFILE_VOICE_MAIL", CodeKind::VoiceMail}, {"IDS_PROFILE_TARIFF", CodeKind::Tariff},
    {"IDS_PROFILE_CALL_ME", CodeKind::CallMe}};

CodeKind kindOfKey(const QString &key)
{
    for (const KnownKey &known : KNOWN_KEYS) {
        if (key == QLatin1String(known.key))
            return known.kind;
    }
    return CodeKind::Other;
}

QString nameOf(const USSDProfile &profile)
{
    if (profile.langID.isEmpty())
        return profile.name;
    const QString translated = Change::tr(QLatin1String("USSDUIPlugin"), profile.langID);
    return translated == profile.langID ? profile.name : translated;
}

QList<NamedCode> readProfiles(const QString &file, bool areOwn)
{
    QList<NamedCode> codes;
    const QByteArray content = InputFile::content(file);
    QXmlStreamReader reader;
    ForwardXml::start(reader, content);
    USSDProfile profile;
    while (ProfileXml::readNext(reader, profile)) {
        NamedCode code;
        code.name = nameOf(profile);
        code.code = profile.value.trimmed();
        code.kind = kindOfKey(profile.langID);
        code.isOwn = areOwn;
        if (!code.code.isEmpty())
            codes << code;
    }
    return codes;
}

PluginConfig readConfigurationFile(const QString &file)
{
    PluginConfig config;
    const QByteArray content = InputFile::content(file);
    QXmlStreamReader reader;
    ForwardXml::start(reader, content);
    readConfiguration(reader, config);
    return config;
}

/// Returns the code. Returns an empty string if the code is not offered or requires a number.
QString usable(bool isOffered, const QString &command)
{
    const QString code = command.trimmed();
    return isOffered && !code.contains(INPUT_PLACEHOLDER) ? code : QString();
}

QString firstOfKind(const QList<NamedCode> &codes, CodeKind kind)
{
    for (const NamedCode &code : codes) {
        if (code.kind == kind && !code.isOwn && !code.takesNumber())
            return code.code;
    }
    return QString();
}

void takeConfiguration(const PluginConfig &config, PaidType type, AccountCodes *codes)
{
    codes->paidType = config.prePostDiffer.command.trimmed();
    if (type == PaidType::Unknown)
        return;
    const int index = type == PaidType::Prepaid ? 0 : 1;
    codes->balance = usable(config.balance[index].value, config.balance[index].command);
    codes->number = usable(config.msisdn[index].value, config.msisdn[index].command);
    codes->hasTopUp = config.charge[index].value;
}

} // namespace

const char *codeIcon(CodeKind kind)
{
    switch (kind) {
    case CodeKind::Balance:
    case CodeKind::TopUp:
        return "topup";
    case CodeKind::Number:
        return "number";
    case CodeKind::Data:
        return "data";
    case CodeKind::Validity:
        return "calendar";
    case CodeKind::Menu:
        return "list";
    case CodeKind::Packs:
        return "services";
    case CodeKind::Roaming:
        return "globe";
    case CodeKind::VoiceMail:
        return "voicemail";
    case CodeKind::Tariff:
        return "tag";
    case CodeKind::CallMe:
        return "callme";
    case CodeKind::Other:
        break;
    }
    return "codes";
}

bool NamedCode::takesNumber() const
{
    return code.contains(INPUT_PLACEHOLDER);
}

bool AccountCodes::asksForAccount(const QString &code) const
{
    return !code.isEmpty() &&
           (code == balance || code == number || code == validity || code == data);
}

bool AccountCodes::operator==(const AccountCodes &other) const
{
    if (all.size() != other.all.size())
        return false;
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i).code != other.all.at(i).code || all.at(i).name != other.all.at(i).name)
            return false;
    }
    return balance == other.balance && number == other.number && validity == other.validity &&
           data == other.data && paidType == other.paidType && hasTopUp == other.hasTopUp;
}

CodeFiles CodeFiles::inUse()
{
    const QString folder = HostCore::PluginFolderChoice::current();
    CodeFiles files;
    files.configuration = PluginFiles::path(folder, PluginFiles::CONFIGURATION);
    files.systemProfiles = PluginFiles::path(folder, PluginFiles::SYSTEM_PROFILES);
    files.userProfiles = ProfileBackup::ofUser().userFile();
    return files;
}

QStringList readTemplates(const CodeFiles &files)
{
    QStringList codes;
    for (const NamedCode &named : readAccountCodes(files, PaidType::Unknown).all)
        codes << named.code;
    const PluginConfig config = readConfigurationFile(files.configuration);
    for (const ConfigCharge &charge : config.charge)
        codes << charge.command.trimmed();
    for (const ConfigBalance &balance : config.balance)
        codes << balance.command.trimmed();
    for (const ConfigMSISDN &number : config.msisdn)
        codes << number.command.trimmed();
    return codes;
}

AccountCodes readAccountCodes(const CodeFiles &files, PaidType type)
{
    AccountCodes codes;
    QSet<QString> seen;
    const QList<NamedCode> own =
        files.userProfiles.isEmpty() ? QList<NamedCode>() : readProfiles(files.userProfiles, true);
    for (const NamedCode &code : readProfiles(files.systemProfiles, false) + own) {
        if (!seen.contains(code.code))
            codes.all << code;
        seen.insert(code.code);
    }
    takeConfiguration(readConfigurationFile(files.configuration), type, &codes);
    if (codes.balance.isEmpty() && type != PaidType::Postpaid)
        codes.balance = firstOfKind(codes.all, CodeKind::Balance);
    if (codes.number.isEmpty())
        codes.number = firstOfKind(codes.all, CodeKind::Number);
    codes.validity = firstOfKind(codes.all, CodeKind::Validity);
    codes.data = firstOfKind(codes.all, CodeKind::Data);
    for (const NamedCode &code : codes.all)
        codes.hasTopUp = codes.hasTopUp || code.kind == CodeKind::TopUp;
    return codes;
}

} // namespace Dashboard
