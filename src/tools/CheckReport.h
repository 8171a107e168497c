#ifndef CHECKREPORT_H
#define CHECKREPORT_H

#include <QList>
#include <QString>
#include <QStringList>

namespace Tools
{

/** A problem at a certain position in a file. */
struct CheckFinding {
    qint64 line = 0;   // starts at 1; 0 refers to the entire file
    qint64 column = 0; // starts at 1; 0 refers to the entire line
    QString rule;      // the kind of finding, such as "order"; intended for scripts
    QString text;      // the description of the finding, in English
};

/** The values that the plug-in reads from a part of a file. */
struct CheckTable {
    QString title;
    QList<QStringList> rows; // the first cell is the name
};

/** The findings and the tables for a file. */
struct CheckReport {
    QString file;
    QString kind; // "configuration", "layout", "profiles", "texts", "scenario" or "patterns"; empty
                  // if the file cannot be used
    QString error;                // the reason why the file could not be read; empty on success
    QList<CheckFinding> findings; // sorted by line
    QList<CheckTable> tables;
};

/// Adds a finding to the report.
void addFinding(CheckReport &report, qint64 line, qint64 column, const char *rule,
                const QString &text);
void sortFindings(CheckReport &report);

/// Returns the string in quotation marks. Long strings are shortened.
QString quotedPart(const QString &text);

/// Returns the report as text. Each finding is a line "file:line:column: text [rule]". The tables
/// follow the findings.
QString reportText(const CheckReport &report);
/// Returns the reports as a JSON document (RFC 8259) that contains only ASCII characters.
QString reportsJson(const QList<CheckReport> &reports);
/// Returns the string as a JSON string in quotation marks. All characters except printable ASCII
/// characters are escaped.
QString jsonString(const QString &text);

} // namespace Tools

#endif
