#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <QString>
#include <QStringList>

/** What the command line asks for; a mistake in it is a state of the value. */
struct Arguments {
    enum Mode { Window, Send, Tour, Help, Version };

    Mode mode = Window;
    QStringList commands; // of --send: the code, then the answers
    QString tourFolder;
    QString scenario;
    QString modem; // equipment identifier
    QString logFile;
    QString language;
    bool verbose = false;

    /// The key of what is wrong, in the dashboard's texts; null when nothing is.
    const char *errorKey = nullptr;
    /// What the error is about; stands for %1 in its text.
    QString errorSubject;
};

/// Reads the arguments behind the program's name.
///
/// What follows --send is the code and the answers, up to the next word that begins with "--"; all
/// of what follows a lone "--" is code and answers too. An option's value may stand behind "=".
Arguments parseArguments(const QStringList &words);

#endif
