/*
 * One entry more in a transcript that is long already.
 */
#include <QApplication>

#include "Benchmark.h"
#include "PluginConfig.h"
#include "TranscriptView.h"

namespace
{

const int kLong = 10000;
const int kMiddle = 1000;
const int kShort = 10;
const int kAdded = 20;      // entries in a measurement
const int kWholeRounds = 3; // setting a long text takes a while

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
               for (int i = 0; i < kAdded; ++i)
                   view.appendEntry(entry(i));
           }) /
           kAdded;
}

double addOneToShort(TranscriptView &view)
{
    fill(view, kShort); // the last round made it longer
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
    fill(longView, kLong);
    fill(middleView, kMiddle);
    fill(wholeView, kLong);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "added to one of 10", 1.1),
        [&longView] { return addOne(longView); }, [&shortView] { return addOneToShort(shortView); },
        5 * Benchmark::kRounds);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "added to one of 1,000", 1.1),
        [&longView] { return addOne(longView); }, [&middleView] { return addOne(middleView); },
        5 * Benchmark::kRounds);
    Benchmark::compare(
        Benchmark::Title("entry added to a transcript of 10,000", "setting the whole text again",
                         0.01),
        [&longView] { return addOne(longView); }, [&wholeView] { return setWhole(wholeView); },
        kWholeRounds);
    return 0;
}
