#include "NetworkTextWatcher.h"

#include "tksv_device.h"

namespace Dashboard
{

namespace
{

QDateTime localTime(qlonglong secondsSince1970)
{
    const QDateTime start(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
    return start.addSecs(secondsSince1970).toLocalTime();
}

/// Queues a copy of the message for the watcher, because the record is valid only during the call.
/// Called from a thread of the SDK.
void onText(void *watcher, const TKSV_NetworkText *text)
{
    QMetaObject::invokeMethod(static_cast<NetworkTextWatcher *>(watcher), "tell",
                              Qt::QueuedConnection, Q_ARG(QString, QString::fromUtf8(text->text)),
                              Q_ARG(qlonglong, static_cast<qlonglong>(text->receivedAt)),
                              Q_ARG(bool, text->waitsForAnswer != 0));
}

} // namespace

NetworkTextWatcher::NetworkTextWatcher(QObject *parent) : QObject(parent) {}

NetworkTextWatcher::~NetworkTextWatcher()
{
    TKSV_Device_SetTextCallback(nullptr, nullptr); // waits until a running call-back has returned
}

void NetworkTextWatcher::start()
{
    TKSV_Device_SetTextCallback(onText, this);
}

void NetworkTextWatcher::tell(const QString &text, qlonglong receivedAt, bool waitsForAnswer)
{
    emit textReceived(text, localTime(receivedAt), waitsForAnswer);
}

} // namespace Dashboard
