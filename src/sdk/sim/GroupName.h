#ifndef TKSV_INTERNAL_GROUPNAME_H
#define TKSV_INTERNAL_GROUPNAME_H

#include <string>

/* What the name of a group in a scenario file says. */

namespace tksv
{

enum class GroupKind { Network, Sms, Push, Event, Code, Answer, Unknown };

GroupKind kindOf(const std::string &name);
/// The number in "SMS number"; empty for "SMS".
std::string smsNumberOf(const std::string &name);
/// The group that an answer group belongs to: "*123#/1" for "*123#/1/2".
std::string menuOf(const std::string &answerGroup);
/// Whether digits of any kind are a part of the code.
bool hasPattern(const std::string &name);
std::string bracketed(const std::string &name);

} // namespace tksv

#endif
