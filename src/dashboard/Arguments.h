#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <QString>
#include <QStringList>

namespace Dashboard
{

/** The parsed command line. */
struct Arguments {
    enum Mode { Window, Send, Tour, Help, Version };

    Mode mode = Window;
    QStringList commands; // the code and the answers of --send, in this order
    QString tourFolder;
    QString scenario;
    QString modem;                  // equipment identifier
    bool demo = false;              // use the default simulated network
    bool enable = false;            // of --send: enable the modem
    bool endForeignSession = false; // of --send: end the session of another program
    QString logFile;
    QString language;
    bool verbose = false;

    /// The key of the error message among the dashboard's texts, or null if there is no error.
    const char *errorKey = nullptr;
    /// Replaces %1 in the error message.
    QString errorSubject;
};

/// Parses the arguments that follow the program's name.
///
/// The words after --send are the code and the answers, up to the next word that begins with "--".
/// All words after a separate "--" are code and answers, too. An option and its value may be joined
/// with "=".
Arguments parseArguments(const QStringList &words);

} // namespace Dashboard

#endif
