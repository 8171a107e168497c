#ifndef TOOLARGUMENTS_H
#define TOOLARGUMENTS_H

#include <QMap>
#include <QString>
#include <QStringList>

namespace Tools
{

/** The parsed command-line arguments. */
struct ToolArguments {
    QMap<QString, QString> options; // values keyed by "--name"; empty for a switch
    QStringList words;              // the arguments that are not options
    QString error;                  // error message in English; empty if there is no error

    bool has(const char *option) const { return options.contains(QLatin1String(option)); }
    QString value(const char *option) const { return options.value(QLatin1String(option)); }
};

/// Parses the command-line arguments without the program name. The value of an option follows "="
/// or is the next argument. Arguments after a separate "--" are not options. An option may be
/// specified only once.
ToolArguments parseToolArguments(const QStringList &words, const QStringList &switches,
                                 const QStringList &valueOptions);

/// Returns the text as one word for a shell.
QString shellWord(const QString &text);

/// Applies the locale of the environment. Returns the command-line arguments without the program
/// name.
QStringList startTool(int argc, char **argv);

/** The exit codes of the programs. */
enum ToolExit {
    TOOL_GOOD = 0,
    TOOL_BAD = 1,    // an operation failed, or a check has findings
    TOOL_USAGE = 2,  // the arguments are wrong, or a file specified in them cannot be used
    TOOL_CHOOSE = 3, // several operators match, and the user must choose one
    TOOL_REFUSED = 4 // manually edited files would be replaced
};

} // namespace Tools

#endif
