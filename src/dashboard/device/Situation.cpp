#include "Situation.h"

#include <initializer_list>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "DeviceStatus.h"
#include "look/Controls.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

using Kind = Situation::Kind;

/** A row of the table of situations. The texts are text keys. */
struct Row {
    Kind kind;
    const char *title;
    const char *text;
    const char *icon;
    Tone tone;
    std::initializer_list<Remedy> remedies;
};

const Row TABLE[] = {
    {Kind::Ready, "DEVICE_READY", "DEVICE_READY_TEXT", "check", Tone::Ok, {}},
    {Kind::CodesUnknown,
     "DEVICE_CODES_UNKNOWN",
     "DEVICE_CODES_UNKNOWN_TEXT",
     "tag",
     Tone::Accent,
     {Remedy::ChooseOperator, Remedy::TypeCode}},
    {Kind::WaitsForTurn, "DEVICE_TURN", "DEVICE_TURN_TEXT", "clock", Tone::Accent, {}},
    {Kind::ForeignSession,
     "DEVICE_FOREIGN",
     "DEVICE_FOREIGN_TEXT",
     "warning",
     Tone::Warn,
     {Remedy::EndForeignSession}},
    {Kind::LookingForModem, "DEVICE_LOOKING", "DEVICE_LOOKING_TEXT", "clock", Tone::Accent, {}},
    {Kind::NoModem,
     "DEVICE_NO_MODEM",
     "DEVICE_NO_MODEM_TEXT",
     "modem",
     Tone::Neutral,
     {Remedy::LookAgain, Remedy::TryDemonstration}},
    {Kind::ChosenAbsent,
     "DEVICE_CHOSEN_ABSENT",
     "DEVICE_CHOSEN_ABSENT_TEXT",
     "modem",
     Tone::Neutral,
     {Remedy::ChooseModem}},
    {Kind::ModemRemoved,
     "DEVICE_REMOVED",
     "DEVICE_REMOVED_TEXT",
     "modem",
     Tone::Neutral,
     {Remedy::LookAgain, Remedy::ChooseModem}},
    {Kind::ModemFailed,
     "DEVICE_MODEM_FAILED",
     "DEVICE_MODEM_FAILED_TEXT",
     "warning",
     Tone::Danger,
     {Remedy::ChooseModem}},
    {Kind::NoBus,
     "DEVICE_NO_BUS",
     "DEVICE_NO_BUS_TEXT",
     "warning",
     Tone::Danger,
     {Remedy::HowToStart, Remedy::LookAgain, Remedy::TryDemonstration}},
    {Kind::NoService,
     "DEVICE_NO_SERVICE",
     "DEVICE_NO_SERVICE_TEXT",
     "warning",
     Tone::Danger,
     {Remedy::HowToStart, Remedy::LookAgain, Remedy::TryDemonstration}},
    {Kind::ServiceSilent,
     "DEVICE_SERVICE_SILENT",
     "DEVICE_SERVICE_SILENT_TEXT",
     "warning",
     Tone::Warn,
     {Remedy::LookAgain, Remedy::HowToStart}},
    {Kind::NotPermitted,
     "DEVICE_NOT_PERMITTED",
     "DEVICE_NOT_PERMITTED_TEXT",
     "shieldOff",
     Tone::Warn,
     {Remedy::HowToAllow}},
    {Kind::NoSim, "DEVICE_NO_SIM", "DEVICE_NO_SIM_TEXT", "sim", Tone::Warn, {Remedy::LookAgain}},
    {Kind::SimLocked,
     "DEVICE_SIM_LOCKED",
     "DEVICE_SIM_LOCKED_TEXT",
     "lock",
     Tone::Warn,
     {Remedy::EnterPin}},
    {Kind::PukNeeded, "DEVICE_PUK", "DEVICE_PUK_TEXT", "lock", Tone::Danger, {Remedy::WhatIsPuk}},
    {Kind::Off, "DEVICE_OFF", "DEVICE_OFF_TEXT", "modem", Tone::Neutral, {Remedy::Enable}},
    {Kind::Searching, "DEVICE_SEARCHING", "DEVICE_SEARCHING_TEXT", "clock", Tone::Accent, {}},
    {Kind::RegistrationDenied, "DEVICE_DENIED", "DEVICE_DENIED_TEXT", "sim", Tone::Danger, {}},
    {Kind::NoUssd,
     "DEVICE_NO_USSD",
     "DEVICE_NO_USSD_TEXT",
     "warning",
     Tone::Danger,
     {Remedy::ChooseModem}},
};

const Row &rowOf(Kind kind)
{
    for (const Row &row : TABLE) {
        if (row.kind == kind)
            return row;
    }
    return TABLE[0];
}

/// Returns the kind of situation that the problem of the device causes, or Ready if the problem
/// does not determine the situation.
Kind kindOfProblem(int problem)
{
    switch (problem) {
    case TKSV_PROBLEM_NO_BUS:
        return Kind::NoBus;
    case TKSV_PROBLEM_NO_SERVICE:
        return Kind::NoService;
    case TKSV_PROBLEM_NOT_PERMITTED:
        return Kind::NotPermitted;
    case TKSV_PROBLEM_CHOSEN_ABSENT:
        return Kind::ChosenAbsent;
    case TKSV_PROBLEM_PUK_NEEDED:
        return Kind::PukNeeded;
    case TKSV_PROBLEM_NO_USSD:
        return Kind::NoUssd;
    case TKSV_PROBLEM_MODEM_FAILED:
        return Kind::ModemFailed;
    case TKSV_PROBLEM_REGISTRATION_DENIED:
        return Kind::RegistrationDenied;
    case TKSV_PROBLEM_SERVICE_SILENT:
        return Kind::ServiceSilent;
    case TKSV_PROBLEM_MODEM_REMOVED:
        return Kind::ModemRemoved;
    default:
        return Kind::Ready;
    }
}

Kind kindOfState(const DeviceStatus &status)
{
    switch (status.state) {
    case TKSV_DEVICE_ABSENT:
        return status.isLooking ? Kind::LookingForModem : Kind::NoModem;
    case TKSV_DEVICE_SIM_MISSING:
        return Kind::NoSim;
    case TKSV_DEVICE_SIM_LOCKED:
        return Kind::SimLocked;
    case TKSV_DEVICE_DISABLED:
        return Kind::Off;
    case TKSV_DEVICE_SEARCHING:
        return Kind::Searching;
    default:
        return Kind::Ready;
    }
}

Kind kindOf(const DeviceStatus &status, bool areCodesKnown)
{
    const Kind problem = kindOfProblem(status.problem);
    if (problem != Kind::Ready)
        return problem;
    const Kind state = kindOfState(status);
    if (state != Kind::Ready)
        return state;
    if (status.hasForeignSession)
        return Kind::ForeignSession;
    if (status.waitsForTurn)
        return Kind::WaitsForTurn;
    return areCodesKnown ? Kind::Ready : Kind::CodesUnknown;
}

bool isSendable(Kind kind, const DeviceStatus &status)
{
    switch (kind) {
    case Kind::Ready:
    case Kind::CodesUnknown:
    case Kind::WaitsForTurn:
        return true;
    case Kind::NotPermitted:
        return status.isRegistered();
    default:
        return false;
    }
}

QString lockedText(const DeviceStatus &status)
{
    const bool isWrong = status.problem == TKSV_PROBLEM_WRONG_PIN;
    const QString first = dashboardText(isWrong ? "PIN_WRONG" : "DEVICE_SIM_LOCKED_TEXT");
    const QString tries = status.triesText();
    return tries.isEmpty() ? first : first + QLatin1Char(' ') + tries;
}

/// Returns true if the scenario of a demonstration has caused the state, so that the user cannot
/// change it.
bool isOfDemonstration(Kind kind, const DeviceStatus &status)
{
    const bool isLasting = kind == Kind::NoModem || kind == Kind::NoSim || kind == Kind::Off;
    return status.isSimulated && isLasting;
}

QString textOf(const Row &row, const DeviceStatus &status)
{
    if (row.kind == Kind::SimLocked)
        return lockedText(status);
    if (isOfDemonstration(row.kind, status))
        return dashboardText("DEVICE_SIMULATED_TEXT");
    return dashboardText(row.text);
}

QString titleOf(const Row &row, const QString &chosenModem)
{
    if (row.kind != Kind::ChosenAbsent)
        return dashboardText(row.title);
    if (chosenModem.isEmpty())
        return dashboardText("DEVICE_CHOSEN_ABSENT_UNNAMED");
    return dashboardText(row.title).arg(isolated(chosenModem));
}

void addOnce(QList<Remedy> *remedies, Remedy remedy, bool isUseful)
{
    if (isUseful && !remedies->contains(remedy))
        *remedies << remedy;
}

/// Returns the remedies of the row and further remedies that apply to the status, even if the title
/// describes a different problem.
QList<Remedy> remediesOf(const Row &row, const DeviceStatus &status)
{
    if (isOfDemonstration(row.kind, status))
        return {Remedy::UseMyModem};
    QList<Remedy> remedies(row.remedies);
    const bool isOff = status.state == TKSV_DEVICE_DISABLED && !status.isSimulated &&
                       row.kind != Kind::NotPermitted;
    addOnce(&remedies, Remedy::EnterPin, status.waitsForPin());
    addOnce(&remedies, Remedy::Enable, isOff);
    addOnce(&remedies, Remedy::LookAgain, status.mayBeFound());
    addOnce(&remedies, Remedy::EndForeignSession, status.hasForeignSession);
    return remedies;
}

struct Button {
    Remedy remedy;
    const char *text;
    const char *icon; // null if the button has no icon
};

const Button BUTTONS[] = {
    {Remedy::EnterPin, "REMEDY_ENTER_PIN", "lock"},
    {Remedy::Enable, "REMEDY_ENABLE", nullptr},
    {Remedy::LookAgain, "REMEDY_LOOK_AGAIN", "refresh"},
    {Remedy::ChooseModem, "REMEDY_CHOOSE_MODEM", "modem"},
    {Remedy::HowToAllow, "REMEDY_HOW_TO_ALLOW", "info"},
    {Remedy::HowToStart, "REMEDY_HOW_TO_START", "info"},
    {Remedy::WhatIsPuk, "REMEDY_WHAT_IS_PUK", "info"},
    {Remedy::TryDemonstration, "REMEDY_TRY_DEMONSTRATION", "flask"},
    {Remedy::UseMyModem, "REMEDY_USE_MY_MODEM", "modem"},
    {Remedy::EndForeignSession, "REMEDY_END_FOREIGN_SESSION", "stop"},
    {Remedy::ChooseOperator, "REMEDY_CHOOSE_OPERATOR", "tag"},
    {Remedy::TypeCode, "REMEDY_TYPE_CODE", nullptr},
};

const Button *buttonOf(Remedy remedy)
{
    for (const Button &button : BUTTONS) {
        if (button.remedy == remedy)
            return &button;
    }
    return nullptr;
}

/// A rule that allows the group netdev to use modems. The polkit daemon applies it immediately.
const char POLKIT_RULE[] = "// /etc/polkit-1/rules.d/50-modem.rules\n"
                           "polkit.addRule(function (action, subject) {\n"
                           "    if (action.id.indexOf(\"org.freedesktop.ModemManager1.\") == 0 &&\n"
                           "        subject.isInGroup(\"netdev\"))\n"
                           "        return polkit.Result.YES;\n"
                           "});";

Instruction howToStart(Kind kind)
{
    Instruction instruction;
    instruction.title = dashboardText("REMEDY_HOW_TO_START");
    if (kind == Kind::NoBus) {
        instruction.text = dashboardText("DEVICE_RUN_COMMAND");
        instruction.command = QLatin1String("sudo systemctl start dbus");
    } else if (kind == Kind::ServiceSilent) {
        instruction.text = dashboardText("DEVICE_RUN_COMMAND");
        instruction.command = QLatin1String("sudo systemctl restart ModemManager");
    } else {
        instruction.text = dashboardText("DEVICE_START_SERVICE");
        instruction.command = QLatin1String("sudo systemctl start ModemManager");
    }
    return instruction;
}

} // namespace

Situation situationOf(const DeviceStatus &status, bool areCodesKnown, const QString &chosenModem)
{
    const Row &row = rowOf(kindOf(status, areCodesKnown));
    Situation situation;
    situation.kind = row.kind;
    situation.title = titleOf(row, chosenModem);
    situation.text = textOf(row, status);
    situation.icon = row.icon;
    situation.tone = row.tone;
    situation.remedies = remediesOf(row, status);
    situation.canSend = isSendable(row.kind, status);
    situation.hasPresets = situation.canSend && areCodesKnown;
    return situation;
}

QString remedyText(Remedy remedy)
{
    const Button *button = buttonOf(remedy);
    return button ? dashboardText(button->text) : QString();
}

const char *remedyIcon(Remedy remedy)
{
    const Button *button = buttonOf(remedy);
    return button ? button->icon : nullptr;
}

Instruction instructionFor(Remedy remedy, Situation::Kind kind)
{
    switch (remedy) {
    case Remedy::HowToStart:
        return howToStart(kind);
    case Remedy::HowToAllow:
        return {remedyText(remedy), dashboardText("DEVICE_ALLOW"), QLatin1String(POLKIT_RULE)};
    case Remedy::WhatIsPuk:
        return {remedyText(remedy), dashboardText("DEVICE_WHAT_IS_PUK"), QString()};
    default:
        return Instruction();
    }
}

QString situationAsText(const Situation &situation)
{
    QString text = situation.title + QLatin1String(". ") + situation.text;
    for (const Remedy remedy : situation.remedies) {
        const Instruction instruction = instructionFor(remedy, situation.kind);
        if (!instruction.command.isEmpty())
            text += QLatin1Char('\n') + instruction.text + QLatin1Char('\n') + instruction.command;
    }
    return text.trimmed();
}

} // namespace Dashboard
