#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "device/DeviceWatcher.h"
#include "device/Situation.h"
#include "InstallPaths.h"
#include "plugin/PrivatePluginFolder.h"
#include "ShownDevice.h"
#include "sim/OperatorCodes.h"
#include "tksv_device.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/Banners.h"
#include "window/DeviceMenu.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

const char MAIN[] = "dashboard";
const char MODEM[] = "353612345678901";
const char PIN_DIALOG[] = "Dashboard_PinDialog";

const TourStop NO_MODEM = {"no-modem", "no modem is there"};
const TourStop NO_SERVICE = {"no-service", "ModemManager does not run"};
const TourStop SWITCHED_OFF = {"switched-off", "the modem is switched off"};
const TourStop NO_CODES = {"no-codes", "no codes are set up for the SIM of a modem"};
const TourStop FOREIGN = {"foreign-session", "another program uses codes"};
const TourStop NOT_PERMITTED = {"not-permitted", "the system's policy refuses the modem"};
const TourStop TWO_MODEMS = {"two-modems", "the menu, with two modems of the same name"};
const TourStop LOCKED = {"locked-sim", "the SIM waits for its PIN"};
const TourStop PIN = {"pin", "the PIN is typed"};
const TourStop WRONG_PIN = {"wrong-pin", "it was not the PIN"};
const TourStop LAST_TRY = {"last-try", "the last try"};
const TourStop MESSAGE = {"network-message", "the network says something of its own accord"};
const TourStop QUESTION = {"network-question", "the network asks for an answer"};
const TourStop PROPOSAL = {"operator-proposed", "several operators fit the SIM"};
const TourStop OPERATORS = {"operator-choice", "which one is it?"};
const TourStop PROVISIONED = {"operator-in-use", "the operator's codes are in use"};

const TourChange LOCKED_SIM[] = {{"[Network]", "State=registered", "State=sim-locked\nPIN=2468"}};
const TourChange SPEAKING[] = {{"# ---- services", "\n",
                                "\n[Push offer]\nAfter=300\nReply=Today only: 1 GB for 1.00 EUR. "
                                "Dial *124*1# for it.\n\n[Push question]\nAfter=600\n"
                                "Reply=A gigabyte for 1.00 EUR?\\n1 Yes\\n2 No\n"
                                "[Push question/1]\nReply=Booked.\n\n"}};

template <typename T>
T *part(const TourGuide &guide, const char *name)
{
    return guide.window()->findChild<T *>(QLatin1String(name));
}

bool isShown(const QWidget *widget)
{
    return widget && widget->isVisible();
}

// ---- modems

OperatorPlaces placesOfTour(const PrivatePluginFolder *library)
{
    OperatorPlaces places;
    places.database = HostCore::InstallPaths::share() + QLatin1String("/tour/tour-operators.xml");
    places.folders = library->path() + QLatin1String("/operators-") +
                     QString::number(QDir(library->path()).count());
    return places;
}

bool walkTroubles(TourGuide &guide)
{
    const struct {
        int state;
        int problem;
        const char *model;
        TourStop stop;
    } troubles[] = {
        {TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NONE, "", NO_MODEM},
        {TKSV_DEVICE_ABSENT, TKSV_PROBLEM_NO_SERVICE, "", NO_SERVICE},
        {TKSV_DEVICE_DISABLED, TKSV_PROBLEM_NOT_PERMITTED, ShownDevice::MODEL, NOT_PERMITTED},
        {TKSV_DEVICE_DISABLED, TKSV_PROBLEM_NONE, ShownDevice::MODEL, SWITCHED_OFF}};
    ShownDevice shown(guide.window()->device());
    for (const auto &trouble : troubles) {
        shown.show(trouble.state, trouble.problem, trouble.model);
        if (!guide.take(trouble.stop))
            return false;
    }
    return true;
}

bool walkTwoModems(TourGuide &guide)
{
    ShownDevice shown(guide.window()->device());
    shown.addModem(MODEM, ShownDevice::MODEL, true);
    shown.addModem("353612345674417", ShownDevice::MODEL, false);
    shown.show(TKSV_DEVICE_SEARCHING, TKSV_PROBLEM_NONE, ShownDevice::MODEL);
    guide.window()->setDevice(DeviceChoice::modem(QLatin1String(MODEM)));
    DeviceMenu *menu = guide.window()->deviceMenu();
    menu->fill();
    TourGuide::settle();
    QWidget *line = part<QWidget>(guide, "Dashboard_DeviceLine");
    menu->popup(line->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
    const bool isTaken = guide.takeWith(menu, TWO_MODEMS);
    menu->close();
    return isTaken;
}

bool walkUnknownOperator(TourGuide &guide)
{
    ShownDevice shown(guide.window()->device());
    DeviceStatus status = ShownDevice::registered("Roamtel", "00199");
    shown.show(status);
    if (!guide.take(NO_CODES))
        return false;
    status.hasForeignSession = true;
    shown.show(status);
    return guide.take(FOREIGN);
}

/// Shows modems as they look without a demonstration, and therefore without the codes of the tour's
/// network.
bool walkModems(TourGuide &guide)
{
    OperatorCodes &codes = guide.window()->operatorCodes();
    codes.setPlaces(placesOfTour(guide.library()));
    const bool isTaken = walkTroubles(guide) && walkTwoModems(guide) && walkUnknownOperator(guide);
    codes.setPlaces(OperatorPlaces::ofUser());
    return isTaken;
}

// ---- a locked SIM

bool tryPin(TourGuide &guide, const char *pin)
{
    QLineEdit *edit = part<QLineEdit>(guide, "Dashboard_PinEdit");
    edit->setText(QLatin1String(pin));
    part<QPushButton>(guide, "Dashboard_PinOk")->click();
    return guide.waitFor([&guide] {
        const QLineEdit *field = part<QLineEdit>(guide, "Dashboard_PinEdit");
        return !isShown(field) || field->isEnabled();
    });
}

bool walkPin(TourGuide &guide)
{
    if (!guide.useNetwork(LOCKED_SIM, 1) || !guide.take(LOCKED))
        return false;
    guide.window()->perform(Remedy::EnterPin);
    QWidget *dialog = part<QWidget>(guide, PIN_DIALOG);
    part<QLineEdit>(guide, "Dashboard_PinEdit")->setText(QLatin1String("1357"));
    if (!guide.takeWith(dialog, PIN) || !tryPin(guide, "1357") ||
        !guide.takeWith(dialog, WRONG_PIN) || !tryPin(guide, "1359") ||
        !guide.takeWith(dialog, LAST_TRY))
        return false;
    return tryPin(guide, "2468") &&
           guide.waitFor([&guide] { return !isShown(part<QWidget>(guide, PIN_DIALOG)); });
}

// ---- messages that the network sends of its own accord

bool walkTexts(TourGuide &guide)
{
    if (!guide.useNetwork(SPEAKING, 1))
        return false;
    const QWidget *messages = part<QWidget>(guide, "Dashboard_NavMessages");
    const CommandMonitor &monitor = guide.window()->controller().monitor();
    guide.window()->showPage(PageId::Messages);
    const bool isTaken =
        guide.waitFor([messages] { return !messages->accessibleDescription().isEmpty(); }) &&
        guide.take(MESSAGE) &&
        guide.waitFor([&monitor] { return monitor.state().kind == CommandState::Kind::MenuOpen; });
    guide.window()->showPage(PageId::Home); // its last row shows the message
    const bool isAsked = isTaken && guide.take(QUESTION);
    guide.window()->showPage(PageId::Codes);
    return isAsked;
}

// ---- an operator's codes

bool chooseFirstOperator(TourGuide &guide)
{
    part<QPushButton>(guide, "Dashboard_BannerAction")->click();
    QListWidget *list = part<QListWidget>(guide, "Dashboard_OperatorList");
    if (!list)
        return guide.failHere();
    list->setCurrentRow(0);
    if (!guide.takeWith(part<QWidget>(guide, "Dashboard_OperatorDialog"), OPERATORS))
        return false;
    part<QPushButton>(guide, "Dashboard_OperatorOk")->click();
    return true;
}

bool isProposing(const TourGuide &guide)
{
    const Banners *banners = part<Banners>(guide, "Dashboard_Banner");
    return banners->isVisible() && banners->shown() == Banners::Operator;
}

bool walkOperator(TourGuide &guide)
{
    OperatorCodes &codes = guide.window()->operatorCodes();
    ShownDevice shown(guide.window()->device());
    DeviceStatus status = ShownDevice::registered("Roamtel", "00101");
    shown.show(status);
    codes.setPlaces(placesOfTour(guide.library()));
    const bool isTaken = guide.waitFor([&guide] { return isProposing(guide); }) &&
                         guide.take(PROPOSAL) && chooseFirstOperator(guide) &&
                         guide.waitFor([&codes] { return !codes.operatorInUse().isEmpty(); }) &&
                         guide.waitFor([&guide] {
                             return part<QAction>(guide, "Dashboard_ActionPrepaid")->isVisible();
                         }) &&
                         guide.take(PROVISIONED);
    codes.setPlaces(OperatorPlaces::ofUser());
    return isTaken;
}

} // namespace

bool TourParts::walkDevices(TourGuide &guide)
{
    guide.window()->showPage(PageId::Codes);
    guide.visit(guide.window(), MAIN);
    return guide.useNetwork() && walkModems(guide) && walkPin(guide) && walkTexts(guide) &&
           walkOperator(guide) && guide.useNetwork() && guide.usePlugin();
}

} // namespace Dashboard
