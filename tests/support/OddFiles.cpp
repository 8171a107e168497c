#include "OddFiles.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>

namespace
{

enum Kind { Pipe, LinkToPipe, Folder, LinkToZero, LinkToNull, TooLarge };

bool makeTooLarge(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(4 * 1024 * 1024 + 1);
}

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
}

bool makeThing(int kind, const QString &path)
{
    const QString target = path + QLatin1String(".target");
    switch (kind) {
    case Pipe:
        return makePipe(path);
    case LinkToPipe:
        return makePipe(target) && QFile::link(target, path);
    case Folder:
        return QDir().mkpath(path);
    case LinkToZero:
        return QFile::link(QLatin1String("/dev/zero"), path);
    case LinkToNull:
        return QFile::link(QLatin1String("/dev/null"), path);
    default:
        return makeTooLarge(path);
    }
}

void addRow(const char *title, int kind, const char *problem)
{
    QTest::newRow(title) << kind << QString::fromLatin1(problem);
}

} // namespace

namespace OddFiles
{

void addColumns()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("problem");
    addRow("named pipe", Pipe, "it is no regular file");
    addRow("link to a named pipe", LinkToPipe, "it is no regular file");
    addRow("folder", Folder, "it is no regular file");
    addRow("link to /dev/zero", LinkToZero, "it is no regular file");
    addRow("link to /dev/null", LinkToNull, "it is no regular file");
    addRow("too large", TooLarge, "it is larger than 4194304 bytes");
}

QString make(const QString &path)
{
    QFETCH(int, kind);
    QFETCH(QString, problem);
    QFile::remove(path);
    if (!makeThing(kind, path))
        qFatal("cannot make an odd file at %s", qPrintable(path));
    return problem;
}

} // namespace OddFiles
