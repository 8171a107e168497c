#ifndef TESTLOG_H
#define TESTLOG_H

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <mutex>
#include <vector>

/// Collects Qt's messages and detects unexpected warnings.
class TestLog
{
public:
    static TestLog &instance();

    /// Installs this log as Qt's message handler, replacing the handler of QtTest. Subsequent calls
    /// have no effect.
    void takeOver();

    /// Discards all collected lines, and the expected and allowed warnings.
    void begin();
    void clearLines();
    void expect(const QString &part, bool required);

    QStringList lines() const;
    QStringList unexpectedWarnings() const;
    QStringList missingWarnings() const; ///< the expected warnings that were not logged

private:
    struct Line {
        QtMsgType type;
        QString text;
    };
    struct Announcement {
        QString part;
        bool required;
        bool seen;
    };

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);
    bool keep(QtMsgType type, const QString &text);
    bool isExpected(QtMsgType type, const QString &text);

    mutable std::mutex m_mutex;
    QtMessageHandler m_previous = nullptr;
    std::vector<Line> m_lines;
    std::vector<Announcement> m_announcements;
    QStringList m_unexpected;
};

#endif
