#ifndef TOOLTEST_H
#define TOOLTEST_H

#include "UssdTest.h"

/** A test that runs a command-line tool. The user's data folder is empty. */
class ToolTest : public UssdTest
{
protected:
    /// `program` is the path of the tool.
    explicit ToolTest(const char *program) : m_program(QLatin1String(program)) {}

    /// Runs the tool and stores its output. Returns its exit code, or -1 if it did not exit
    /// normally.
    int run(const QStringList &arguments);
    QString outText() const { return QString::fromUtf8(m_out); }
    QString errorText() const { return QString::fromUtf8(m_error); }
    static QStringList words(const char *blankSeparated);

    QByteArray m_out;
    QByteArray m_error;

private:
    const QString m_program;
};

#endif
