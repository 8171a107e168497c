#include "FormatFiles.h"

#include <QSaveFile>

#include "InputFile.h"
#include "TerminalText.h"
#include "XmlFormat.h"

namespace Tools
{

namespace
{

ToolExit fail(const QString &path, const QString &problem)
{
    HostCore::printErrorLine(
        QString::fromLatin1("ussd-config: %1: %2; it is unchanged").arg(path, problem));
    return TOOL_USAGE;
}

/// Replaces the file atomically, so that it is never incomplete. On failure, returns false and sets
/// `problem`.
bool replace(const QString &path, const QByteArray &content, QString &problem)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    if (!written)
        problem = file.errorString();
    return written;
}

ToolExit formatFile(const QString &path, bool onlyCheck)
{
    QByteArray content;
    QString problem;
    if (!InputFile::read(path, content, problem))
        return fail(path, problem);
    const QByteArray formatted = formattedXml(content, problem);
    if (!problem.isEmpty())
        return fail(path, problem);
    if (formatted == content)
        return TOOL_GOOD;
    if (!onlyCheck && !replace(path, formatted, problem))
        return fail(path, problem);
    HostCore::printLine(path + QLatin1String(onlyCheck ? ": would be formatted" : ": formatted"));
    return onlyCheck ? TOOL_BAD : TOOL_GOOD;
}

} // namespace

int formatFiles(const ToolArguments &arguments)
{
    ToolExit status = TOOL_GOOD;
    for (int i = 1; i < arguments.words.count(); ++i)
        status = qMax(status, formatFile(arguments.words.at(i), arguments.has("--check")));
    return status;
}

} // namespace Tools
