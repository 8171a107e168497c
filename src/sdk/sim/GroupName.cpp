#include "GroupName.h"

#include "../base/CodeForm.h"
#include "../base/Text.h"
#include "Scenario.h"

namespace Tksv
{

namespace
{

const char SMS_PREFIX[] = "SMS ";
const char PUSH_PREFIX[] = "Push ";
const char EVENT_PREFIX[] = "Event ";

/// Returns true if the name is a code, or a code pattern. A pattern contains one %s as a
/// placeholder for digits.
bool isCodeOrPattern(const std::string &name)
{
    std::string rest = name;
    const std::size_t place = rest.find(ANY_DIGITS);
    if (place != std::string::npos)
        rest.replace(place, sizeof ANY_DIGITS - 1, "0");
    return hasFormOfCode(name) && rest.find_first_not_of("0123456789*#") == std::string::npos;
}

bool isSmsNumber(const std::string &text)
{
    return isDigits(startsWith(text, "+") ? text.substr(1) : text);
}

bool isPushOrCode(const std::string &name)
{
    return isCodeOrPattern(name) ||
           (startsWith(name, PUSH_PREFIX) && name.size() > sizeof PUSH_PREFIX - 1);
}

} // namespace

std::string smsNumberOf(const std::string &name)
{
    return startsWith(name, SMS_PREFIX) ? name.substr(sizeof SMS_PREFIX - 1) : std::string();
}

GroupKind kindOf(const std::string &name)
{
    if (name == "Network")
        return GroupKind::Network;
    if (name == "SMS" || isSmsNumber(smsNumberOf(name)))
        return GroupKind::Sms;
    if (startsWith(name, EVENT_PREFIX) && name.size() > sizeof EVENT_PREFIX - 1)
        return GroupKind::Event;
    const std::size_t slash = name.find('/');
    if (!isPushOrCode(name.substr(0, slash)))
        return GroupKind::Unknown;
    if (slash != std::string::npos)
        return GroupKind::Answer;
    return startsWith(name, PUSH_PREFIX) ? GroupKind::Push : GroupKind::Code;
}

std::string menuOf(const std::string &answerGroup)
{
    return answerGroup.substr(0, answerGroup.rfind('/'));
}

bool hasPattern(const std::string &name)
{
    return name.substr(0, name.find('/')).find(ANY_DIGITS) != std::string::npos;
}

std::string bracketed(const std::string &name)
{
    return "[" + name + "]";
}

} // namespace Tksv
