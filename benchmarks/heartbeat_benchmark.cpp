/*
 * Measures how long the GUI thread is blocked while a reply of 10,000 characters is shown. The
 * result is the longest delay of a heartbeat timer as a fraction of the permitted 100 ms.
 */
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QVBoxLayout>

#include "Benchmark.h"
#include "markup/TranscriptView.h"
#include "PluginConfig.h"
#include "windows/AccountReplyView.h"

using namespace Formats;

namespace
{

const int CHARACTERS = 10000;
const double MAY_BE_LATE = 100; // in milliseconds
// If the text has not grown for this number of heartbeats, the window is considered idle.
const int QUIET_BEATS = 30;
const int RUNS = 5;

QString repeated(const QString &piece)
{
    return piece.repeated(CHARACTERS / piece.length() + 1).left(CHARACTERS);
}

/**
 * A timer that fires every millisecond and records the longest interval between two of its events.
 */
class Heart
{
public:
    /// Runs the work in the event loop, waits until the window is idle, and returns the longest
    /// interval in milliseconds. `size` returns the current length of the text in the window.
    static double longestPause(const std::function<void()> &work, const std::function<int()> &size)
    {
        Heart heart(work, size);
        heart.m_loop.exec();
        return heart.m_longest;
    }

private:
    Heart(const std::function<void()> &work, const std::function<int()> &size)
        : m_work(work), m_size(size)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_clock.start();
        m_timer.start(1);
    }

    void beat()
    {
        const double pause = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
        m_clock.restart();
        if (++m_beats == 10)
            QTimer::singleShot(0, &m_timer, m_work);
        if (m_beats < 10)
            return;
        m_longest = std::max(m_longest, pause);
        m_quiet = m_size() == m_lastSize ? m_quiet + 1 : 0;
        m_lastSize = m_size();
        if (m_quiet > QUIET_BEATS)
            m_loop.quit();
    }

    std::function<void()> m_work;
    std::function<int()> m_size;
    QEventLoop m_loop;
    QTimer m_timer;
    QElapsedTimer m_clock;
    int m_beats = 0;
    int m_quiet = 0;
    int m_lastSize = -1;
    double m_longest = 0;
};

Transcript::Entry entry(Transcript::Direction direction, const QString &text)
{
    Char look;
    look.yHeight = 200;
    return Transcript::entry(direction, look, false, QLatin1String("Received: "), text);
}

double inTranscript(const QString &reply)
{
    TranscriptView view;
    view.resize(450, 220);
    view.show();
    view.appendEntry(entry(Transcript::Sent, QLatin1String("*100#")));
    return Heart::longestPause([&] { view.appendEntry(entry(Transcript::Received, reply)); },
                               [&] { return view.document()->characterCount(); });
}

double inStatusBox(const QString &reply)
{
    AccountReplyView box;
    box.setLines(3);
    box.resize(300, 60);
    box.show();
    return Heart::longestPause([&] { box.showText(reply); },
                               [&] { return box.document()->characterCount(); });
}

void measure(const char *where, double (*pause)(const QString &), const char *what,
             const QString &reply)
{
    std::vector<double> pauses;
    pauses.reserve(RUNS);
    pause(reply); // warm-up, because fonts for other scripts are loaded only once
    for (int run = 0; run < RUNS; ++run)
        pauses.push_back(pause(reply));
    Benchmark::report(
        Benchmark::Title(std::string("heartbeat, 10,000 characters of ") + what + where,
                         "longest permitted pause", 1, "ms"),
        pauses, std::vector<double>(pauses.size(), MAY_BE_LATE));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benchmark::dropMessages();
    const struct {
        const char *what;
        QString reply;
    } replies[] = {
        {"English text", repeated(QLatin1String("twelve letters "))},
        {"one word", QString(CHARACTERS, QLatin1Char('x'))},
        {"Arabic text", QString(CHARACTERS, QChar(0x0628))},
        {"two alternating scripts", repeated(QString(QLatin1Char('a')) + QChar(0x0628))},
        {"combining accents on one letter", QString(CHARACTERS, QChar(0x0301))},
        {"right-to-left overrides", QString(CHARACTERS, QChar(0x202E))},
        {"nested tables", repeated(QLatin1String("<table><tr><td>"))},
        {"tags", repeated(QLatin1String("<b>x"))},
    };
    for (const auto &one : replies) {
        measure(", transcript", inTranscript, one.what, one.reply);
        measure(", status box", inStatusBox, one.what, one.reply);
    }
    return 0;
}
