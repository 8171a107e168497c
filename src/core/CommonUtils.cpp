#include "CommonUtils.h"

#include <chrono>

#include <QPointer>
#include <QPushButton>
#include <QTime>

#include "Change.h"
#include "HostState.h"
#include "MessageBox.h"
#include "PluginFolderChoice.h"
#include "QtCompat.h"

namespace
{

QString buttonText(const QString &key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), key);
}

/// Returns the screen rectangle in which MoveCentre() centres the widget: the frame of the main
/// window if it is visible and not minimized, otherwise the available area of the screen.
QRect surroundings(const QWidget *widget, const QRect &screen)
{
    const QWidget *mainWindow = HostCore::HostState::mainWindow();
    const bool usable = mainWindow && mainWindow->window() != widget && mainWindow->isVisible() &&
                        !mainWindow->window()->isMinimized();
    return usable ? mainWindow->window()->frameGeometry() : screen;
}

/// Returns the size of the window including its frame. frameGeometry() is used only for visible
/// windows, because it does not include the frame before the window is first shown.
QSize outerSize(const QWidget *window)
{
    return window->isVisible() ? window->frameGeometry().size() : window->size();
}

/// Returns the position closest to `corner` at which the window is completely inside the screen. If
/// the window is larger than the screen, its upper left corner remains visible.
QPoint keptInside(const QPoint &corner, const QSize &size, const QRect &screen)
{
    const int x = qMin(corner.x(), screen.x() + screen.width() - size.width());
    const int y = qMin(corner.y(), screen.y() + screen.height() - size.height());
    return QPoint(qMax(x, screen.x()), qMax(y, screen.y()));
}

qint64 millisecondsNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

/// Returns the current local time for debug messages. Not thread-safe; used only by the GUI thread.
/// The string is cached for one millisecond, because a row of buttons logs many messages and every
/// query of the local time accesses the time-zone file.
QByteArray timeOfDay()
{
    static qint64 lastLook = -1;
    static QByteArray text;
    const qint64 now = millisecondsNow();
    if (now != lastLook)
        text = QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLocal8Bit();
    lastLook = now;
    return text;
}

} // namespace

QWidget *CommonUtils::GetMainWindow()
{
    return HostCore::HostState::mainWindow();
}

void CommonUtils::MoveCentre(QWidget *widget)
{
    if (!widget)
        return;
    if (!widget->testAttribute(Qt::WA_Resized))
        widget->adjustSize();
    const QWidget *mainWindow = HostCore::HostState::mainWindow();
    const QRect screen = QtCompat::availableGeometry(mainWindow ? mainWindow : widget);
    QRect target(QPoint(), outerSize(widget));
    target.moveCenter(surroundings(widget, screen).center());
    widget->move(keptInside(target.topLeft(), target.size(), screen));
}

bool CommonUtils::IsMiniMode()
{
    return HostCore::HostState::isMiniMode();
}

bool CommonUtils::IsShuttingDown()
{
    return HostCore::HostState::isShuttingDown();
}

QString CommonUtils::GetPluginLibraryPath()
{
    return HostCore::PluginFolderChoice::current();
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, const QString &caption,
                             const QString &text, const QString &firstButtonKey,
                             const QString &secondButtonKey)
{
    // Deleting the parent also deletes the message box, possibly while exec() is running.
    const QPointer<HostCore::MessageBox> box(new HostCore::MessageBox(icon, caption, text, parent));
    const QAbstractButton *first =
        box->addButton(buttonText(firstButtonKey), QMessageBox::AcceptRole);
    if (!secondButtonKey.isEmpty())
        box->addButton(buttonText(secondButtonKey), QMessageBox::RejectRole);
    box->exec();
    if (!box)
        return QMessageBox::Cancel;
    const bool accepted = box->clickedButton() == first;
    delete box;
    return accepted ? QMessageBox::Ok : QMessageBox::Cancel;
}

void CommonUtils::logElide(int line, const char *what)
{
    qDebug("%s: %s: %s: %d: %s", timeOfDay().constData(), "../../src/core/common/CommonUtils.h",
           "setElidedTextForWidgetText", line, what);
}
