#include "DashboardSettings.h"

#include <QFile>
#include <QStringList>

namespace Dashboard
{

namespace
{

const char NAME[] = "ussd-dashboard";
const char LANGUAGE[] = "language";
const char DEVICE[] = "device";
const char SCENARIO[] = "scenario"; // written only by earlier versions
const char OPERATOR_CODES[] = "operator-codes/";
const char DETECTS_PAID_TYPE[] = "detect-paid-type";
const char GEOMETRY[] = "geometry";
const char THEME[] = "theme";
const char TEXT_SIZE[] = "text-size";
const char REDUCES_MOTION[] = "reduce-motion";
const char NOTIFIES_MESSAGES[] = "notify-messages";
const char SHOWS_TEXT[] = "show-text-in-notifications";
const char LOW_BALANCE[] = "low-balance";
const char HIDES_SIM_NUMBER[] = "hide-sim-number";
const char KEEPS_HISTORY[] = "keep-history";
const char FIRST_RUN_DONE[] = "first-run-done";
const char ASKS_DAILY[] = "ask-daily";
const char LAST_ASKED[] = "last-asked"; // the group with the last balance query of each SIM
const char MODES_BEFORE[] = "modes-before/";

const char *const THEMES[] = {"system", "light", "dark"};
const int TEXT_SIZES[] = {100, 125, 150, 200}; // per cent

/// Returns true if the string is a decimal number with at most one decimal point, for example
/// "5.00".
bool isAmount(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    for (const QString &part : parts) {
        bool isNumber = false;
        part.toUInt(&isNumber);
        if (!isNumber || !part.at(0).isDigit())
            return false;
    }
    return parts.size() <= 2;
}

/// Removes an incomplete lock file of QSettings, which remains if the program is killed while it
/// writes the lock file. Otherwise, the next instance would wait 30 s until Qt treats the lock as
/// stale.
void removeUnfinishedLock(const QString &settingsFile)
{
    QFile lock(settingsFile + QLatin1String(".lock"));
    if (lock.open(QIODevice::ReadOnly) && !lock.readAll().endsWith('\n'))
        lock.remove();
}

} // namespace

DashboardSettings::DashboardSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QLatin1String(NAME),
                 QLatin1String(NAME))
{
    removeUnfinishedLock(file());
}

// Also restricts the permissions of an existing file, because the umask affects only new files.
DashboardSettings::~DashboardSettings()
{
    m_settings.sync();
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
}

bool DashboardSettings::save()
{
    m_settings.sync();
    return m_settings.status() != QSettings::AccessError;
}

QString DashboardSettings::language() const
{
    return m_settings.value(QLatin1String(LANGUAGE)).toString();
}

void DashboardSettings::setLanguage(const QString &code)
{
    set(LANGUAGE, code);
}

DeviceChoice DashboardSettings::device() const
{
    const QString word = m_settings.value(QLatin1String(DEVICE)).toString();
    const QString file = m_settings.value(QLatin1String(SCENARIO)).toString();
    if (word.isEmpty() && !file.isEmpty())
        return DeviceChoice::simulated(file);
    return DeviceChoice::fromWord(word);
}

void DashboardSettings::setDevice(const DeviceChoice &choice)
{
    set(DEVICE, choice.word());
    m_settings.remove(QLatin1String(SCENARIO));
}

QString DashboardSettings::operatorCodes(const QString &homeNetwork) const
{
    return m_settings.value(QLatin1String(OPERATOR_CODES) + homeNetwork).toString();
}

void DashboardSettings::setOperatorCodes(const QString &homeNetwork, const QString &word)
{
    m_settings.setValue(QLatin1String(OPERATOR_CODES) + homeNetwork, word);
}

bool DashboardSettings::detectsPaidType() const
{
    return flag(DETECTS_PAID_TYPE, false);
}

void DashboardSettings::setDetectsPaidType(bool detects)
{
    set(DETECTS_PAID_TYPE, detects);
}

QString DashboardSettings::theme() const
{
    QString chosen = word(THEME);
    for (const char *each : THEMES) {
        if (chosen == QLatin1String(each))
            return chosen;
    }
    return QLatin1String(THEMES[0]);
}

void DashboardSettings::setTheme(const QString &word)
{
    set(THEME, word);
}

int DashboardSettings::textSize() const
{
    const int percent = word(TEXT_SIZE).toInt();
    for (const int each : TEXT_SIZES) {
        if (percent == each)
            return each;
    }
    return TEXT_SIZES[0];
}

void DashboardSettings::setTextSize(int percent)
{
    set(TEXT_SIZE, percent);
}

bool DashboardSettings::reducesMotion() const
{
    return flag(REDUCES_MOTION, false);
}

void DashboardSettings::setReducesMotion(bool reduces)
{
    set(REDUCES_MOTION, reduces);
}

bool DashboardSettings::notifiesMessages() const
{
    return flag(NOTIFIES_MESSAGES, true);
}

void DashboardSettings::setNotifiesMessages(bool notifies)
{
    set(NOTIFIES_MESSAGES, notifies);
}

bool DashboardSettings::showsTextInNotifications() const
{
    return flag(SHOWS_TEXT, false);
}

void DashboardSettings::setShowsTextInNotifications(bool shows)
{
    set(SHOWS_TEXT, shows);
}

QString DashboardSettings::lowBalance() const
{
    const QString amount = word(LOW_BALANCE);
    return isAmount(amount) ? amount : QString();
}

void DashboardSettings::setLowBalance(const QString &amount)
{
    set(LOW_BALANCE, amount);
}

bool DashboardSettings::hidesSimNumber() const
{
    return flag(HIDES_SIM_NUMBER, true);
}

void DashboardSettings::setHidesSimNumber(bool hides)
{
    set(HIDES_SIM_NUMBER, hides);
}

bool DashboardSettings::keepsHistory() const
{
    return flag(KEEPS_HISTORY, true);
}

void DashboardSettings::setKeepsHistory(bool keeps)
{
    set(KEEPS_HISTORY, keeps);
}

bool DashboardSettings::isFirstRunDone() const
{
    return flag(FIRST_RUN_DONE, false);
}

void DashboardSettings::setFirstRunDone(bool isDone)
{
    set(FIRST_RUN_DONE, isDone);
}

bool DashboardSettings::asksDaily() const
{
    return flag(ASKS_DAILY, false);
}

void DashboardSettings::setAsksDaily(bool asks)
{
    set(ASKS_DAILY, asks);
}

QDateTime DashboardSettings::lastAsked(const QString &sim) const
{
    const QString key = QLatin1String(LAST_ASKED) + QLatin1Char('/') + sim;
    return QDateTime::fromString(m_settings.value(key).toString(), Qt::ISODate);
}

void DashboardSettings::setLastAsked(const QString &sim, const QDateTime &time)
{
    const QString key = QLatin1String(LAST_ASKED) + QLatin1Char('/') + sim;
    m_settings.setValue(key, time.toUTC().toString(Qt::ISODate));
}

void DashboardSettings::forgetLastAsked()
{
    m_settings.remove(QLatin1String(LAST_ASKED));
}

QString DashboardSettings::modesBefore(const QString &equipmentId) const
{
    return m_settings.value(QLatin1String(MODES_BEFORE) + equipmentId).toString();
}

void DashboardSettings::setModesBefore(const QString &equipmentId, const QString &word)
{
    const QString key = QLatin1String(MODES_BEFORE) + equipmentId;
    if (word.isEmpty())
        m_settings.remove(key);
    else
        m_settings.setValue(key, word);
}

QByteArray DashboardSettings::geometry() const
{
    return m_settings.value(QLatin1String(GEOMETRY)).toByteArray();
}

void DashboardSettings::setGeometry(const QByteArray &geometry)
{
    set(GEOMETRY, geometry);
}

/// Returns the default value unless the file contains "true" or "false".
bool DashboardSettings::flag(const char *key, bool defaultValue) const
{
    const QString text = word(key);
    const bool isOther = text != QLatin1String("true") && text != QLatin1String("false");
    return isOther ? defaultValue : text == QLatin1String("true");
}

QString DashboardSettings::word(const char *key) const
{
    return m_settings.value(QLatin1String(key)).toString();
}

void DashboardSettings::set(const char *key, const QVariant &value)
{
    m_settings.setValue(QLatin1String(key), value);
}

} // namespace Dashboard
