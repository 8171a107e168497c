#include "GroupName.h"

#include "../base/CodeForm.h"
#include "../base/Text.h"
#include "Scenario.h"

namespace tksv
{

namespace
{

const char SmsPrefix[] = "SMS ";
const char PushPrefix[] = "Push ";
const char EventPrefix[] = "Event ";

/// The characters of a code, with at most one %s.
bool isCodeOrPattern(const std::string &name)
{
    std::string rest = name;
    const std::size_t place = rest.find(AnyDigits);
    if (place != std::string::npos)
        rest.replace(place, sizeof AnyDigits - 1, "0");
    return hasFormOfCode(name) && rest.find_first_not_of("0123456789*#") == std::string::npos;
}

bool isSmsNumber(const std::string &text)
{
    return isDigits(startsWith(text, "+") ? text.substr(1) : text);
}

bool isPushOrCode(const std::string &name)
{
    return isCodeOrPattern(name) ||
           (startsWith(name, PushPrefix) && name.size() > sizeof PushPrefix - 1);
}

} // namespace

std::string smsNumberOf(const std::string &name)
{
    return startsWith(name, SmsPrefix) ? name.substr(sizeof SmsPrefix - 1) : std::string();
}

GroupKind kindOf(const std::string &name)
{
    if (name == "Network")
        return GroupKind::Network;
    if (name == "SMS" || isSmsNumber(smsNumberOf(name)))
        return GroupKind::Sms;
    if (startsWith(name, EventPrefix) && name.size() > sizeof EventPrefix - 1)
        return GroupKind::Event;
    const std::size_t slash = name.find('/');
    if (!isPushOrCode(name.substr(0, slash)))
        return GroupKind::Unknown;
    if (slash != std::string::npos)
        return GroupKind::Answer;
    return startsWith(name, PushPrefix) ? GroupKind::Push : GroupKind::Code;
}

std::string menuOf(const std::string &answerGroup)
{
    return answerGroup.substr(0, answerGroup.rfind('/'));
}

bool hasPattern(const std::string &name)
{
    return name.substr(0, name.find('/')).find(AnyDigits) != std::string::npos;
}

std::string bracketed(const std::string &name)
{
    return "[" + name + "]";
}

} // namespace tksv
