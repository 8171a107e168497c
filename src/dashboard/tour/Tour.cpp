#include "Tour.h"

#include "base/DashboardText.h"
#include "Languages.h"
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

/** A part of the tour. */
struct Leg {
    Part part;
    bool isInEachLanguage; // true if a tour in all languages includes this part
};

const Leg LEGS[] = {
    {TourParts::walkPages, true},       {TourParts::walkStates, true},
    {TourParts::walkWindows, true},     {TourParts::walkDevices, true},
    {TourParts::walkGeneral, false},    {TourParts::walkAccount, false},
    {TourParts::walkEditor, false},     {TourParts::walkServices, false},
    {TourParts::walkSubscriber, false},
};

bool walk(TourGuide &guide, TourAlbum &album, const QString &language, bool isComplete)
{
    album.setLanguage(language);
    guide.window()->setLanguage(language);
    for (const Leg &leg : LEGS) {
        if ((isComplete || leg.isInEachLanguage) && !leg.part(guide))
            return false;
    }
    return album.writeContactSheet();
}

} // namespace

bool Tour::take(MainWindow *window, PrivatePluginFolder *library, const QString &folder,
                const QString &language)
{
    TourAlbum album(folder);
    if (!album.makeFolder())
        return false;
    TourGuide guide(window, library, &album);
    window->resize(WINDOW_SIZE);
    const QString own = HostCore::Languages::current();
    const bool isComplete = !language.isEmpty();
    for (const QString &each : isComplete ? QStringList(language) : HostCore::Languages::codes()) {
        if (!walk(guide, album, each, isComplete))
            return false;
    }
    window->setLanguage(own);
    if (!album.writeTranscript())
        return false;
    HostCore::printLine(dashboardText("TOUR_DONE").arg(album.pictures()).arg(folder));
    return true;
}

} // namespace Dashboard
