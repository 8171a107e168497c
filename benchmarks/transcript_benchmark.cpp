/*
 * One entry more in a transcript that is long already.
 */
#include <string>

#include <QApplication>

#include "Benchmark.h"
#include "PluginConfig.h"
#include "TranscriptView.h"

namespace
{

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
    view.resize(300, 200);
    view.show();
    for (int i = 0; i < entries; ++i)
        view.appendEntry(entry(i));
    QApplication::processEvents();
}

double addOne(TranscriptView &view)
{
    const int entries = 20;
    return Benchmark::microseconds([&view] {
               for (int i = 0; i < entries; ++i)
                   view.appendEntry(entry(i));
           }) /
           entries;
}

double setWhole(TranscriptView &view)
{
    const QString whole = Transcript::document(view.entries());
    return Benchmark::microseconds([&view, &whole] {
        view.setHtml(whole);
        view.moveCursor(QTextCursor::End);
    });
}

void compareAt(int entries)
{
    TranscriptView long_, short_, whole;
    fill(long_, entries);
    fill(short_, 10);
    fill(whole, entries);
    const std::string name = "entry added to " + std::to_string(entries);
    if (entries > 10)
        Benchmark::compare(
            name.c_str(), "added to 10", [&] { return addOne(long_); },
            [&] { return addOne(short_); });
    Benchmark::compare(
        name.c_str(), "setting the whole text again", [&] { return addOne(long_); },
        [&] { return setWhole(whole); }, entries > 1000 ? 3 : 7);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benchmark::dropMessages();
    for (int entries : {10, 1000, 10000})
        compareAt(entries);
    return 0;
}
