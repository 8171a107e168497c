#ifndef SERVICELIST_H
#define SERVICELIST_H

#include <QList>
#include <QString>

class QWidget;

namespace Dashboard
{

/** An operator service that the services window of the plug-in contains. */
struct Service {
    enum class Input { None, Number, Text };

    int row = 0; // the position of the service in the services window
    QString name;
    bool isByCode = true; // true if the service sends a code, false if it sends a short message
    QString code;         // contains a placeholder if the service requires input
    QString number;       // the recipient of the short message
    Input input = Input::None;
    const char *icon = nullptr; // the name of an icon

    bool operator==(const Service &other) const;
};

/// Reads the services from the configuration of the plug-in, in the order of the services window.
/// `library` is the folder that CommonUtils::GetPluginLibraryPath() returns. The names are in the
/// current language. Services that the window does not show are omitted.
QList<Service> readServices(const QString &library);

/// Selects a row of the services window. `window` is the window or one of its parents. Returns
/// false if the row does not exist or if the window is sending something.
bool selectService(const QWidget *window, int row);
/// Like selectService(), for the services window that is open in a separate frame.
bool selectServiceInFrame(int row);

} // namespace Dashboard

#endif
