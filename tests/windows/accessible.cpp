/*
 * Reads and operates a program on a private desktop through its accessible objects, for scripts:
 *
 *   accessible desktop COMMAND...   runs the command on a private desktop
 *   accessible tree                 prints the widgets as reported to a screen reader
 *   accessible wait PATTERN         waits until a line of the tree matches
 *   accessible gone PATTERN         waits until no line of the tree matches
 *   accessible at PATTERN           prints the screen coordinates of the centre of the first match
 *   accessible press PATTERN        presses the first match
 *   accessible read PATTERN         waits until the content of a text field or a transcript matches
 *   accessible picture FILE         saves a picture of the screen
 *
 * The patterns are regular expressions. The exit status is 1 if a pattern does not match in time.
 * The desktop passes the address of its accessibility bus in $USSD_ACCESSIBILITY_BUS. The usual
 * variable, $AT_SPI_BUS_ADDRESS, would prevent programs with Qt 6.4 from publishing their widgets.
 */

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <functional>

#include "AccessibleTree.h"
#include "PrivateDesktop.h"

namespace
{

const int LIMIT = 15000;        // ms
const int LOOK_AGAIN_TIME = 50; // ms
const int SCREEN_WIDTH = 1400;
const int SCREEN_HEIGHT = 900;
const char BUS_VARIABLE[] = "USSD_ACCESSIBILITY_BUS";

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

bool waitUntil(const std::function<bool()> &condition)
{
    QElapsedTimer waited;
    waited.start();
    while (!condition()) {
        if (waited.elapsed() > LIMIT)
            return false;
        QThread::msleep(LOOK_AGAIN_TIME);
    }
    return true;
}

bool isWritten(const AccessibleTree &tree, const QRegularExpression &pattern)
{
    for (const Accessible &object : tree.visible()) {
        if (object.role == QLatin1String("text") && pattern.match(tree.content(object)).hasMatch())
            return true;
    }
    return false;
}

/// Waits until the pattern matches the content of a text field ("read"), no line of the tree
/// ("gone"), or a line of the tree (all other actions). Stores the first match in `found`.
bool waitFor(const AccessibleTree &tree, const QString &action, const QString &pattern,
             Accessible &found)
{
    const QRegularExpression line(pattern);
    if (action == QLatin1String("read"))
        return waitUntil([&] { return isWritten(tree, line); });
    const bool isShown = action != QLatin1String("gone");
    return waitUntil([&] { return (found = tree.find(line)).path.isEmpty() != isShown; });
}

int takePicture(int argc, char **argv, const QString &file)
{
    const QGuiApplication application(argc, argv);
    return QGuiApplication::primaryScreen()->grabWindow(0).save(file) ? 0 : fail(file);
}

int operate(const QString &action, const QString &pattern)
{
    const AccessibleTree tree(QString::fromLocal8Bit(qgetenv(BUS_VARIABLE)));
    if (action == QLatin1String("tree"))
        return printTree(tree);
    Accessible found;
    if (!waitFor(tree, action, pattern, found)) {
        printTree(tree);
        return fail(QLatin1String("no success in time: ") + action + QLatin1Char(' ') + pattern);
    }
    if (action == QLatin1String("at")) {
        const QPoint centre = tree.place(found).center();
        printf("%d %d\n", centre.x(), centre.y());
    }
    if (action == QLatin1String("press") && !tree.press(found))
        return fail(QLatin1String("cannot be pressed: ") + pattern);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    if (words.value(0) == QLatin1String("picture"))
        return takePicture(argc, argv, words.value(1));
    const QCoreApplication application(argc, argv);
    if (words.size() >= 2 && words.first() == QLatin1String("desktop"))
        return runOnDesktop(words.mid(1));
    if (words.isEmpty())
        return fail(QLatin1String("see the head of tests/windows/accessible.cpp"));
    return operate(words.value(0), words.value(1));
}
