#include "look/Look.h"
#include "plugin/CommandMonitor.h"
#include "ShownDevice.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

typedef CommandState::Kind Kind;

/** A code and the state that results from it. */
struct Step {
    const char *code;
    Kind kind;
    TourStop light;
    TourStop dark;
};

const Step STEPS[] = {
    {"*199#",
     Kind::Waiting,
     {"waiting", "a code is in flight"},
     {"waiting-dark", "the same, dark"}},
    {"", Kind::Failed, {"failed", "the network is silent"}, {"failed-dark", "the same, dark"}},
    {"*123#", Kind::MenuOpen, {"menu", "a menu with choices"}, {"menu-dark", "the same, dark"}},
    {"2", Kind::MenuOpen, {"choices", "more choices than fit"}, {"choices-dark", "the same, dark"}},
};

bool takeInBothThemes(TourGuide &guide, const TourStop &light, const TourStop &dark)
{
    bool isTaken = guide.take(light);
    Look::instance().setTheme(ThemeChoice::Dark);
    isTaken = isTaken && guide.take(dark);
    Look::instance().setTheme(ThemeChoice::Light);
    return isTaken;
}

bool walkStep(TourGuide &guide, const Step &step)
{
    CommandMonitor &monitor = guide.window()->controller().monitor();
    const QString code = QLatin1String(step.code);
    if (!code.isEmpty())
        guide.window()->sendCode(code);
    return guide.waitFor([&monitor, &step] {
        return !monitor.state().isPending() == (step.kind != Kind::Waiting) &&
               monitor.state().kind == step.kind;
    }) && takeInBothThemes(guide, step.light, step.dark);
}

} // namespace

bool TourParts::walkStates(TourGuide &guide)
{
    MainWindow *window = guide.window();
    window->showPage(PageId::Codes);
    guide.visit(window, "codes");
    ShownDevice shown(window->device());
    shown.show(ShownDevice::registered("Meridian Mobile", "00101"));
    for (const Step &step : STEPS) {
        if (!walkStep(guide, step))
            return false;
    }
    window->controller().monitor().endMenu();
    return guide.waitFor(
        [window] { return window->controller().monitor().state().kind != Kind::MenuOpen; });
}

} // namespace Dashboard
