#include "OddFiles.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>

namespace
{

enum Kind { Pipe, LinkToPipe, Folder, LinkToZero, LinkToNull, TooLarge };

bool makeFile(const QString &path, qint64 bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(bytes);
}

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
}

bool makeThing(int kind, qint64 bytes, const QString &path)
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
        return makeFile(path, bytes);
    }
}

void addRow(const char *title, int kind, qint64 bytes, const QString &problem)
{
    QTest::newRow(title) << kind << bytes << problem;
}

} // namespace

namespace OddFiles
{

void addColumns(qint64 mostBytes)
{
    const QString odd = QLatin1String("it is no regular file");
    QTest::addColumn<int>("kind");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("problem");
    addRow("named pipe", Pipe, 0, odd);
    addRow("link to a named pipe", LinkToPipe, 0, odd);
    addRow("folder", Folder, 0, odd);
    addRow("link to /dev/zero", LinkToZero, 0, odd);
    addRow("link to /dev/null", LinkToNull, 0, odd);
    addRow("too large", TooLarge, mostBytes + 1,
           QString::fromLatin1("it is larger than %1 bytes").arg(mostBytes));
}

QString make(const QString &path)
{
    QFETCH(int, kind);
    QFETCH(qint64, bytes);
    QFETCH(QString, problem);
    QFile::remove(path);
    if (!makeThing(kind, bytes, path))
        qFatal("cannot make an odd file at %s", qPrintable(path));
    return problem;
}

} // namespace OddFiles
