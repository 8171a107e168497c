#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include "account/DemonstrationAccount.h"
#include "look/Look.h"
#include "plugin/CommandMonitor.h"
#include "plugin/GeneralWindow.h"
#include "ShownDevice.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/HomeSetup.h"
#include "window/MainWindow.h"
#include "window/MessageParts.h"

#include <utility>

namespace Dashboard
{

namespace
{

typedef CommandState::Kind Kind;
/// Opens a widget over the window and returns it.
typedef std::function<QWidget *()> Opener;

/** A size of the main window, which determines its form, and a theme. */
struct Shape {
    QSize size; // pixels
    ThemeChoice theme;
    TourStop stop;
};

const Shape SHAPES[] = {
    {{1120, 720}, ThemeChoice::Light, {"wide", "the wide window"}},
    {{1120, 720}, ThemeChoice::Dark, {"wide-dark", "the wide window, dark"}},
    {{360, 640}, ThemeChoice::Light, {"narrow", "the narrowest window"}},
    {{360, 640}, ThemeChoice::Dark, {"narrow-dark", "the narrowest window, dark"}},
};

const TourChange HELD_ON_4G[] = {{"[Network]", "Signal=78", "Signal=78\nModes=4G"}};

const char BALANCE[] = "*100#";
const char MENU[] = "*123#";

void setShape(const TourGuide &guide, const Shape &shape)
{
    Look::instance().setTheme(shape.theme);
    guide.window()->resize(shape.size);
    TourGuide::settle();
}

/// Takes a picture of the window in each form and theme.
bool takeInShapes(TourGuide &guide, const char *place, const Opener &open = Opener())
{
    bool isTaken = true;
    for (const Shape &shape : SHAPES) {
        setShape(guide, shape);
        guide.visit(guide.window(), place);
        QWidget *over = open ? open() : nullptr;
        isTaken = isTaken && (open ? guide.takeWith(over, shape.stop) : guide.take(shape.stop));
        if (over)
            over->close();
        TourGuide::settle();
    }
    setShape(guide, SHAPES[0]);
    return isTaken;
}

template <typename T>
T *part(const TourGuide &guide, const char *name)
{
    return guide.window()->findChild<T *>(QLatin1String(name));
}

HomeSetup &home(const TourGuide &guide)
{
    return *guide.window()->findChild<HomeSetup *>();
}

/// Returns the visible and enabled button with this name. There may be others, because the strip
/// creates its buttons again with each change.
QPushButton *readyButton(const TourGuide &guide, const char *name)
{
    for (QPushButton *button : guide.window()->findChildren<QPushButton *>(QLatin1String(name))) {
        if (button->isVisible() && button->isEnabled())
            return button;
    }
    return nullptr;
}

bool press(TourGuide &guide, const char *name)
{
    if (!guide.waitFor([&] { return readyButton(guide, name); }))
        return false;
    readyButton(guide, name)->click();
    return true;
}

/// Sends a code or an answer, and waits for the state that results from it.
bool send(TourGuide &guide, const char *code, Kind kind)
{
    CommandMonitor &monitor = guide.window()->controller().monitor();
    if (!guide.waitFor([&monitor] { return monitor.canSend(); }) ||
        !monitor.send(QLatin1String(code)))
        return guide.failHere();
    return guide.waitFor([&monitor, kind] {
        return !monitor.state().isPending() && monitor.state().kind == kind && monitor.canSend();
    });
}

// ---- Home

bool walkBalance(TourGuide &guide)
{
    HomeSetup &setup = home(guide);
    guide.window()->showPage(PageId::Home);
    setup.deleteAll();
    bool isTaken = takeInShapes(guide, "home-empty");
    addInventedAccount(&setup.store(), setup.recorder().codes());
    setup.recorder().setLowBalance(QLatin1String("20"));
    isTaken = isTaken && takeInShapes(guide, "home-low");
    setup.recorder().setLowBalance(QString());
    setup.store().setOutdated(true);
    isTaken = isTaken && takeInShapes(guide, "home-outdated");
    setup.store().setOutdated(false);
    return isTaken;
}

bool walkFavourite(TourGuide &guide)
{
    Favourites &favourites = home(guide).favourites();
    favourites.keep(
        {"2 GB for a week", MENU, {{"2", "Data packs"}, {"2", "Week: 2 GB, 4.00 EUR"}}});
    favourites.select(favourites.chains() +
                      favourites.among(home(guide).recorder().codes()).mid(0, 4));
    const bool isTaken = takeInShapes(guide, "home-chain");
    favourites.removeAll();
    return isTaken;
}

// ---- chains

QWidget *openKeepDialog(TourGuide &guide)
{
    const bool isOpen = press(guide, "Dashboard_KeepWalk");
    TourGuide::settle();
    return isOpen ? part<QWidget>(guide, "Dashboard_ChainDialog") : nullptr;
}

QWidget *openHistory(TourGuide &guide)
{
    part<QAction>(guide, "Dashboard_OpenHistory")->trigger();
    TourGuide::settle();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String("Dashboard_HistoryList"))
            return widget;
    }
    return nullptr;
}

bool walkKeeping(TourGuide &guide)
{
    guide.window()->showPage(PageId::Codes);
    return send(guide, BALANCE, Kind::Ready) && send(guide, MENU, Kind::MenuOpen) &&
           send(guide, "2", Kind::MenuOpen) && send(guide, "0", Kind::Ready) &&
           takeInShapes(guide, "walk") &&
           takeInShapes(guide, "keep", [&guide] { return openKeepDialog(guide); }) &&
           takeInShapes(guide, "history", [&guide] { return openHistory(guide); });
}

/// Runs a chain whose last choice has a different price now, so that the chain stops.
bool walkStop(TourGuide &guide)
{
    home(guide).favourites().keep({"Day pack", MENU, {{"2", "Data packs"}, {"1", "Day: 500 MB"}}});
    guide.window()->runChain(QLatin1String("Day pack"));
    const bool isTaken = guide.waitFor([&guide] {
        return part<QWidget>(guide, "Dashboard_WhyStopped");
    }) && takeInShapes(guide, "stopped");
    guide.window()->controller().monitor().endMenu();
    home(guide).favourites().removeAll();
    return isTaken;
}

// ---- finding

bool walkFinding(TourGuide &guide)
{
    QWidget *bar = part<QWidget>(guide, "Dashboard_FindBar");
    QMetaObject::invokeMethod(bar, "open");
    typeInto(part<QLineEdit>(guide, "Dashboard_FindField"), QLatin1String("data"));
    const bool isTaken = takeInShapes(guide, "find");
    QMetaObject::invokeMethod(bar, "dismiss");
    MessageStore &messages = guide.window()->findChild<MessageParts *>()->store();
    const QDateTime now = QDateTime::currentDateTime();
    for (const char *text : {"Your data pack ends tomorrow at 14:00.",
                             "Today only: 1 GB for 1.00 EUR. Dial *124*1# for it."})
        messages.add(QLatin1String("Meridian Mobile"), QLatin1String(text), now, false);
    guide.window()->showPage(PageId::Messages);
    typeInto(part<QLineEdit>(guide, "Dashboard_MessagesSearch"), QLatin1String("data"));
    const bool areMessagesTaken = isTaken && takeInShapes(guide, "search");
    part<QLineEdit>(guide, "Dashboard_MessagesSearch")->clear();
    return areMessagesTaken;
}

// ---- modems on 4G

/// Shows a modem instead of a demonstration, in which the dashboard would query the type of
/// contract at the same time.
bool walk4G(TourGuide &guide)
{
    DeviceStatus status = ShownDevice::registered("Meridian Mobile", "00101");
    status.modes.withOlder = {TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G, TKSV_MODE_4G};
    status.modes.current = {TKSV_MODE_4G, 0};
    ShownDevice shown(guide.window()->device());
    shown.show(status);
    guide.window()->showPage(PageId::Codes);
    if (!guide.useNetwork(HELD_ON_4G, 1) || !send(guide, BALANCE, Kind::Failed) ||
        !takeInShapes(guide, "held-on-4g") || !press(guide, "Dashboard_AllowOlder"))
        return false;
    std::swap(status.modes.current, status.modes.withOlder);
    shown.show(status);
    return send(guide, BALANCE, Kind::Ready) && takeInShapes(guide, "back-to-4g");
}

bool walkSim(TourGuide &guide)
{
    ShownDevice shown(guide.window()->device());
    shown.show(ShownDevice::registered("Meridian Mobile", "00101"));
    return walkBalance(guide) && walkFavourite(guide) && walkKeeping(guide) && walkStop(guide) &&
           walkFinding(guide);
}

} // namespace

bool TourParts::walkSubscriber(TourGuide &guide)
{
    return guide.useNetwork() && guide.usePlugin() &&
           guide.waitFor([&guide] { return guide.isPaidTypeShown(); }) && walkSim(guide) &&
           walk4G(guide);
}

} // namespace Dashboard
