#include "WalkWatcher.h"

#include "CodeForms.h"
#include "UssdCode.h"

namespace Dashboard
{

WalkWatcher::WalkWatcher(CommandMonitor *monitor, QObject *parent)
    : QObject(parent), m_monitor(monitor)
{
    connect(monitor, &CommandMonitor::replied, this, &WalkWatcher::onReply);
    connect(monitor, &CommandMonitor::changed, this, &WalkWatcher::onChanged);
}

void WalkWatcher::forget()
{
    m_recorder.forget();
    emit changed();
}

void WalkWatcher::onReply(const QString &code, const Reply &reply)
{
    const bool isCode = Formats::isUssdCode(code);
    const bool isPlain = codeWithoutNumbers(code, m_monitor->templates()) == code;
    m_recorder.takeReply(code.toStdString(), isCode, isPlain, reply.text.toStdString(),
                         reply.asksForAnswer);
    emit changed();
}

void WalkWatcher::onChanged()
{
    using Kind = CommandState::Kind;
    switch (m_monitor->state().kind) {
    case Kind::Failed:
    case Kind::Cancelled:
        return forget();
    case Kind::MenuEnded:
    case Kind::Ready:
        m_recorder.end();
        emit changed();
        break;
    default:
        break;
    }
}

} // namespace Dashboard
