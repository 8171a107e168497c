#ifndef SERVICELIST_H
#define SERVICELIST_H

#include <QList>
#include <QString>

class QWidget;

namespace Dashboard
{

/** A service of the operator, as the services window of the plug-in offers it. */
struct Service {
    enum class Input { None, Number, Text };

    int row = 0; // its position in the services window
    QString name;
    bool isByCode = true; // false if the service is ordered by a text message
    QString code;         // with a placeholder if the user enters something
    QString number;       // the recipient of the text message
    Input input = Input::None;
    const char *icon = nullptr; // the name of an icon

    bool operator==(const Service &other) const;
};

/// Reads the services from the configuration of the plug-in, in the order of the services window.
/// `library` is the folder that CommonUtils::GetPluginLibraryPath() returns. The names are in the
/// current language. Services that the window does not show are left out.
QList<Service> readServices(const QString &library);

/// Selects a row of the services window. `window` is the window or one of its parents. Returns
/// false if there is no such row, or if the window is sending something.
bool selectService(const QWidget *window, int row);
/// Selects a row of the services window that is open in a frame.
bool selectServiceInFrame(int row);

} // namespace Dashboard

#endif
