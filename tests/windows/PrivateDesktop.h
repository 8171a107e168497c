#ifndef WINDOWS_PRIVATEDESKTOP_H
#define WINDOWS_PRIVATEDESKTOP_H

#include <QProcessEnvironment>
#include <QString>

#include "ChildProcess.h"
#include "PrivateBus.h"

/**
 * An X server without a screen, a session bus and an accessibility bus for the programs of a test.
 * They are isolated from the desktop of the person who runs the test, and end with the object. If
 * the test crashes, only the daemon of the accessibility bus remains. Must be created on a thread
 * that exists as long as the object.
 */
class PrivateDesktop
{
public:
    PrivateDesktop() = default;
    ~PrivateDesktop();
    PrivateDesktop(const PrivateDesktop &) = delete;
    PrivateDesktop &operator=(const PrivateDesktop &) = delete;

    /// Returns the programs that this class needs and that are not installed.
    static QStringList missingPrograms();

    /// Starts the servers in an empty folder, whose path must be short. Returns an empty string on
    /// success, otherwise the error.
    QString start(const QString &folder, int width, int height);

    /// Returns the environment of programs that run on this desktop.
    QProcessEnvironment environment() const;
    /// Returns the address of the bus on which programs publish their accessible objects.
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
