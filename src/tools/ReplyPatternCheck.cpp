#include "ReplyPatternCheck.h"

#include <QRegularExpression>
#include <QSet>

#include "ReplyPatternFile.h"
#include "Spelling.h"

using namespace Formats;

namespace Tools
{

namespace
{

const char GROUP[] = "value";

QStringList knownNames()
{
    return QStringList() << ReplyPatternFile::BALANCE << ReplyPatternFile::CURRENCY
                         << ReplyPatternFile::VALIDITY << ReplyPatternFile::DATE_FORMAT
                         << ReplyPatternFile::NUMBER << ReplyPatternFile::DATA_LEFT
                         << ReplyPatternFile::DATA_TOTAL;
}

void checkName(const ReplyPatternFile::Line &line, CheckReport &report)
{
    const QString likely = likelyName(line.name, knownNames());
    const QString hint =
        likely.isEmpty()
            ? QLatin1String("; the names are ") + knownNames().join(QLatin1String(", "))
            : QString::fromLatin1("; did you mean \"%1\"?").arg(likely);
    addFinding(report, line.line, 0, "name",
               quotedPart(line.name) + QLatin1String(" is not the name of a value") + hint);
}

void checkPattern(const ReplyPatternFile::Line &line, CheckReport &report)
{
    const QRegularExpression pattern(line.value);
    if (!pattern.isValid())
        addFinding(
            report, line.line, 0, "pattern",
            QString::fromLatin1("the pattern of \"%1\" has an error at its character %2: %3. "
                                "The dashboard reads the value by its general rules")
                .arg(line.name)
                .arg(pattern.patternErrorOffset() + 1)
                .arg(pattern.errorString()));
    else if (!pattern.namedCaptureGroups().contains(QLatin1String(GROUP)))
        addFinding(report, line.line, 0, "pattern",
                   QString::fromLatin1("the pattern of \"%1\" has no group (?<value>...), which "
                                       "marks the value. The dashboard reads the value by its "
                                       "general rules")
                       .arg(line.name));
    else if (pattern.match(QString()).hasMatch())
        addFinding(report, line.line, 0, "pattern",
                   QString::fromLatin1("the pattern of \"%1\" matches an empty reply, so it may "
                                       "match in front of the value")
                       .arg(line.name));
}

void checkLine(const ReplyPatternFile::Line &line, QSet<QString> *seen, CheckReport &report)
{
    if (line.name.isEmpty())
        return addFinding(report, line.line, 0, "line",
                          QLatin1String("a line has the form NAME = PATTERN; this line has no "
                                        "\"=\" and is ignored"));
    if (seen->contains(line.name))
        addFinding(report, line.line, 0, "twice",
                   quotedPart(line.name) +
                       QLatin1String(" was already given; only the last line counts"));
    seen->insert(line.name);
    if (!ReplyPatternFile::isKnown(line.name))
        checkName(line, report);
    else if (ReplyPatternFile::isPattern(line.name))
        checkPattern(line, report);
}

/// Adds a finding for each name in `seen` that has no effect without another, missing name. For
/// example, "currency" requires "balance".
void checkCompanions(const QSet<QString> &seen, CheckReport &report)
{
    const auto needs = [&](QLatin1String name, QLatin1String other) {
        if (seen.contains(name) && !seen.contains(other))
            addFinding(report, 0, 0, "missing",
                       QString::fromLatin1("\"%1\" has no effect without \"%2\"").arg(name, other));
    };
    needs(ReplyPatternFile::CURRENCY, ReplyPatternFile::BALANCE);
    needs(ReplyPatternFile::DATE_FORMAT, ReplyPatternFile::VALIDITY);
    needs(ReplyPatternFile::DATA_TOTAL, ReplyPatternFile::DATA_LEFT);
    if (seen.contains(ReplyPatternFile::BALANCE) && !seen.contains(ReplyPatternFile::CURRENCY))
        addFinding(report, 0, 0, "missing",
                   QLatin1String("\"currency\" is missing: the balance is shown without a "
                                 "currency"));
}

} // namespace

bool areReplyPatterns(const QByteArray &content)
{
    return content.startsWith(QByteArray(ReplyPatternFile::TITLE.data()));
}

void checkReplyPatterns(const QByteArray &content, CheckReport &report)
{
    QSet<QString> seen;
    CheckTable table;
    table.title = QLatin1String("Patterns");
    for (const ReplyPatternFile::Line &line : ReplyPatternFile::read(content)) {
        checkLine(line, &seen, report);
        if (ReplyPatternFile::isKnown(line.name))
            table.rows << (QStringList() << line.name << line.value);
    }
    checkCompanions(seen, report);
    report.tables << table;
}

} // namespace Tools
