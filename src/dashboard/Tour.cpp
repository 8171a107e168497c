#include "Tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include "DashboardText.h"
#include "InstallPaths.h"
#include "IUSSD.h"
#include "Languages.h"
#include "MainWindow.h"
#include "TerminalText.h"
#include "WaitUntil.h"

namespace
{

const char *const LANGUAGES[] = {"en", "ar"};
const QSize WINDOW_SIZE(900, 700);               // pixels
const int ANSWER_LIMIT = 10 * Tour::REPLY_LIMIT; // ms

/** A stop: what is asked there, and what the picture is to show. */
struct Stop {
    const char *command;
    const char *name;
};

// The first is also photographed while it is waited for.
const Stop STOPS[] = {
    {"*100#", "answered"}, {"*123#", "menu"},      {"2", "submenu"},
    {"0", "menu-left"},    {"*199#", "timed-out"}, {"*198#", "refused"},
};

QPixmap pictureOf(QWidget *widget)
{
    QPixmap picture(widget->size());
    widget->render(&picture);
    return picture;
}

/// The box in the middle of what it was opened over, with a line around it.
QPixmap laidOver(QPixmap below, const QPixmap &box)
{
    QRect place(QPoint(), box.size());
    place.moveCenter(below.rect().center());
    QPainter painter(&below);
    painter.drawPixmap(place, box);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    return below;
}

/// Lets everything be laid out and painted that was asked for.
void settle()
{
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

} // namespace

QString Tour::scenario()
{
    return InstallPaths::share() + QLatin1String("/tour/tour.scenario");
}

Tour::Tour(MainWindow *window, const QString &folder) : m_window(window), m_folder(folder) {}

bool Tour::run()
{
    if (!m_folder.mkpath(QLatin1String(".")))
        return fail("TOUR_NO_FOLDER", m_folder.path());
    for (const char *language : LANGUAGES) {
        if (!walk(QLatin1String(language)))
            return false;
    }
    if (!writeTranscript())
        return false;
    printLine(dashboardText("TOUR_DONE").arg(m_pictures).arg(m_folder.path()));
    return true;
}

bool Tour::walk(const QString &language)
{
    m_language = language;
    m_window->setLanguage(language);
    return walkPage() && walkFrame();
}

bool Tour::walkPage()
{
    m_place = InPage;
    m_window->resize(WINDOW_SIZE);
    m_window->activateWindow();
    m_window->showPage(true);
    m_general = GeneralWindow(m_window->page());
    m_shown = m_window;
    return visitStops(m_general);
}

bool Tour::walkFrame()
{
    m_place = InFrame;
    m_window->openFrame(PAID_TYPE_GENERAL);
    m_general = GeneralWindow::framed();
    if (!m_general.isComplete())
        return fail("TOUR_NO_WINDOW", placeName());
    m_shown = m_general.commandEdit()->window();
    const bool visited = visitStops(m_general);
    m_shown->close();
    settle(); // the plug-in deletes the frame later
    return visited;
}

bool Tour::visitStops(const GeneralWindow &general)
{
    if (!general.isComplete())
        return fail("TOUR_NO_WINDOW", placeName());
    if (!take("idle"))
        return false;
    for (const Stop &stop : STOPS) {
        if (!ask(general, QLatin1String(stop.command), stop.name))
            return false;
    }
    return clearTranscript(general);
}

bool Tour::ask(const GeneralWindow &general, const QString &command, const char *stop)
{
    const bool isFirst = stop == STOPS[0].name;
    if (!general.send(command))
        return fail("SEND_NOT_TAKEN", command);
    if (isFirst && !take("waiting"))
        return false;
    return waitForAnswer(general) ? take(stop) : fail("SEND_NO_ANSWER", QString());
}

bool Tour::waitForAnswer(const GeneralWindow &general)
{
    return waitUntil([&general] { return !general.isWaiting(); }, ANSWER_LIMIT);
}

// The click returns when the question was answered, so whoever answers it must be there before.
bool Tour::clearTranscript(const GeneralWindow &general)
{
    if (!general.clearButton())
        return fail("TOUR_NO_WINDOW", placeName());
    m_confirmBoxSeen = false;
    QTimer::singleShot(0, this, SLOT(onConfirmBox()));
    general.clearButton()->click();
    settle();
    if (!m_confirmBoxSeen || !general.transcript().isEmpty())
        return fail("TOUR_NOT_CLEARED", placeName());
    return take("cleared");
}

void Tour::onConfirmBox()
{
    QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    settle();
    m_confirmBoxSeen = save(laidOver(currentPicture(), pictureOf(box)), "confirm");
    if (QAbstractButton *first = box->buttons().value(0))
        first->click();
}

bool Tour::take(const char *stop)
{
    settle();
    return save(currentPicture(), stop);
}

QPixmap Tour::currentPicture() const
{
    return pictureOf(m_shown);
}

bool Tour::save(const QPixmap &picture, const char *stop)
{
    const QString name = QString::fromLatin1("%1-%2-%3-%4.png")
                             .arg(m_pictures + 1, 2, 10, QLatin1Char('0'))
                             .arg(m_language, placeName(), QLatin1String(stop));
    if (!picture.save(m_folder.filePath(name)))
        return fail("TOUR_NOT_WRITTEN", m_folder.filePath(name));
    ++m_pictures;
    note(stop, name);
    printLine(name);
    return true;
}

void Tour::note(const char *stop, const QString &picture)
{
    m_transcript << QString::fromLatin1("== %1: %2, %3, %4")
                        .arg(picture, Languages::nativeName(m_language), placeName(),
                             QLatin1String(stop))
                 << m_general.transcript() << QString();
}

bool Tour::writeTranscript()
{
    QFile file(m_folder.filePath(QLatin1String("transcript.txt")));
    const QByteArray text = terminalText(m_transcript.join(QLatin1String("\n"))).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        return fail("TOUR_NOT_WRITTEN", file.fileName());
    printLine(QLatin1String("transcript.txt"));
    return true;
}

bool Tour::fail(const char *key, const QString &subject)
{
    const QString text = dashboardText(key);
    printErrorLine(text.contains(QLatin1String("%1")) ? text.arg(subject) : text);
    return false;
}

QString Tour::placeName() const
{
    return QLatin1String(m_place == InPage ? "page" : "window");
}
