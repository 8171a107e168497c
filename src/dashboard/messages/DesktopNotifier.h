#ifndef DESKTOPNOTIFIER_H
#define DESKTOPNOTIFIER_H

#include <QDBusConnection>
#include <QMap>
#include <QObject>

#include <functional>

class QDBusMessage;
class QDBusPendingCallWatcher;

namespace Dashboard
{

/** A desktop notification. */
struct DesktopNote {
    enum class Kind { Message, LowBalance };

    Kind kind = Kind::Message;
    QString title; // plain text
    QString body;  // plain text
    qint64 id = 0; // passed to activated() when the user clicks the notification
};

/**
 * Shows notifications through the notification service of the desktop
 * (org.freedesktop.Notifications). All functions return immediately. A new notification replaces
 * the previous one of the same kind. If there is no service, attention() is emitted instead.
 */
class DesktopNotifier : public QObject
{
    Q_OBJECT
public:
    explicit DesktopNotifier(const QDBusConnection &bus, QObject *parent = nullptr);

    void notify(const DesktopNote &note);
    /// Removes the notification of this kind, for example because the user has read the message.
    void withdraw(DesktopNote::Kind kind);
    /// Returns the text, shortened if necessary, with all markup characters of notification
    /// services escaped.
    static QString escaped(const QString &text);

signals:
    /// Emitted when the user has clicked a notification.
    void activated(Dashboard::DesktopNote::Kind kind, qint64 id);
    /// Emitted instead of showing a notification if there is no notification service. The window
    /// should then request the user's attention.
    void attention();

private slots:
    void onActionInvoked(uint number, const QString &action);
    void onClosed(uint number, uint reason);

private:
    /** The current notification of a kind. */
    struct Shown {
        uint number = 0; // assigned by the service; 0 until the service has answered
        qint64 id = 0;
        int call = 0; // the number of the most recent call for this kind
    };

    void send(const DesktopNote &note);
    void listen();
    void onSent(DesktopNote::Kind kind, int call, QDBusPendingCallWatcher *watcher);
    void close(uint number);

    QDBusConnection m_bus;
    QMap<DesktopNote::Kind, Shown> m_shown;
    bool m_isListening = false;
};

} // namespace Dashboard

#endif
