#ifndef SINGLEINSTANCE_H
#define SINGLEINSTANCE_H

#include <QByteArray>
#include <QObject>

class QSocketNotifier;

namespace Dashboard
{

/**
 * Ensures that each user has only one window of the program on each display. The first instance
 * listens on an abstract socket, which the system removes when the process ends. Later instances
 * request that the first one raise its window. If it does not answer within ANSWER_LIMIT, they open
 * their own windows.
 */
class SingleInstance : public QObject
{
    Q_OBJECT
public:
    enum Role {
        First, // there is no other instance, or it does not answer
        Later  // the other instance raises its window
    };

    /// The time limit for the answer of the first instance, in milliseconds.
    static const int ANSWER_LIMIT = 1000;

    /// `name` identifies the user's session; see sessionName().
    explicit SingleInstance(const QByteArray &name, QObject *parent = nullptr);
    ~SingleInstance() override;
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    /// Returns a name that is unique to the user, the display and the settings folder. Returns an
    /// empty string if there is no display; every instance is then the first one.
    static QByteArray sessionName(const QString &settingsFile);

    Role role() const { return m_role; }
    /// Returns true if this instance receives the requests of later instances.
    bool isListening() const { return m_notifier; }

signals:
    /// Emitted when another instance has been started and requests that the window be raised.
    void raiseRequested();

private:
    void start();
    bool listenTo(int socket);
    bool askFirst(int socket) const;
    Q_SLOT void answer();

    const QByteArray m_name;
    Role m_role = First;
    int m_socket = -1;
    QSocketNotifier *m_notifier = nullptr;
};

} // namespace Dashboard

#endif
