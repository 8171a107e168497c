#ifndef TOOLARGUMENTS_H
#define TOOLARGUMENTS_H

#include <QMap>
#include <QString>
#include <QStringList>

namespace Tools
{

/** A parsed command line. */
struct ToolArguments {
    QMap<QString, QString> options; // values by "--name"; empty for a switch
    QStringList words;              // the words that are not options
    QString error;                  // error message in English; empty if there is no error

    bool has(const char *option) const { return options.contains(QLatin1String(option)); }
    QString value(const char *option) const { return options.value(QLatin1String(option)); }
};

/// Parses the words that follow the program's name. The value of an option follows "=" or is the
/// next word. Words after a separate "--" are not options. An option may be given only once.
ToolArguments parseToolArguments(const QStringList &words, const QStringList &switches,
                                 const QStringList &valueOptions);

/// Applies the locale of the environment, and returns the words that follow the program's name.
QStringList startTool(int argc, char **argv);

/** The exit codes of the programs. */
enum ToolExit {
    TOOL_GOOD = 0,
    TOOL_BAD = 1,    // an operation failed, or a check has findings
    TOOL_USAGE = 2,  // the arguments are wrong, or a file that they name cannot be used
    TOOL_CHOOSE = 3, // several operators match, and the user has to choose one
    TOOL_REFUSED = 4 // files edited by hand would be replaced
};

} // namespace Tools

#endif
