#include "CheckReport.h"

#include <algorithm>

namespace Tools
{

namespace
{

const int MAX_QUOTED = 40;

bool standsBefore(const CheckFinding &a, const CheckFinding &b)
{
    return a.line != b.line ? a.line < b.line : a.column < b.column;
}

QString place(const CheckReport &report, const CheckFinding &finding)
{
    QString text = report.file;
    if (finding.line > 0)
        text += QLatin1Char(':') + QString::number(finding.line);
    if (finding.line > 0 && finding.column > 0)
        text += QLatin1Char(':') + QString::number(finding.column);
    return text;
}

QString rowText(const QStringList &row)
{
    QString text = row.value(0).leftJustified(20);
    for (int i = 1; i < row.count(); ++i) {
        if (!row.at(i).isEmpty())
            text += QLatin1String("  ") + row.at(i);
    }
    return text;
}

QString tableText(const CheckTable &table)
{
    QString text = QLatin1Char('\n') + table.title + QLatin1Char('\n');
    for (int i = 0; i < table.rows.count(); ++i)
        text += QLatin1String("  ") + rowText(table.rows.at(i)) + QLatin1Char('\n');
    return text;
}

// ---- JSON ----------------------------------------------------------------------------------

QString jsonMember(const char *name, const QString &value)
{
    return jsonString(QLatin1String(name)) + QLatin1Char(':') + value;
}

QString jsonList(const QStringList &values)
{
    return QLatin1Char('[') + values.join(QString(QLatin1Char(','))) + QLatin1Char(']');
}

QString jsonObject(const QStringList &members)
{
    return QLatin1Char('{') + members.join(QString(QLatin1Char(','))) + QLatin1Char('}');
}

QString jsonFinding(const CheckFinding &finding)
{
    return jsonObject(QStringList() << jsonMember("line", QString::number(finding.line))
                                    << jsonMember("column", QString::number(finding.column))
                                    << jsonMember("rule", jsonString(finding.rule))
                                    << jsonMember("text", jsonString(finding.text)));
}

QString jsonTable(const CheckTable &table)
{
    QStringList rows;
    for (int i = 0; i < table.rows.count(); ++i) {
        QStringList cells;
        for (int cell = 0; cell < table.rows.at(i).count(); ++cell)
            cells << jsonString(table.rows.at(i).at(cell));
        rows << jsonList(cells);
    }
    return jsonObject(QStringList() << jsonMember("title", jsonString(table.title))
                                    << jsonMember("rows", jsonList(rows)));
}

QString jsonReport(const CheckReport &report)
{
    QStringList findings;
    for (int i = 0; i < report.findings.count(); ++i)
        findings << jsonFinding(report.findings.at(i));
    QStringList tables;
    for (int i = 0; i < report.tables.count(); ++i)
        tables << jsonTable(report.tables.at(i));
    return jsonObject(QStringList() << jsonMember("file", jsonString(report.file))
                                    << jsonMember("kind", jsonString(report.kind))
                                    << jsonMember("error", jsonString(report.error))
                                    << jsonMember("findings", jsonList(findings))
                                    << jsonMember("tables", jsonList(tables)));
}

} // namespace

void addFinding(CheckReport &report, qint64 line, qint64 column, const char *rule,
                const QString &text)
{
    CheckFinding finding;
    finding.line = line;
    finding.column = column;
    finding.rule = QLatin1String(rule);
    finding.text = text;
    report.findings << finding;
}

void sortFindings(CheckReport &report)
{
    std::stable_sort(report.findings.begin(), report.findings.end(), standsBefore);
}

QString quotedPart(const QString &text)
{
    if (text.length() <= MAX_QUOTED)
        return QLatin1Char('"') + text + QLatin1Char('"');
    return QLatin1Char('"') + text.left(MAX_QUOTED) + QLatin1String("...\"");
}

QString reportText(const CheckReport &report)
{
    if (!report.error.isEmpty())
        return report.file + QLatin1String(": ") + report.error + QLatin1Char('\n');
    QString text;
    for (int i = 0; i < report.findings.count(); ++i) {
        const CheckFinding &finding = report.findings.at(i);
        text += place(report, finding) + QLatin1String(": ") + finding.text + QLatin1String(" [") +
                finding.rule + QLatin1String("]\n");
    }
    text += QString::fromLatin1("%1: %2, findings: %3\n")
                .arg(report.file, report.kind)
                .arg(report.findings.count());
    for (int i = 0; i < report.tables.count(); ++i)
        text += tableText(report.tables.at(i));
    return text;
}

QString reportsJson(const QList<CheckReport> &reports)
{
    QStringList files;
    for (int i = 0; i < reports.count(); ++i)
        files << jsonReport(reports.at(i));
    return jsonObject(QStringList() << jsonMember("files", jsonList(files)));
}

QString jsonString(const QString &text)
{
    QString result = QString(QLatin1Char('"'));
    for (int i = 0; i < text.length(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (unit == '"' || unit == '\\')
            result += QLatin1Char('\\');
        if (unit >= 0x20 && unit < 0x7f)
            result += text.at(i);
        else
            result += QLatin1String("\\u") +
                      QString::number(unit, 16).rightJustified(4, QLatin1Char('0'));
    }
    return result + QLatin1Char('"');
}

} // namespace Tools
