#ifndef CHECKREPORT_H
#define CHECKREPORT_H

#include <QList>
#include <QString>
#include <QStringList>

/** What will not happen as its author may think, and where. */
struct CheckFinding {
    qint64 line = 0;   // from 1; 0: the file as a whole
    qint64 column = 0; // from 1; 0: the line as a whole
    QString rule;      // a word for scripts, such as "order"
    QString text;      // for people, in English
};

/** What the plug-in makes of one part of a file. */
struct CheckTable {
    QString title;
    QList<QStringList> rows; // name first
};

/** Everything about one file. */
struct CheckReport {
    QString file;
    QString kind;  // "configuration", "layout", "profiles" or "scenario"; empty when unusable
    QString error; // why nothing could be read; empty when something was
    QList<CheckFinding> findings; // by line
    QList<CheckTable> tables;
};

/// Adds a finding.
void addFinding(CheckReport &report, qint64 line, qint64 column, const char *rule,
                const QString &text);
void sortFindings(CheckReport &report);

/// The part of a value that a line can bear, in quotation marks.
QString quotedPart(const QString &text);

/// "file:line:column: text [rule]", then the tables.
QString reportText(const CheckReport &report);
/// One JSON document (RFC 8259) in ASCII.
QString reportsJson(const QList<CheckReport> &reports);
/// A JSON string with its quotation marks: everything but plain ASCII is escaped.
QString jsonString(const QString &text);

#endif
