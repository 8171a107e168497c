#ifndef WINDOWS_PRIVATEDESKTOP_H
#define WINDOWS_PRIVATEDESKTOP_H

#include <QProcessEnvironment>
#include <QString>

#include "ChildProcess.h"
#include "PrivateBus.h"

/**
 * A session bus, an accessibility bus, and an X server without a screen, for test programs. They
 * are isolated from the desktop of the developer, and stop when the object is destroyed. If the
 * test crashes, only the accessibility bus daemon keeps running. Must be created on a thread that
 * exists for as long as the object.
 */
class PrivateDesktop
{
public:
    PrivateDesktop() = default;
    ~PrivateDesktop();
    PrivateDesktop(const PrivateDesktop &) = delete;
    PrivateDesktop &operator=(const PrivateDesktop &) = delete;

    /// Returns the required programs that are not installed.
    static QStringList missingPrograms();

    /// Starts the servers in an empty folder with a short path. Returns an empty string on success,
    /// otherwise an error message.
    QString start(const QString &folder, int width, int height);

    /// Returns the environment for programs that run on this desktop.
    QProcessEnvironment environment() const;
    /// Returns the address of the accessibility bus, where programs publish their accessible
    /// objects.
    const QString &accessibilityBus() const { return m_accessibilityBus; }

private:
    QString startDisplay();
    QString startAccessibility();
    QString findAccessibilityBus();
    bool switchOn(const char *property);
    bool startRegistry();
    bool announce();

    QString m_folder;
    QString m_screen; // width, height and depth
    QString m_display;
    QString m_accessibilityBus;
    FakeModems::PrivateBus m_bus;
    FakeModems::ChildProcess m_server;
    FakeModems::ChildProcess m_launcher;
};

#endif
