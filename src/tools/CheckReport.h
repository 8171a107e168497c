#ifndef CHECKREPORT_H
#define CHECKREPORT_H

#include <QList>
#include <QString>
#include <QStringList>

namespace Tools
{

/** A place in a file that may not have the effect that its author expects. */
struct CheckFinding {
    qint64 line = 0;   // starts at 1; 0 refers to the file as a whole
    qint64 column = 0; // starts at 1; 0 refers to the line as a whole
    QString rule;      // identifies the kind of finding for scripts, such as "order"
    QString text;      // describes the finding for the user, in English
};

/** The values that the plug-in reads from one part of a file. */
struct CheckTable {
    QString title;
    QList<QStringList> rows; // the first cell is the name
};

/** The report on one file. */
struct CheckReport {
    QString file;
    QString kind; // "configuration", "layout", "profiles", "texts", "scenario" or "patterns"; empty
                  // if unusable
    QString error;                // the reason why the file could not be read; empty on success
    QList<CheckFinding> findings; // sorted by line
    QList<CheckTable> tables;
};

/// Adds a finding to the report.
void addFinding(CheckReport &report, qint64 line, qint64 column, const char *rule,
                const QString &text);
void sortFindings(CheckReport &report);

/// Returns the string in quotation marks, shortened to fit into a line of the report.
QString quotedPart(const QString &text);

/// Returns the report as text: each finding as "file:line:column: text [rule]", followed by the
/// tables.
QString reportText(const CheckReport &report);
/// Returns the reports as one JSON document (RFC 8259) in ASCII.
QString reportsJson(const QList<CheckReport> &reports);
/// Returns the string as a JSON string with quotation marks. All characters except printable ASCII
/// characters are escaped.
QString jsonString(const QString &text);

} // namespace Tools

#endif
