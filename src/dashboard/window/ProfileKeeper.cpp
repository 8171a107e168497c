#include "ProfileKeeper.h"

#include <QLocale>

#include "base/DashboardText.h"

namespace Dashboard
{

ProfileKeeper::ProfileKeeper(const ProfileBackup &backup, QObject *parent)
    : QObject(parent), m_backup(backup)
{
}

void ProfileKeeper::start()
{
    if (m_backup.isLost())
        setOffer(Lost);
    else if (m_backup.isDamaged())
        setOffer(Damaged);
    refresh();
}

QString ProfileKeeper::offer() const
{
    if (m_offer == Nothing)
        return QString();
    const QString time = QLocale().toString(m_backup.time(), QLocale::ShortFormat);
    const char *key = m_offer == Lost ? "BANNER_RESTORE_LOST" : "BANNER_RESTORE_DAMAGED";
    return dashboardText(key).arg(time);
}

void ProfileKeeper::setOffer(Offer offer)
{
    m_offer = offer;
    emit offerChanged();
}

// Does not update the copy while it is offered. Otherwise, the codes that the user saves in the
// meantime would replace the codes in the copy.
void ProfileKeeper::refresh()
{
    if (m_offer == Nothing && !m_backup.refresh() && m_backup.isOutdated())
        emit problem(dashboardText("COPY_NOT_WRITTEN").arg(m_backup.copy()));
}

void ProfileKeeper::restore()
{
    if (m_offer == Nothing)
        return;
    if (!m_backup.restore()) {
        emit problem(dashboardText("RESTORE_FAILED").arg(m_backup.userFile(), m_backup.copy()));
        return;
    }
    setOffer(Nothing);
    emit restored();
}

void ProfileKeeper::forget()
{
    m_backup.forget();
    setOffer(Nothing);
    refresh();
}

} // namespace Dashboard
