#ifndef SITUATION_H
#define SITUATION_H

#include <QList>
#include <QString>

namespace Dashboard
{

struct DeviceStatus;
enum class Tone;

/** An action that may solve the problem of a situation. */
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

/** The situation of the device, as the pages present it to the user. */
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
    QString title; // without a full stop at the end
    QString text;
    const char *icon = nullptr; // the name of an icon
    Tone tone = Tone(0);
    QList<Remedy> remedies; // the first remedy is that of the main button
    /// True if the device accepts codes. If polkit has refused a registered modem, codes are still
    /// accepted, because polkit decides anew for each of them.
    bool canSend = false;
    bool hasPresets = false; // true if the codes of the SIM's operator are known and can be sent
};

/** Instructions that the user follows outside the program. */
struct Instruction {
    QString title;
    QString text;
    QString command; // to be copied; empty if there is nothing to type
};

/// Returns the situation for this status. `chosenModem` is the name of the modem that the user has
/// selected. It is empty if the name is unknown.
Situation situationOf(const DeviceStatus &status, bool areCodesKnown, const QString &chosenModem);

/// Returns the text of the button.
QString remedyText(Remedy remedy);
/// Returns the name of the button's icon, or null if the button has no icon.
const char *remedyIcon(Remedy remedy);

/// Returns the instructions for HowToAllow, HowToStart or WhatIsPuk in a situation of this kind.
Instruction instructionFor(Remedy remedy, Situation::Kind kind);

/// Returns the title, the text and the instructions of the situation for a terminal.
QString situationAsText(const Situation &situation);

} // namespace Dashboard

#endif
