#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/** The parsed command-line arguments. */
struct Arguments {
    enum Mode { Window, Send, Tour, Export, Help, Version };

    Mode mode = Window;
    QStringList commands; // the code and the answers of --send, in this order
    QString tourFolder;
    QString exportFile; // ends with .csv or .json
    QString scenario;
    QString modem;                  // the equipment identifier of the modem
    bool demo = false;              // use the default simulated network
    bool enable = false;            // with --send: enable the modem
    bool endForeignSession = false; // with --send: end the session of another program
    QString logFile;
    QString language;
    bool verbose = false;

    /// The text key of the error message, or null if there is no error.
    const char *errorKey = nullptr;
    /// The string that replaces %1 in the error message.
    QString errorSubject;
};

/// Parses the command-line arguments without the program name.
///
/// After --send, the arguments up to the next one that starts with "--" are the code and its
/// answers. If this argument is "--", all arguments after it are also answers. An option and its
/// value may be joined with "=".
Arguments parseArguments(const QStringList &words);

} // namespace Dashboard

#endif
