#ifndef NETWORKTEXTWATCHER_H
#define NETWORKTEXTWATCHER_H

#include <QDateTime>
#include <QObject>

namespace Dashboard
{

/**
 * Emits a signal for each network-initiated message. All functions must be called from the GUI
 * thread. Only one watcher may exist at a time, because the SDK accepts only one call-back.
 */
class NetworkTextWatcher : public QObject
{
    Q_OBJECT
public:
    explicit NetworkTextWatcher(QObject *parent = nullptr);
    ~NetworkTextWatcher() override;

public slots:
    /// Registers the call-back. Messages that have already arrived are also reported.
    void start();

signals:
    /// Emitted when a message has arrived. `receivedAt` is in local time. `text` is empty if the
    /// text of the message is no longer available.
    void textReceived(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);

private slots:
    void tell(const QString &text, qlonglong receivedAt, bool waitsForAnswer);
};

} // namespace Dashboard

#endif
