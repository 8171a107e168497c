#ifndef TESTLOG_H
#define TESTLOG_H

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <mutex>
#include <vector>

/// Takes Qt's messages over, keeps them, and finds the warnings that nobody announced.
class TestLog
{
public:
    static TestLog &instance();

    /// Puts this log in front of the handler that QtTest has set. Twice is the same as once.
    void takeOver();

    /// Forgets lines and announcements.
    void begin();
    void clearLines();
    void expect(const QString &part, bool required);

    QStringList lines() const;
    QStringList unexpectedWarnings() const;
    QStringList missingWarnings() const; ///< announced as required, but not come

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
