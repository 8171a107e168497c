#ifndef TKSV_INTERNAL_GROUPNAME_H
#define TKSV_INTERNAL_GROUPNAME_H

#include <string>

/* The kinds of groups in a scenario file. */

namespace Tksv
{

enum class GroupKind { Network, Sms, Push, Event, Code, Answer, Unknown };

GroupKind kindOf(const std::string &name);
/// Returns the number of a group "SMS number", or an empty text for the group "SMS".
std::string smsNumberOf(const std::string &name);
/// Returns the group of the menu that an answer belongs to: "*123#/1" for "*123#/1/2".
std::string menuOf(const std::string &answerGroup);
/// Returns whether the name of the group contains %s.
bool hasPattern(const std::string &name);
/// Returns "[name]".
std::string bracketed(const std::string &name);

} // namespace Tksv

#endif
