#ifndef SITUATION_H
#define SITUATION_H

#include <QList>
#include <QString>

namespace Dashboard
{

struct DeviceStatus;
enum class Tone;

/** An action that may solve a problem of the device. */
enum class Remedy {
    None,
    EnterPin,
    Enable,
    LookAgain,
    ChooseModem,
    HowToAllow,
    HowToStart,
    WhatIsPuk,
    TryDemonstration,
    UseMyModem,
    EndForeignSession,
    ChooseOperator,
    TypeCode
};

/** The situation of the device, as the pages display it. */
struct Situation {
    enum class Kind {
        Ready,
        CodesUnknown,
        WaitsForTurn,
        ForeignSession,
        LookingForModem,
        NoModem,
        ChosenAbsent,
        ModemRemoved,
        ModemFailed,
        NoBus,
        NoService,
        ServiceSilent,
        NotPermitted,
        NoSim,
        SimLocked,
        PukNeeded,
        Off,
        Searching,
        RegistrationDenied,
        NoUssd
    };

    Kind kind = Kind::Ready;
    QString title; // does not end with a full stop
    QString text;
    const char *icon = nullptr; // the name of the icon
    Tone tone = Tone(0);
    QList<Remedy> remedies; // the first one belongs to the main button
    /// True if codes can be sent. This is also the case if polkit has denied access to a registered
    /// modem, because polkit checks the permission for each code.
    bool canSend = false;
    bool hasPresets = false; // true if the codes of the SIM's operator are known and can be sent
};

/** Instructions for solving a problem outside the program. */
struct Instruction {
    QString title;
    QString text;
    QString command; // a command to copy; may be empty
};

/// Returns the situation for this status. `chosenModem` is the name of the modem that the user has
/// selected, or an empty string if this name is unknown.
Situation situationOf(const DeviceStatus &status, bool areCodesKnown, const QString &chosenModem);

/// Returns the text for the button of the remedy.
QString remedyText(Remedy remedy);
/// Returns the name of the button's icon, or null if the button has no icon.
const char *remedyIcon(Remedy remedy);

/// Returns the instructions for HowToAllow, HowToStart or WhatIsPuk in a situation of this kind.
Instruction instructionFor(Remedy remedy, Situation::Kind kind);

/// Returns the title, the text and the instructions of the situation as plain text for the
/// terminal.
QString situationAsText(const Situation &situation);

} // namespace Dashboard

#endif
