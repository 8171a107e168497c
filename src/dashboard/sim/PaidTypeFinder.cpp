#include "PaidTypeFinder.h"

#include "IUSSD.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/ReplyTap.h"
#include "ReplyTimeout.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

// When a device is removed, the plug-in cancels its commands on a thread of the SDK and reports
// their failure. If a query were sent before that, this failure would be mistaken for the reply to
// the query.
const int SETTLING_TIME = 200; // ms

// The time after the time-out during which the plug-in may still report it. A time limit is
// necessary, because the plug-in does not report the time-out if the window that sent the query has
// been deleted.
const int PLUGIN_GRACE = 2000; // ms

} // namespace

PaidTypeFinder::PaidTypeFinder(LoadedPlugin *plugin, ReplyTap *replies, QObject *parent)
    : QObject(parent), m_plugin(plugin), m_replies(replies)
{
    m_container.add(QLatin1String(NotificationService::CLSID), &m_notifications);
    m_settling.setSingleShot(true);
    m_timeLimit.setSingleShot(true);
    connect(&m_settling, SIGNAL(timeout()), this, SIGNAL(settled()));
    connect(&m_timeLimit, SIGNAL(timeout()), this, SLOT(giveUp()));
    connect(&m_notifications, SIGNAL(paidTypeTold(PaidType)), this, SLOT(takeAnswer(PaidType)));
}

void PaidTypeFinder::restart()
{
    m_isWanted = true;
    m_settling.start(SETTLING_TIME);
    setState(PaidType::Unknown, false);
}

void PaidTypeFinder::tryToAsk()
{
    if (!m_isWanted || m_settling.isActive() || !m_plugin->isUsable())
        return;
    m_isWanted = false;
    bool inUse = false;
    bool postpaid = false;
    int wasSent = 0;
    m_replies->clear();
    m_plugin->ussd()->GetPrePostInfo(inUse, postpaid, wasSent, true);
    setState(PaidType::Unknown, inUse && wasSent);
}

// Stores the result of the query. An unexpected result is ignored, because it belongs to a SIM that
// has been removed. If the query fails, the plug-in reports "postpaid", so the result is used only
// if there was a reply.
void PaidTypeFinder::takeAnswer(PaidType type)
{
    if (isAsking())
        setState(m_replies->reply().text.isEmpty() ? PaidType::Unknown : type, false);
}

void PaidTypeFinder::giveUp()
{
    emit changed();
}

void PaidTypeFinder::setState(PaidType type, bool asking)
{
    const bool same = type == m_type && asking == isAsking();
    m_type = type;
    if (asking)
        m_timeLimit.start(replyTimeout() + PLUGIN_GRACE);
    else
        m_timeLimit.stop();
    if (!same)
        emit changed();
}

} // namespace Dashboard
