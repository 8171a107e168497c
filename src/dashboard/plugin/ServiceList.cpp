#include "ServiceList.h"

#include <QApplication>
#include <QFile>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include "Change.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "PluginFiles.h"
#include "SmsLayout.h"
#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const char TREE[] = "USSDUIPlugin_SMSDialog_ServiceTree";

// The indexes of a service's controls in the configuration file.
const int INPUT = 2;
const int BUTTON = 3;

/** A word in the text key of a service's name, and the icon for this kind of service. */
struct KindOfService {
    const char *word;
    const char *icon;
};

const KindOfService KINDS[] = {
    {"DATA", "data"},      {"ROAM", "globe"},       {"VOICE", "voicemail"}, {"CALL", "callme"},
    {"TRANSFER", "topup"}, {"CREDIT", "topup"},     {"BALANCE", "topup"},   {"ALERT", "bell"},
    {"NUMBER", "number"},  {"CALENDAR", "calendar"}};

/// Returns the icon for a service whose name has this text key. The icon depends on the words in
/// the key, which are the same in every language.
const char *iconOf(const QString &key, bool isByCode)
{
    for (const KindOfService &kind : KINDS) {
        if (key.contains(QLatin1String(kind.word), Qt::CaseInsensitive))
            return kind.icon;
    }
    return isByCode ? "codes" : "messages";
}

/// Returns true if the field accepts only the characters of phone numbers.
bool takesNumbersOnly(const QString &limitText)
{
    if (limitText.isEmpty())
        return false;
    for (const QChar character : limitText) {
        if (character.isLetter())
            return false;
    }
    return true;
}

Service::Input inputOf(const Formats::CWidgetItemInfo &control)
{
    if (!control.visible || control.length <= 0)
        return Service::Input::None;
    return takesNumbersOnly(control.limitText) ? Service::Input::Number : Service::Input::Text;
}

/// Creates the service for a tree entry. Returns false if the window does not show a button for
/// this entry, for example because the group is null.
bool makeService(const Formats::CTreeItem &entry, const Formats::CWidget *group, Service *service)
{
    if (!group || group->controls.size() != Formats::SmsLayoutFile::CONTROLS_OF_GROUP)
        return false;
    const Formats::CWidgetItemInfo &button = *group->controls.at(BUTTON);
    if (!button.visible || button.kind == Formats::CONTROL_KIND_NONE)
        return false;
    service->name = Change::tr(QLatin1String("USSDUIPlugin"), entry.textId);
    service->isByCode = button.kind == Formats::CONTROL_KIND_USSD;
    service->code = button.command;
    service->number = button.number;
    service->input = inputOf(*group->controls.at(INPUT));
    service->icon = iconOf(entry.textId, service->isByCode);
    return true;
}

QList<Service> servicesOf(const Formats::SmsLayout &layout)
{
    QList<Service> services;
    int row = 0;
    for (const Formats::CTreeItem *entry : layout.entries) { // sorted by number, as in the window
        if (!entry->isChild)
            continue;
        Service service;
        service.row = row++;
        if (makeService(*entry, layout.groups.value(entry->number), &service))
            services << service;
    }
    return services;
}

} // namespace

bool Service::operator==(const Service &other) const
{
    return row == other.row && name == other.name && isByCode == other.isByCode &&
           code == other.code && number == other.number && input == other.input &&
           icon == other.icon;
}

QList<Service> readServices(const QString &library)
{
    using namespace Formats;
    QFile file(PluginFiles::path(library, PluginFiles::CONFIGURATION));
    QString problem;
    if (library.isEmpty() || !InputFile::open(file, QIODevice::Text, problem))
        return QList<Service>();
    QXmlStreamReader reader;
    ForwardXml::start(reader, file);
    SmsLayout layout;
    SmsLayoutFile::read(reader, layout); // services before an error are used, as in the window
    return layout.hasRoot ? servicesOf(layout) : QList<Service>();
}

bool selectService(const QWidget *window, int row)
{
    QTreeWidget *tree = window ? window->findChild<QTreeWidget *>(QLatin1String(TREE)) : nullptr;
    QTreeWidgetItem *root = tree ? tree->topLevelItem(0) : nullptr;
    if (!root || !tree->isEnabled() || row < 0 || row >= root->childCount())
        return false;
    tree->setCurrentItem(root->child(row));
    tree->scrollToItem(root->child(row));
    return true;
}

bool selectServiceInFrame(int row)
{
    for (const QWidget *frame : QApplication::topLevelWidgets()) {
        if (frame->isVisible() && selectService(frame, row))
            return true;
    }
    return false;
}

} // namespace Dashboard
