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
    QString modem;                  // equipment identifier
    bool demo = false;              // use the default simulated network
    bool enable = false;            // of --send: enable the modem
    bool endForeignSession = false; // of --send: end the session of another program
    QString logFile;
    QString language;
    bool verbose = false;

    /// The text key of the error message, or null if there is no error.
    const char *errorKey = nullptr;
    /// Replaces %1 in the error message.
    QString errorSubject;
};

/// Parses the command-line arguments without the program name.
///
/// The arguments after --send are the code and the answers, up to the next argument that begins
/// with "--". All arguments after a separate "--" are also treated as the code and the answers. An
/// option and its value may be joined with "=".
Arguments parseArguments(const QStringList &words);

} // namespace Dashboard

#endif
