#include "StartEnvironment.h"

#include <QGuiApplication>
#include <QOpenGLContext>

namespace Dashboard
{

namespace
{

// The variables that determine how Qt loads OpenGL on X11 and on Wayland. The value "none" prevents
// Qt from loading it. On Wayland, "none" is not a special value, but any name that is not the name
// of a plug-in has the same effect.
const char *const OPENGL_CHOICES[] = {"QT_XCB_GL_INTEGRATION",
                                      "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"};

} // namespace

StartEnvironment &StartEnvironment::instance()
{
    static StartEnvironment environment;
    return environment;
}

void StartEnvironment::set(const char *variable, const QByteArray &value)
{
    m_previous.emplace(variable,
                       qEnvironmentVariableIsSet(variable) ? qgetenv(variable) : QByteArray());
    qputenv(variable, value);
}

void StartEnvironment::leaveOpenGlOut()
{
    for (const char *variable : OPENGL_CHOICES)
        if (!qEnvironmentVariableIsSet(variable))
            set(variable, "none");
}

void StartEnvironment::restore()
{
    if (qApp)
        QOpenGLContext::supportsThreadedOpenGL(); // makes Qt evaluate the variables now instead of
                                                  // later
    for (const auto &[variable, value] : m_previous) {
        if (value.isNull())
            qunsetenv(variable);
        else
            qputenv(variable, value);
    }
    m_previous.clear();
}

} // namespace Dashboard
