#include "PluginFailure.h"

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

const char *const KEYS[] = {
    "",
    "PLUGIN_FILE_MISSING",
    "PLUGIN_NOT_A_LIBRARY",
    "PLUGIN_WRONG_BUILD",
    "PLUGIN_NO_INSTANCE",
    "PLUGIN_NO_INTERFACE",
    "PLUGIN_INIT_FAILED",
    "PLUGIN_NO_SERVICE",
};

} // namespace

QString PluginFailure::text() const
{
    const QString text = dashboardText(KEYS[step]);
    if (text.contains(QLatin1String("%2")))
        return text.arg(file, detail);
    return text.contains(QLatin1String("%1")) ? text.arg(file) : text;
}

} // namespace Dashboard
