#include "DesktopNotifier.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "base/DashboardText.h"

namespace Dashboard
{

namespace
{

const char SERVICE[] = "org.freedesktop.Notifications";
const char PATH[] = "/org/freedesktop/Notifications";
const char INTERFACE[] = "org.freedesktop.Notifications";
const char DEFAULT_ACTION[] = "default"; // invoked when the user clicks the notification itself
const char READ_ACTION[] = "read";
const char DESKTOP_ENTRY[] = "ussd-dashboard";
const int DEFAULT_EXPIRY = -1;
const int LONGEST_BODY = 500; // characters

QDBusMessage callOf(const char *method)
{
    return QDBusMessage::createMethodCall(QLatin1String(SERVICE), QLatin1String(PATH),
                                          QLatin1String(INTERFACE), QLatin1String(method));
}

QVariantMap hintsFor(DesktopNote::Kind kind)
{
    QVariantMap hints;
    hints.insert(QLatin1String("desktop-entry"), QLatin1String(DESKTOP_ENTRY));
    if (kind == DesktopNote::Kind::Message)
        hints.insert(QLatin1String("category"), QLatin1String("im.received"));
    return hints;
}

QStringList actionsFor(DesktopNote::Kind kind)
{
    QStringList actions;
    actions << QLatin1String(DEFAULT_ACTION) << dashboardText("MESSAGE_OPEN");
    if (kind == DesktopNote::Kind::Message)
        actions << QLatin1String(READ_ACTION) << dashboardText("MESSAGE_OPEN");
    return actions;
}

} // namespace

DesktopNotifier::DesktopNotifier(const QDBusConnection &bus, QObject *parent)
    : QObject(parent), m_bus(bus)
{
}

/// Shortens and escapes the text. Escaping is necessary, because notification services treat the
/// body as markup, and some of them even load images that the markup refers to.
QString DesktopNotifier::escaped(const QString &text)
{
    return text.left(LONGEST_BODY).toHtmlEscaped();
}

void DesktopNotifier::notify(const DesktopNote &note)
{
    m_shown[note.kind].id = note.id;
    if (!m_bus.isConnected()) {
        emit attention();
        return;
    }
    listen();
    send(note);
}

/// Connects to the signals of the service. This does not block, because the match rule is added
/// asynchronously.
void DesktopNotifier::listen()
{
    if (m_isListening)
        return;
    m_isListening = true;
    m_bus.connect(QLatin1String(SERVICE), QLatin1String(PATH), QLatin1String(INTERFACE),
                  QLatin1String("ActionInvoked"), this, SLOT(onActionInvoked(uint, QString)));
    m_bus.connect(QLatin1String(SERVICE), QLatin1String(PATH), QLatin1String(INTERFACE),
                  QLatin1String("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
}

void DesktopNotifier::send(const DesktopNote &note)
{
    Shown &shown = m_shown[note.kind];
    const int call = ++shown.call;
    QDBusMessage message = callOf("Notify");
    message << dashboardText("APP_TITLE") << shown.number << QLatin1String(DESKTOP_ENTRY)
            << note.title << escaped(note.body) << actionsFor(note.kind) << hintsFor(note.kind)
            << DEFAULT_EXPIRY;
    QDBusPendingCallWatcher *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    const DesktopNote::Kind kind = note.kind;
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, kind, call, watcher] { onSent(kind, call, watcher); });
}

/// Stores the number that the service has assigned to the notification. If a newer notification was
/// sent before the service answered, the service shows both, so the older one is closed.
void DesktopNotifier::onSent(DesktopNote::Kind kind, int call, QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<uint> reply = *watcher;
    if (reply.isError()) {
        emit attention();
        return;
    }
    Shown &shown = m_shown[kind];
    if (call == shown.call)
        shown.number = reply.value();
    else if (reply.value() != shown.number)
        close(reply.value());
}

void DesktopNotifier::close(uint number)
{
    QDBusMessage message = callOf("CloseNotification");
    message << number;
    m_bus.send(message);
}

void DesktopNotifier::withdraw(DesktopNote::Kind kind)
{
    const auto shown = m_shown.find(kind);
    if (shown == m_shown.end())
        return;
    ++shown->call; // a notification that is not confirmed yet is removed by onSent()
    if (shown->number != 0)
        close(shown->number);
    shown->number = 0;
}

void DesktopNotifier::onActionInvoked(uint number, const QString &action)
{
    if (action != QLatin1String(DEFAULT_ACTION) && action != QLatin1String(READ_ACTION))
        return;
    for (auto shown = m_shown.constBegin(); shown != m_shown.constEnd(); ++shown) {
        if (shown->number == number && number != 0)
            return emit activated(shown.key(), shown->id);
    }
}

void DesktopNotifier::onClosed(uint number, uint)
{
    for (Shown &shown : m_shown) {
        if (shown.number == number)
            shown.number = 0;
    }
}

} // namespace Dashboard
