#ifndef NETWORKTEXTWATCHER_H
#define NETWORKTEXTWATCHER_H

#include <QDateTime>
#include <QObject>

/** Tells what the network says of its own accord. GUI thread; one at a time, as the SDK has one
 * call-back. */
class NetworkTextWatcher : public QObject
{
    Q_OBJECT
public:
    explicit NetworkTextWatcher(QObject *parent = nullptr);
    ~NetworkTextWatcher() override;

public slots:
    /// Begins to listen; what came before is told too.
    void start();

signals:
    /// `receivedAt` is in local time. An empty text is one that is not known any more.
    void textReceived(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer);

private slots:
    void tell(const QString &text, qlonglong receivedAt, bool waitsForAnswer);
};

#endif
