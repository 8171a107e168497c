// Reads and operates a program on a private desktop through its accessible objects, for scripts:
//
//     accessible desktop COMMAND...      runs the command on a private desktop
//     accessible tree                    prints what a screen reader finds
//     accessible wait PATTERN            waits until a line of the tree matches
//     accessible gone PATTERN            waits until no line of the tree matches
//     accessible at PATTERN              prints the centre of the first match on the screen
//     accessible press PATTERN           presses the first match
//
// The patterns are regular expressions. The exit status is 1 if a pattern does not match in time.
// The desktop passes the address of its accessibility bus in $AT_SPI_BUS_ADDRESS.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

#include "AccessibleTree.h"
#include "PrivateDesktop.h"

namespace
{

const int LIMIT = 15000;        // ms
const int LOOK_AGAIN_TIME = 50; // ms
const int SCREEN_WIDTH = 1400;
const int SCREEN_HEIGHT = 900;
const char BUS_VARIABLE[] = "AT_SPI_BUS_ADDRESS";

int fail(const QString &text)
{
    fprintf(stderr, "accessible: %s\n", qPrintable(text));
    return 1;
}

int runOnDesktop(QStringList command)
{
    const QTemporaryDir folder;
    PrivateDesktop desktop;
    const QString error = desktop.start(folder.path(), SCREEN_WIDTH, SCREEN_HEIGHT);
    if (!error.isEmpty())
        return fail(error);
    QProcessEnvironment values = desktop.environment();
    values.insert(QString::fromLatin1(BUS_VARIABLE), desktop.accessibilityBus());
    QProcess process;
    process.setProcessEnvironment(values);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString program = command.takeFirst();
    process.start(program, command);
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

int printTree(const AccessibleTree &tree)
{
    for (const QString &line : tree.lines())
        printf("%s\n", qUtf8Printable(line));
    return 0;
}

/// Looks for a match until there is one, or until there is none if `shown` is false.
bool waitFor(const AccessibleTree &tree, const QString &pattern, bool shown, Accessible &found)
{
    const QRegularExpression line(pattern);
    QElapsedTimer waited;
    waited.start();
    do {
        found = tree.find(line);
        if (found.path.isEmpty() != shown)
            return true;
        QThread::msleep(LOOK_AGAIN_TIME);
    } while (waited.elapsed() < LIMIT);
    return false;
}

int operate(const QString &action, const QString &pattern)
{
    const AccessibleTree tree(QString::fromLocal8Bit(qgetenv(BUS_VARIABLE)));
    if (action == QLatin1String("tree"))
        return printTree(tree);
    Accessible found;
    if (!waitFor(tree, pattern, action != QLatin1String("gone"), found)) {
        printTree(tree);
        return fail(QLatin1String("no success in time: ") + action + QLatin1Char(' ') + pattern);
    }
    const QPoint centre = tree.place(found).center();
    if (action == QLatin1String("at"))
        printf("%d %d\n", centre.x(), centre.y());
    if (action == QLatin1String("press") && !tree.press(found))
        return fail(QLatin1String("cannot be pressed: ") + pattern);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList words = application.arguments().mid(1);
    if (words.size() >= 2 && words.first() == QLatin1String("desktop"))
        return runOnDesktop(words.mid(1));
    if (words.isEmpty())
        return fail(QLatin1String("see the head of tests/windows/accessible.cpp"));
    return operate(words.value(0), words.value(1));
}
