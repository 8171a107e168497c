#include <QApplication>

#include "IUSSD.h"
#include "plugin/GeneralWindow.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

struct Question {
    const char *command;
    TourStop stop; // the stop after the reply has arrived
};

const TourStop IDLE = {"idle", "nothing was sent yet"};
const TourStop WAITING = {"waiting", "a code was sent and is waited for"};
const TourStop CONFIRM = {"confirm", "whether the history is to be cleared"};
const TourStop CLEARED = {"cleared", "the history is empty again"};
const TourStop OTHER_SIM = {"other-sim", "another SIM, with the windows that go with it"};

// The codes and answers that the tour sends. A picture is also taken while the first reply is
// pending.
const Question QUESTIONS[] = {
    {"*100#", {"answered", "the network's reply"}},
    {"*123#", {"menu", "the network's menu, to be answered"}},
    {"2", {"submenu", "one step into the menu"}},
    {"0", {"menu-left", "out of the menu"}},
    {"*199#", {"timed-out", "a network that is silent"}},
    {"*198#", {"refused", "a network that refuses"}},
};

const TourChange POSTPAID_SIM[] = {
    {"[Network]", "Operator=Meridian Mobile", "Operator=Northern Cross"},
    {"[Network]", "IMSI=00101", "IMSI=00102"},
    {"[*103#]", "Prepaid account 550123456, balance {balance}", "Contract customer"},
};

bool waitForAnswer(TourGuide &guide, const GeneralWindow &general)
{
    return guide.waitFor([&general] { return !general.isWaiting(); });
}

bool ask(TourGuide &guide, const GeneralWindow &general, const Question &question)
{
    const QString command = QLatin1String(question.command);
    if (!general.send(command))
        return TourAlbum::fail("SEND_NOT_TAKEN", command);
    if (&question == QUESTIONS && !guide.take(WAITING))
        return false;
    return waitForAnswer(guide, general) && guide.take(question.stop);
}

// Clears the transcript. click() does not return until the confirmation has been answered.
bool clearTranscript(TourGuide &guide, const GeneralWindow &general)
{
    if (!general.clearButton())
        return guide.failHere();
    guide.expectBox(CONFIRM);
    general.clearButton()->click();
    TourGuide::settle();
    if (!guide.sawBox() || !general.transcript().isEmpty())
        return TourAlbum::fail("TOUR_NOT_CLEARED", general.transcript());
    return guide.take(CLEARED);
}

bool visitStops(TourGuide &guide, const GeneralWindow &general)
{
    if (!general.isComplete())
        return guide.failHere();
    if (!guide.take(IDLE))
        return false;
    for (const Question &question : QUESTIONS) {
        if (!ask(guide, general, question))
            return false;
    }
    return clearTranscript(guide, general);
}

bool walkFrame(TourGuide &guide)
{
    if (!guide.open(PAID_TYPE_GENERAL, GeneralWindow::COMMAND_EDIT, "window"))
        return false;
    const bool visited = visitStops(guide, GeneralWindow::framed());
    guide.close();
    return visited;
}

bool walkOtherSim(TourGuide &guide)
{
    const int changes = sizeof POSTPAID_SIM / sizeof *POSTPAID_SIM;
    guide.visit(guide.window(), "dashboard");
    const QString kind = guide.window()->sim().paidTypeText();
    return guide.useNetwork(POSTPAID_SIM, changes) && guide.waitFor([&guide, &kind] {
        return guide.isPaidTypeShown() && guide.window()->sim().paidTypeText() != kind;
    }) && guide.take(OTHER_SIM);
}

} // namespace

bool TourParts::walkGeneral(TourGuide &guide)
{
    MainWindow *window = guide.window();
    if (!guide.useNetwork() || !guide.usePlugin() ||
        !guide.waitFor([&guide] { return guide.isPaidTypeShown(); }))
        return false;
    window->activateWindow();
    window->showPage(PageId::Codes);
    guide.visit(window, "page");
    return visitStops(guide, GeneralWindow(window->page())) && walkFrame(guide) &&
           walkOtherSim(guide);
}

} // namespace Dashboard
