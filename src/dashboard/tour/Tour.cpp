#include "Tour.h"

#include "base/DashboardText.h"
#include "TerminalText.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

const QSize WINDOW_SIZE(1120, 720); // pixels

typedef bool (*Part)(TourGuide &guide);

/** A part of the tour, and the languages in which it is shown. */
struct Leg {
    const char *language;
    Part part;
};

const Leg LEGS[] = {
    {"en", TourParts::walkGeneral},  {"en", TourParts::walkAccount},
    {"en", TourParts::walkEditor},   {"en", TourParts::walkServices},
    {"en", TourParts::walkDevices},  {"ar", TourParts::walkGeneral},
    {"ar", TourParts::walkAccount},  {"ar", TourParts::walkEditor},
    {"ar", TourParts::walkServices}, {"ar", TourParts::walkDevices},
    {"de", TourParts::walkAccount},  {"de", TourParts::walkDevices},
    {"de", TourParts::walkEditor},
};

} // namespace

bool Tour::take(MainWindow *window, PrivatePluginFolder *library, const QString &folder)
{
    TourAlbum album(folder);
    if (!album.makeFolder())
        return false;
    TourGuide guide(window, library, &album);
    window->resize(WINDOW_SIZE);
    for (const Leg &leg : LEGS) {
        const QString language = QLatin1String(leg.language);
        album.setLanguage(language);
        window->setLanguage(language);
        if (!leg.part(guide))
            return false;
    }
    if (!album.writeTranscript())
        return false;
    HostCore::printLine(dashboardText("TOUR_DONE").arg(album.pictures()).arg(folder));
    return true;
}

} // namespace Dashboard
