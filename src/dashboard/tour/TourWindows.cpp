#include <QLineEdit>
#include <QTableWidget>
#include <QTreeWidget>

#include "IUSSD.h"
#include "look/Look.h"
#include "plugin/GeneralWindow.h"
#include "TourEditor.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

const TourStop OVERVIEW = {"overview", "the window after its replies have arrived"};
const TourStop DARK = {"overview-dark", "the same, dark"};

struct PluginWindow {
    int paidType;
    const char *widget; // the object name of a widget in the window
    const char *place;
};

const PluginWindow WINDOWS[] = {
    {PAID_TYPE_GENERAL, GeneralWindow::COMMAND_EDIT, "window"},
    {PAID_TYPE_PREPAID, "USSDUIPlugin_Pre_PostPaid", "prepaid"},
    {PAID_TYPE_POSTPAID, "USSDUIPlugin_Pre_PostPaid", "postpaid"},
    {PAID_TYPE_USSD_SMS, "USSDUIPlugin_SMSDialog", "services"},
};

bool takeInBothThemes(TourGuide &guide)
{
    bool isTaken = guide.take(OVERVIEW);
    Look::instance().setTheme(ThemeChoice::Dark);
    isTaken = isTaken && guide.take(DARK);
    Look::instance().setTheme(ThemeChoice::Light);
    return isTaken;
}

bool isAtRest(const TourGuide &guide)
{
    return !guide.window()->controller().monitor().state().isPending();
}

bool walkWindow(TourGuide &guide, const PluginWindow &window)
{
    const bool isTaken = guide.open(window.paidType, window.widget, window.place) &&
                         guide.waitFor([&guide] { return isAtRest(guide); }) &&
                         takeInBothThemes(guide);
    guide.close();
    return isTaken;
}

bool lookAtEditor(TourGuide &guide, QTableWidget *, const TourStop &)
{
    return takeInBothThemes(guide);
}

} // namespace

bool TourParts::walkWindows(TourGuide &guide)
{
    if (!guide.useNetwork() || !guide.usePlugin())
        return false;
    for (const PluginWindow &window : WINDOWS) {
        if (!walkWindow(guide, window))
            return false;
    }
    guide.window()->showPage(PageId::Codes);
    TourEditor editor(&guide);
    return editor.visit(lookAtEditor, OVERVIEW);
}

} // namespace Dashboard
