#ifndef TOOLARGUMENTS_H
#define TOOLARGUMENTS_H

#include <QMap>
#include <QString>
#include <QStringList>

/** The words of a command line, sorted into options and the rest. */
struct ToolArguments {
    QMap<QString, QString> options; // "--name" to its value; empty for a switch
    QStringList words;              // what is no option
    QString error;                  // what is wrong, in English; empty when nothing is

    bool has(const char *option) const { return options.contains(QLatin1String(option)); }
    QString value(const char *option) const { return options.value(QLatin1String(option)); }
};

/// Reads the words behind the program's name. A value stands behind "=" or in the next word; behind
/// a lone "--" there are no options. An option stands once.
ToolArguments parseToolArguments(const QStringList &words, const QStringList &switches,
                                 const QStringList &valueOptions);

/// The words behind the program's name, and the locale made that of the environment.
QStringList startTool(int argc, char **argv);

/** What the programs end with. */
enum ToolExit {
    TOOL_GOOD = 0,
    TOOL_BAD = 1,    // something failed, or was found
    TOOL_USAGE = 2,  // the arguments, or what they name, cannot be used
    TOOL_CHOOSE = 3, // a person has to choose among those printed
    TOOL_REFUSED = 4 // a person's files stand in the way
};

#endif
