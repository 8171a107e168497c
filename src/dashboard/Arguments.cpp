#include "Arguments.h"

namespace Dashboard
{

namespace
{

const char SEPARATOR[] = "--";

/** An option that takes no value, and the member that it sets to true. */
struct Switch {
    const char *name;
    bool Arguments::*value;
};

const Switch SWITCHES[] = {{"--verbose", &Arguments::verbose},
                           {"--demo", &Arguments::demo},
                           {"--enable", &Arguments::enable},
                           {"--end-foreign-session", &Arguments::endForeignSession}};

/** Parses the command-line arguments from the first to the last. */
class Parser
{
public:
    explicit Parser(const QStringList &words) : m_words(words) {}
    Arguments parse();

private:
    void parseOption(const QString &word);
    bool parseFlag(const QString &name);
    bool parseSwitch(const QString &name);
    bool parseValueOption(const QString &name, const QString &value, bool hasValue);
    void parseCommands();
    void parseRest();
    void setMode(Arguments::Mode mode);
    void checkCommands();
    void checkDevice();
    void checkSendSwitches();
    void fail(const char *key, const QString &subject);
    bool failed() const { return m_result.errorKey; }

    QStringList m_words;
    Arguments m_result;
};

bool isOption(const QString &word)
{
    return word.startsWith(QLatin1String(SEPARATOR));
}

bool holdsControlCharacter(const QString &text)
{
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control)
            return true;
    }
    return false;
}

Arguments Parser::parse()
{
    while (!m_words.isEmpty() && !failed()) {
        const QString word = m_words.takeFirst();
        if (word == QLatin1String(SEPARATOR))
            parseRest();
        else if (word.startsWith(QLatin1Char('-')))
            parseOption(word);
        else
            fail("CLI_UNEXPECTED", word);
    }
    if (m_result.mode == Arguments::Send)
        checkCommands();
    else
        checkSendSwitches();
    checkDevice();
    return m_result;
}

void Parser::parseOption(const QString &word)
{
    const int equals = word.indexOf(QLatin1Char('='));
    const QString name = word.left(equals);
    if (equals < 0 && parseFlag(name))
        return;
    const bool hasValue = equals >= 0 || (!m_words.isEmpty() && !isOption(m_words.first()));
    const QString value = equals >= 0 ? word.mid(equals + 1) : m_words.value(0);
    if (!parseValueOption(name, value, hasValue))
        fail("CLI_UNKNOWN_OPTION", word);
    else if (equals < 0 && hasValue)
        m_words.removeFirst();
}

bool Parser::parseFlag(const QString &name)
{
    if (name == QLatin1String("--help") || name == QLatin1String("-h"))
        m_result.mode = Arguments::Help;
    else if (name == QLatin1String("--version"))
        m_result.mode = Arguments::Version;
    else if (name == QLatin1String("--send"))
        parseCommands();
    else
        return parseSwitch(name);
    return true;
}

bool Parser::parseSwitch(const QString &name)
{
    for (const Switch &each : SWITCHES) {
        if (name == QLatin1String(each.name)) {
            m_result.*each.value = true;
            return true;
        }
    }
    return false;
}

bool Parser::parseValueOption(const QString &name, const QString &value, bool hasValue)
{
    if (name == QLatin1String("--tour")) {
        setMode(Arguments::Tour);
        m_result.tourFolder = value;
    } else if (name == QLatin1String("--export")) {
        setMode(Arguments::Export);
        m_result.exportFile = value;
    } else if (name == QLatin1String("--scenario")) {
        m_result.scenario = value;
    } else if (name == QLatin1String("--modem")) {
        m_result.modem = value;
    } else if (name == QLatin1String("--log")) {
        m_result.logFile = value;
    } else if (name == QLatin1String("--language")) {
        m_result.language = value;
    } else {
        return false;
    }
    if (!hasValue || value.isEmpty())
        fail("CLI_MISSING_VALUE", name);
    return true;
}

void Parser::parseCommands()
{
    setMode(Arguments::Send);
    while (!m_words.isEmpty() && !isOption(m_words.first()))
        m_result.commands << m_words.takeFirst();
}

void Parser::parseRest()
{
    if (m_result.mode != Arguments::Send && !m_words.isEmpty())
        return fail("CLI_UNEXPECTED", m_words.first());
    m_result.commands << m_words;
    m_words.clear();
}

// Sets the mode. The first --help or --version overrides all other modes. The other modes are
// mutually exclusive.
void Parser::setMode(Arguments::Mode mode)
{
    const Arguments::Mode earlier = m_result.mode;
    if (earlier == Arguments::Help || earlier == Arguments::Version)
        return;
    if (earlier != Arguments::Window && earlier != mode)
        fail("CLI_CONFLICT", QString());
    m_result.mode = mode;
}

void Parser::checkCommands()
{
    if (m_result.commands.isEmpty())
        return fail("CLI_MISSING_VALUE", QLatin1String("--send"));
    for (const QString &command : m_result.commands) {
        if (command.isEmpty() || holdsControlCharacter(command))
            fail("CLI_BAD_COMMAND", QString());
    }
}

void Parser::checkDevice()
{
    const bool isSimulated = m_result.demo || !m_result.scenario.isEmpty();
    const bool isModem = !m_result.modem.isEmpty();
    if (m_result.mode == Arguments::Tour && (isSimulated || isModem))
        fail("CLI_TOUR_SCENARIO", QString());
    if (isSimulated && isModem)
        fail("CLI_MODEM_SCENARIO", QString());
}

void Parser::checkSendSwitches()
{
    if (m_result.mode == Arguments::Send || m_result.mode == Arguments::Help ||
        m_result.mode == Arguments::Version)
        return;
    if (m_result.enable)
        fail("CLI_ONLY_SEND", QLatin1String("--enable"));
    if (m_result.endForeignSession)
        fail("CLI_ONLY_SEND", QLatin1String("--end-foreign-session"));
}

void Parser::fail(const char *key, const QString &subject)
{
    if (failed())
        return;
    m_result.errorKey = key;
    m_result.errorSubject = subject;
}

} // namespace

Arguments parseArguments(const QStringList &words)
{
    return Parser(words).parse();
}

} // namespace Dashboard
