#include "InputFile.h"

#include <QFileInfo>

namespace
{

QString notRegular()
{
    return QLatin1String("it is no regular file");
}

/// Returns true if the path exists but is not a regular file. If the path does not exist,
/// QFile::errorString() provides a better error message.
bool isSomethingElse(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

/// Opens the file. Returns an error message, or an empty string on success.
QString problemOfOpening(QFile &file, QIODevice::OpenMode mode, qint64 mostBytes)
{
    if (isSomethingElse(file.fileName())) // checked first, because open() would block on a pipe
        return notRegular();
    if (!file.open(QIODevice::ReadOnly | mode))
        return file.errorString();
    if (file.isSequential()) // the file was replaced between the check and open()
        return notRegular();
    if (file.size() > mostBytes)
        return QString::fromLatin1("it is larger than %1 bytes").arg(mostBytes);
    return QString();
}

} // namespace

namespace InputFile
{

bool open(QFile &file, QIODevice::OpenMode mode, QString &problem, qint64 mostBytes)
{
    problem = problemOfOpening(file, mode, mostBytes);
    if (!problem.isEmpty())
        file.close();
    return problem.isEmpty();
}

bool read(const QString &path, QByteArray &content, QString &problem, qint64 mostBytes)
{
    content.clear();
    QFile file(path);
    if (!open(file, QIODevice::NotOpen, problem, mostBytes))
        return false;
    content = file.readAll();
    if (file.error() == QFile::NoError)
        return true;
    content.clear();
    problem = file.errorString();
    return false;
}

QByteArray content(const QString &path)
{
    QByteArray content;
    QString problem;
    read(path, content, problem);
    return content;
}

QString problem(const QString &path, qint64 mostBytes)
{
    QFile file(path);
    QString problem;
    open(file, QIODevice::NotOpen, problem, mostBytes);
    return problem;
}

} // namespace InputFile
