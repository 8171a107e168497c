#include "TourGuide.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>

#include "base/WaitUntil.h"
#include "ExtendDialog.h"
#include "InputFile.h"
#include "InstallPaths.h"
#include "plugin/PrivatePluginFolder.h"
#include "QtCompat.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

const int LIMIT = 10 * TourGuide::REPLY_LIMIT; // ms
const char CONFIGURATION[] = "USSDPluginConfig.xml";
const char NETWORK[] = "tour.scenario";

/// Returns the picture `below` with the box and a border drawn at its centre.
QPixmap laidOver(QPixmap below, const QPixmap &box)
{
    QRect place(QPoint(), box.size());
    place.moveCenter(below.rect().center());
    QPainter painter(&below);
    painter.drawPixmap(place, box);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    return below;
}

/// Returns the picture `below` with the widget drawn at its position relative to the window, or at
/// the nearest position inside the picture.
QPixmap laidAt(QPixmap below, const QWidget *window, QWidget *over)
{
    QPoint place = over->mapToGlobal(QPoint()) - window->mapToGlobal(QPoint());
    place.setX(qBound(0, place.x(), qMax(0, below.width() - over->width())));
    place.setY(qBound(0, place.y(), qMax(0, below.height() - over->height())));
    QPainter painter(&below);
    painter.drawPixmap(place, QtCompat::pictureOf(over));
    painter.drawRect(QRect(place, over->size()).adjusted(-1, -1, 0, 0));
    return below;
}

QWidget *frameWith(const char *widgetName)
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !qobject_cast<const ExtendDialog *>(window))
            continue;
        if (QWidget *widget = window->findChild<QWidget *>(QLatin1String(widgetName)))
            return widget;
    }
    return nullptr;
}

} // namespace

TourGuide::TourGuide(MainWindow *window, PrivatePluginFolder *library, TourAlbum *album)
    : m_window(window), m_library(library), m_album(album)
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(&window->device(), SIGNAL(lost()), this, SLOT(onDeviceLost()));
}

bool TourGuide::useNetwork(const TourChange *changes, int count)
{
    const QString name = QLatin1String(NETWORK);
    QByteArray network;
    QString problem;
    if (!InputFile::read(HostCore::InstallPaths::share() + QLatin1String("/tour/") + name, network,
                         problem) ||
        !m_library->write(name, network))
        return TourAlbum::fail("TOUR_NOT_WRITTEN", name);
    for (int i = 0; i < count; ++i) {
        if (!m_library->change(name, changes[i].anchor, changes[i].before, changes[i].after))
            return TourAlbum::fail("TOUR_NOT_WRITTEN", name);
    }
    m_deviceLost = false;
    if (!m_window->useScenario(m_library->fileName(name)))
        return TourAlbum::fail("SCENARIO_UNUSABLE", name);
    // Waits until the previous device has been removed, which also ends all pending commands.
    return waitFor([this] { return m_deviceLost; });
}

void TourGuide::onDeviceLost()
{
    m_deviceLost = true;
}

bool TourGuide::usePlugin(const TourChange *changes, int count)
{
    const QString name = QLatin1String(CONFIGURATION);
    bool isWritten = m_library->restore(name);
    for (int i = 0; i < count; ++i)
        isWritten = isWritten &&
                    m_library->change(name, changes[i].anchor, changes[i].before, changes[i].after);
    if (!isWritten)
        return TourAlbum::fail("TOUR_NOT_WRITTEN", name);
    settle(); // deletes the closed frames, for which deleteLater() has been called
    return m_window->restartPlugin().step == PluginFailure::None || failHere();
}

void TourGuide::visit(QWidget *shown, const char *place)
{
    m_shown = shown;
    m_place = place;
}

QWidget *TourGuide::open(int paidType, const char *widgetName, const char *place)
{
    m_place = place;
    m_window->openFrame(paidType);
    QWidget *widget = nullptr;
    const auto isOpen = [&widget, widgetName] { return (widget = frameWith(widgetName)); };
    if (!waitUntil(isOpen, LIMIT)) { // the prepaid/postpaid query may delay the window
        failHere();
        return nullptr;
    }
    visit(widget->window(), place);
    return widget;
}

void TourGuide::close()
{
    if (m_shown)
        m_shown->close();
    settle(); // the plug-in deletes the frame with deleteLater()
}

bool TourGuide::take(const TourStop &stop)
{
    settle();
    return m_shown ? m_album->add(QtCompat::pictureOf(m_shown), m_place, stop, shownText(m_shown))
                   : failHere();
}

bool TourGuide::takeWith(QWidget *over, const TourStop &stop)
{
    settle();
    if (!m_shown || !over)
        return failHere();
    return m_album->add(laidAt(QtCompat::pictureOf(m_shown), m_shown, over), m_place, stop,
                        shownText(over));
}

void TourGuide::expectBox(const TourStop &stop)
{
    m_boxStop = stop;
    m_boxTaken = false;
}

bool TourGuide::waitFor(const std::function<bool()> &condition)
{
    return waitUntil(condition, LIMIT) || TourAlbum::fail("SEND_NO_ANSWER", QString());
}

bool TourGuide::isPaidTypeShown() const
{
    return !m_window->sim().isAsking() && !m_window->sim().paidTypeText().isEmpty();
}

bool TourGuide::failHere() const
{
    return TourAlbum::fail("TOUR_NO_WINDOW", QLatin1String(m_place));
}

bool TourGuide::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (QMessageBox *box = qobject_cast<QMessageBox *>(watched)) {
        m_box = box;
        QMetaObject::invokeMethod(this, "onBox", Qt::QueuedConnection);
    }
    return false;
}

// Closes the message box, even if it is unexpected, because otherwise the tour would never end.
void TourGuide::onBox()
{
    if (!m_box || !m_box->isVisible())
        return;
    settle();
    if (m_boxStop.name && !m_boxTaken && m_shown)
        m_boxTaken =
            m_album->add(laidOver(QtCompat::pictureOf(m_shown), QtCompat::pictureOf(m_box)),
                         m_place, m_boxStop, shownText(m_box));
    if (QAbstractButton *first = m_box->buttons().value(0))
        first->click();
}

void TourGuide::settle()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Dashboard
