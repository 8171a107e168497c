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

/** A notification for the user while the window is not in front. */
struct DesktopNote {
    enum class Kind { Message, LowBalance };

    Kind kind = Kind::Message;
    QString title; // plain text
    QString body;  // plain text
    qint64 id = 0; // given back when the user clicks the notification
};

/**
 * Notifies the user through the notification service of the desktop
 * (org.freedesktop.Notifications). No call waits for the service. A newer notification of the same
 * kind replaces an older one. If there is no service, attention() is emitted instead.
 */
class DesktopNotifier : public QObject
{
    Q_OBJECT
public:
    explicit DesktopNotifier(const QDBusConnection &bus, QObject *parent = nullptr);

    void notify(const DesktopNote &note);
    /// Removes the notification of this kind, for example because the user has read the message.
    void withdraw(DesktopNote::Kind kind);
    /// Returns the text with the characters escaped that a notification would treat as markup.
    static QString escaped(const QString &text);

signals:
    /// Emitted when the user has clicked a notification.
    void activated(Dashboard::DesktopNote::Kind kind, qint64 id);
    /// Emitted when there is no notification service. The window should draw attention to itself.
    void attention();

private slots:
    void onActionInvoked(uint number, const QString &action);
    void onClosed(uint number, uint reason);

private:
    /** A notification on the desktop. */
    struct Shown {
        uint number = 0; // given by the service; 0 while the service has not answered
        qint64 id = 0;
        int call = 0; // the newest call for this kind
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
