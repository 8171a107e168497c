#include <QApplication>

#include "account/DemonstrationAccount.h"
#include "look/Look.h"
#include "ShownDevice.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/HomeSetup.h"
#include "window/MainWindow.h"
#include "window/MessageParts.h"

namespace Dashboard
{

namespace
{

const QSize WIDE(1120, 720); // pixels
const QSize MEDIUM(800, 720);
const QSize NARROW(360, 640);
const int FONT_SIZE = 14; // pixels
const int LARGE_FONT_SIZE = 28;

/** The size, theme and font size with which a picture of each page is taken. */
struct Shape {
    QSize size;
    ThemeChoice theme;
    int fontSize;
    TourStop stop;
};

const Shape SHAPES[] = {
    {WIDE, ThemeChoice::Light, FONT_SIZE, {"wide", "the wide window"}},
    {WIDE, ThemeChoice::Dark, FONT_SIZE, {"wide-dark", "the wide window in the dark theme"}},
    {MEDIUM, ThemeChoice::Light, FONT_SIZE, {"medium", "a window of medium width"}},
    {NARROW, ThemeChoice::Light, FONT_SIZE, {"narrow", "the narrowest window"}},
    {NARROW, ThemeChoice::Dark, FONT_SIZE, {"narrow-dark", "the narrowest window, dark"}},
    {WIDE, ThemeChoice::Light, LARGE_FONT_SIZE, {"large", "letters twice as large"}},
};

struct Place {
    PageId page;
    const char *name;
};

const Place PLACES[] = {{PageId::Home, "home"},
                        {PageId::Codes, "codes"},
                        {PageId::Services, "services-page"},
                        {PageId::Messages, "messages"},
                        {PageId::Settings, "settings"}};

const TourChange SPEAKING[] = {
    {"# ---- services", "\n",
     "\n[Push offer]\nAfter=100\nReply=Today only: 1 GB for 1.00 EUR. Dial *124*1# for it.\n"
     "[Push note]\nAfter=200\nReply=Your data pack ends tomorrow at 14:00.\n\n"}};

bool hasMessages(const TourGuide &guide)
{
    MessageParts *parts = guide.window()->findChild<MessageParts *>();
    return parts && parts->store().unreadCount() >= 2;
}

/// Adds account data with a history, which the tour's network does not have.
void fillAccount(const TourGuide &guide)
{
    if (HomeSetup *home = guide.window()->findChild<HomeSetup *>())
        addInventedAccount(&home->store(), home->recorder().codes());
}

void setShape(TourGuide &guide, const Shape &shape)
{
    QFont font = QApplication::font();
    font.setPixelSize(shape.fontSize);
    QApplication::setFont(font);
    Look::instance().setTheme(shape.theme);
    guide.window()->resize(shape.size);
    TourGuide::settle();
}

bool walkShape(TourGuide &guide, const Shape &shape)
{
    setShape(guide, shape);
    for (const Place &place : PLACES) {
        guide.visit(guide.window(), place.name);
        guide.window()->showPage(place.page);
        if (!guide.take(shape.stop))
            return false;
    }
    return true;
}

} // namespace

bool TourParts::walkPages(TourGuide &guide)
{
    if (!guide.useNetwork(SPEAKING, 1) || !guide.usePlugin() ||
        !guide.waitFor([&guide] { return guide.isPaidTypeShown() && hasMessages(guide); }))
        return false;
    ShownDevice shown(guide.window()->device());
    shown.show(ShownDevice::registered("Meridian Mobile", "00101"));
    fillAccount(guide);
    const QFont font = QApplication::font();
    bool isTaken = true;
    for (const Shape &shape : SHAPES)
        isTaken = isTaken && walkShape(guide, shape);
    QApplication::setFont(font);
    setShape(guide, SHAPES[0]);
    return isTaken;
}

} // namespace Dashboard
