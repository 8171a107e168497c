#include "PrivateDesktop.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace
{

const int LIMIT = 20000;       // ms
const int LOOK_AGAIN_TIME = 5; // ms
const std::chrono::milliseconds STOP_LIMIT(2000);
const char LAUNCHER[] = "/usr/libexec/at-spi-bus-launcher";
const char ADDRESS_PROPERTY[] = "AT_SPI_BUS";
const char BUS_NAME[] = "org.a11y.Bus";
const char BUS_PATH[] = "/org/a11y/bus";

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

std::string local(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// Returns the first line that a server writes to the descriptor. The server writes this line when
/// it accepts connections.
QString firstLine(int descriptor)
{
    QByteArray line;
    pollfd entry = {descriptor, POLLIN, 0};
    char next = 0;
    while (::poll(&entry, 1, LIMIT) == 1 && ::read(descriptor, &next, 1) == 1 && next != '\n')
        line += next;
    return QString::fromLatin1(line);
}

/** A D-Bus connection that is closed by its destructor. */
class Bus
{
public:
    explicit Bus(const QString &address)
        : m_name(text("desktop ") + address),
          m_connection(QDBusConnection::connectToBus(address, m_name))
    {
    }
    ~Bus() { QDBusConnection::disconnectFromBus(m_name); }
    Bus(const Bus &) = delete;
    Bus &operator=(const Bus &) = delete;

    QDBusConnection *operator->() { return &m_connection; }

private:
    QString m_name;
    QDBusConnection m_connection;
};

QDBusMessage busCall(const char *interface, const char *method)
{
    return QDBusMessage::createMethodCall(text(BUS_NAME), text(BUS_PATH), text(interface),
                                          text(method));
}

} // namespace

// The launcher of the accessibility bus stops the bus only if it receives SIGTERM.
PrivateDesktop::~PrivateDesktop()
{
    m_launcher.stop(STOP_LIMIT);
}

QStringList PrivateDesktop::missingPrograms()
{
    QStringList missing;
    for (const char *program : {"Xvfb", "xprop", "dbus-daemon"}) {
        if (QStandardPaths::findExecutable(text(program)).isEmpty())
            missing << text(program);
    }
    if (!QFileInfo::exists(text(LAUNCHER)))
        missing << text(LAUNCHER);
    return missing;
}

QString PrivateDesktop::start(const QString &folder, int width, int height)
{
    m_folder = folder;
    m_screen = text("%1x%2x24").arg(width).arg(height);
    for (const char *name : {"home", "run"}) {
        QDir(folder).mkdir(text(name));
        QFile::setPermissions(folder + QLatin1Char('/') + text(name),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const QString error = startDisplay();
    return error.isEmpty() ? startAccessibility() : error;
}

QString PrivateDesktop::startDisplay()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return text("no pipe for the X server");
    const bool isStarted =
        m_server.start({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0",
                        local(m_screen), "-dpi", "96", "-nolisten", "tcp", "-noreset"},
                       local(m_folder + text("/xvfb.log")), ends[1]);
    ::close(ends[1]);
    const QString number = isStarted ? firstLine(ends[0]) : QString();
    ::close(ends[0]);
    m_display = QLatin1Char(':') + number;
    return number.isEmpty() ? text("Xvfb does not start") : QString();
}

QString PrivateDesktop::startAccessibility()
{
    const std::string error = m_bus.start(local(m_folder));
    if (!error.empty())
        return QString::fromStdString(error);
    // The launcher inherits its environment from this process.
    const QProcessEnvironment values = environment();
    const char *const names[] = {"DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "HOME"};
    std::vector<std::string> command = {"env"};
    for (const char *name : names)
        command.push_back(std::string(name) + '=' + values.value(text(name)).toStdString());
    // The launcher stores the properties that switchOn() sets in GSettings. The default backend of
    // GSettings, dconf, would immediately reset them, because its service is not running.
    command.push_back("GSETTINGS_BACKEND=memory");
    command.insert(command.end(), {LAUNCHER, "--launch-immediately"});
    if (!m_launcher.start(command, local(m_folder + text("/accessibility.log"))))
        return text("the launcher of the accessibility bus does not start");
    m_accessibilityBus = findAccessibilityBus();
    if (m_accessibilityBus.isEmpty())
        return text("there is no accessibility bus");
    if (!switchOn("IsEnabled") || !switchOn("ScreenReaderEnabled") || !startRegistry())
        return text("the accessibility bus does not work");
    return announce() ? QString() : text("xprop does not work");
}

/// Waits until the launcher owns its name on the session bus, which means that it is ready.
QString PrivateDesktop::findAccessibilityBus()
{
    Bus bus(QString::fromStdString(m_bus.address()));
    QElapsedTimer waited;
    waited.start();
    while (!bus->interface()->isServiceRegistered(text(BUS_NAME)) && waited.elapsed() < LIMIT)
        QThread::msleep(LOOK_AGAIN_TIME);
    const QDBusMessage reply = bus->call(busCall(BUS_NAME, "GetAddress"), QDBus::Block, LIMIT);
    return reply.arguments().value(0).toString();
}

/// Sets a property that informs programs that a screen reader is running.
bool PrivateDesktop::switchOn(const char *property)
{
    Bus bus(QString::fromStdString(m_bus.address()));
    QDBusMessage call = busCall("org.freedesktop.DBus.Properties", "Set");
    call << text("org.a11y.Status") << text(property)
         << QVariant::fromValue(QDBusVariant(QVariant(true)));
    return bus->call(call, QDBus::Block, LIMIT).type() == QDBusMessage::ReplyMessage;
}

/// Starts the registry of accessible programs by calling one of its methods. This must happen
/// before a program searches for the registry.
bool PrivateDesktop::startRegistry()
{
    Bus bus(m_accessibilityBus);
    const QDBusMessage call = QDBusMessage::createMethodCall(
        text("org.a11y.atspi.Registry"), text("/org/a11y/atspi/accessible/root"),
        text("org.a11y.atspi.Accessible"), text("GetChildren"));
    return bus->call(call, QDBus::Block, LIMIT).type() == QDBusMessage::ReplyMessage;
}

/// Sets the property of the root window that contains the address of the accessibility bus.
bool PrivateDesktop::announce()
{
    QProcess program;
    program.setProcessEnvironment(environment());
    program.start(text("xprop"), {text("-root"), text("-f"), text(ADDRESS_PROPERTY), text("8s"),
                                  text("-set"), text(ADDRESS_PROPERTY), m_accessibilityBus});
    return program.waitForFinished(LIMIT) && program.exitCode() == 0;
}

QProcessEnvironment PrivateDesktop::environment() const
{
    QProcessEnvironment values = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"WAYLAND_DISPLAY", "XAUTHORITY", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON",
                             "QT_ACCESSIBILITY", "AT_SPI_BUS_ADDRESS", "XDG_DATA_HOME",
                             "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_CURRENT_DESKTOP"})
        values.remove(text(name));
    values.insert(text("QT_QPA_PLATFORM"), text("xcb"));
    values.insert(text("QT_XCB_GL_INTEGRATION"), text("none"));
    values.insert(text("DISPLAY"), m_display);
    values.insert(text("DBUS_SESSION_BUS_ADDRESS"), QString::fromStdString(m_bus.address()));
    values.insert(text("XDG_RUNTIME_DIR"), m_folder + text("/run"));
    values.insert(text("HOME"), m_folder + text("/home"));
    return values;
}
