#ifndef TOOLARGUMENTS_H
#define TOOLARGUMENTS_H

#include <QMap>
#include <QString>
#include <QStringList>

namespace Tools
{

/** The parsed command-line arguments. */
struct ToolArguments {
    QMap<QString, QString> options; // values keyed by "--name"; switches have an empty value
    QStringList words;              // the arguments that are not options
    QString error;                  // an error message in English, or an empty string

    bool has(const char *option) const { return options.contains(QLatin1String(option)); }
    QString value(const char *option) const { return options.value(QLatin1String(option)); }
};

/// Parses the command-line arguments, which do not include the program name. `switches` lists the
/// options without a value, and `valueOptions` the options with a value. The value of an option
/// follows "=" or is the next argument. Arguments after "--" are not treated as options. Each
/// option may occur only once.
ToolArguments parseToolArguments(const QStringList &words, const QStringList &switches,
                                 const QStringList &valueOptions);

/// Returns the text quoted for a shell, so that the shell reads it as a single word.
QString shellWord(const QString &text);

/// Sets the locale of the environment and returns the command-line arguments without the program
/// name.
QStringList startTool(int argc, char **argv);

/** The exit codes of ussd-config and ussd-provision. */
enum ToolExit {
    TOOL_GOOD = 0,
    TOOL_BAD = 1,    // an operation failed, or a check has findings
    TOOL_USAGE = 2,  // the arguments are invalid, or a specified file cannot be used
    TOOL_CHOOSE = 3, // several operators match; the user must select one
    TOOL_REFUSED = 4 // manually edited files would have been replaced
};

} // namespace Tools

#endif
