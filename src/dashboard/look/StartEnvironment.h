#ifndef STARTENVIRONMENT_H
#define STARTENVIRONMENT_H

#include <QByteArray>

#include <map>

namespace Dashboard
{

/**
 * Sets environment variables that Qt evaluates when the QApplication is constructed. Programs that
 * the dashboard starts, such as a browser, must not inherit these variables.
 */
class StartEnvironment
{
public:
    static StartEnvironment &instance();

    /// Sets the variable and saves its previous value for restore().
    void set(const char *variable, const QByteArray &value);

    /// Prevents Qt from loading OpenGL, which this program does not use. Loading OpenGL would take
    /// a large part of the start-up time and half of the memory. Variables that the user has set
    /// are not changed.
    void leaveOpenGlOut();

    /// Restores the previous values of all variables. Must be called after the QApplication has
    /// been constructed.
    void restore();

private:
    std::map<const char *, QByteArray> m_previous; // the value is null if it was not set
};

} // namespace Dashboard

#endif
