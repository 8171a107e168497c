#ifndef STARTENVIRONMENT_H
#define STARTENVIRONMENT_H

#include <QByteArray>

#include <map>

namespace Dashboard
{

/**
 * The environment variables that Qt reads when the QApplication is constructed, and that this
 * program sets. Programs that this program starts, such as a browser, must not inherit them.
 */
class StartEnvironment
{
public:
    static StartEnvironment &instance();

    /// Sets the variable. Keeps the previous value for restore().
    void set(const char *variable, const QByteArray &value);

    /// Tells Qt not to load OpenGL, which this program does not use. Loading it takes longer than
    /// the rest of the start, and half of the memory. Settings of the user are kept.
    void leaveOpenGlOut();

    /// Restores the previous values of all variables. Must be called when the QApplication exists.
    void restore();

private:
    std::map<const char *, QByteArray> m_previous; // a null value: the variable was not set
};

} // namespace Dashboard

#endif
