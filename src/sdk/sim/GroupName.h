#ifndef TKSV_INTERNAL_GROUPNAME_H
#define TKSV_INTERNAL_GROUPNAME_H

#include <string>

/* Functions that analyze the names of the groups in a scenario file. */

namespace Tksv
{

enum class GroupKind { Network, Sms, Push, Event, Code, Answer, Unknown };

GroupKind kindOf(const std::string &name);
/// Returns the number in a group name of the form "SMS number", or an empty string for "SMS".
std::string smsNumberOf(const std::string &name);
/// Returns the name of the menu to which the answer belongs, for example "*123#/1" for "*123#/1/2".
std::string menuOf(const std::string &answerGroup);
/// Returns true if the group name contains %s.
bool hasPattern(const std::string &name);
/// Returns the name enclosed in square brackets.
std::string bracketed(const std::string &name);

} // namespace Tksv

#endif
