#include "ProfileKeeper.h"

#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QPushButton>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "MessageBox.h"

namespace Dashboard
{

namespace
{

enum Answer { NoAnswer, Yes, No };

/// Shows a message box and returns the user's choice. Escape and the window's close button are
/// treated as no answer, so that nothing is deleted accidentally.
Answer ask(const QString &text)
{
    const QPointer<HostCore::MessageBox> box(
        new HostCore::MessageBox(QMessageBox::Question, dashboardText("RESTORE_CAPTION"), text,
                                 CommonUtils::GetMainWindow()));
    const QAbstractButton *yes =
        box->addButton(dashboardText("RESTORE_YES"), QMessageBox::AcceptRole);
    const QAbstractButton *no =
        box->addButton(dashboardText("RESTORE_NO"), QMessageBox::RejectRole);
    box->exec();
    Answer answer = NoAnswer;
    if (box && box->clickedButton() == yes)
        answer = Yes;
    else if (box && box->clickedButton() == no)
        answer = No;
    delete box;
    return answer;
}

} // namespace

ProfileKeeper::ProfileKeeper(const ProfileBackup &backup, QObject *parent)
    : QObject(parent), m_backup(backup)
{
}

void ProfileKeeper::start()
{
    if (m_backup.isLost())
        offerRestore("RESTORE_OFFER");
    else if (m_backup.isDamaged())
        offerRestore("RESTORE_OFFER_DAMAGED");
    refresh();
    emit ready();
}

void ProfileKeeper::refresh()
{
    if (!m_backup.refresh() && m_backup.isOutdated())
        emit problem(dashboardText("COPY_NOT_WRITTEN").arg(m_backup.copy()));
}

void ProfileKeeper::offerRestore(const char *question)
{
    const QString time = QLocale().toString(m_backup.time(), QLocale::ShortFormat);
    switch (ask(dashboardText(question).arg(QDir::toNativeSeparators(m_backup.userFile()), time))) {
    case Yes:
        return restore();
    case No:
        m_backup.forget();
        break;
    case NoAnswer:
        break;
    }
}

void ProfileKeeper::restore()
{
    if (m_backup.restore())
        return;
    CommonUtils::ShowMessage(
        QMessageBox::Warning, CommonUtils::GetMainWindow(), dashboardText("RESTORE_CAPTION"),
        dashboardText("RESTORE_FAILED").arg(m_backup.userFile(), m_backup.copy()),
        QLatin1String("IDS_OK"));
}

} // namespace Dashboard
