/*
 * Measures the time to add an entry to a long transcript.
 */
#include <QApplication>

#include "Benchmark.h"
#include "markup/TranscriptView.h"
#include "PluginConfig.h"

using namespace Formats;

namespace
{

const int LONG = 10000;
const int MIDDLE = 1000;
const int SHORT = 10;
const int ADDED = 20;       // number of entries added in a measurement
const int WHOLE_ROUNDS = 3; // fewer rounds, because setting a long text is slow

Transcript::Entry entry(int number)
{
    Char look;
    look.yHeight = 200;
    look.blue = 160;
    return Transcript::entry(number % 2 ? Transcript::Received : Transcript::Sent, look, false,
                             QLatin1String("Received: "),
                             QString::fromLatin1("Your balance is %1.00 EUR").arg(number));
}

void fill(TranscriptView &view, int entries)
{
    view.clearEntries();
    view.resize(300, 200);
    view.show();
    for (int i = 0; i < entries; ++i)
        view.appendEntry(entry(i));
    QApplication::processEvents();
}

double addOne(TranscriptView &view)
{
    return Benchmark::microseconds([&view] {
               for (int i = 0; i < ADDED; ++i)
                   view.appendEntry(entry(i));
           }) /
           ADDED;
}

double addOneToShort(TranscriptView &view)
{
    fill(view, SHORT); // removes the entries that the previous round has added
    return addOne(view);
}

double setWhole(TranscriptView &view)
{
    const QString whole = Transcript::document(view.entries());
    return Benchmark::microseconds([&view, &whole] {
        view.setHtml(whole);
        view.moveCursor(QTextCursor::End);
    });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Benchmark::dropMessages();
    TranscriptView longView, middleView, shortView, wholeView;
    fill(longView, LONG);
    fill(middleView, MIDDLE);
    fill(wholeView, LONG);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "added to one of 10", 1.1),
        [&longView] { return addOne(longView); }, [&shortView] { return addOneToShort(shortView); },
        5 * Benchmark::ROUNDS);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "added to one of 1,000", 1.1),
        [&longView] { return addOne(longView); }, [&middleView] { return addOne(middleView); },
        5 * Benchmark::ROUNDS);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "setting the whole text again",
                         0.01),
        [&longView] { return addOne(longView); }, [&wholeView] { return setWhole(wholeView); },
        WHOLE_ROUNDS);
    return 0;
}
