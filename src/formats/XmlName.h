#ifndef XMLNAME_H
#define XMLNAME_H

namespace Formats
{

/*
 * The names of the elements and attributes in the configuration file and the profile files, and the
 * predefined values. The spelling is part of the file formats and must not be corrected.
 */
namespace XmlName
{

// Sections of the configuration file
const char ROOT[] = "ussdPlugin";
const char PRE_POST_DIFFER[] = "PrePostDiffer";
const char PREPAID[] = "Prepaid";
const char POSTPAID[] = "Postpaid";
const char SENT_CHAR[] = "send";
const char RECEIVED_CHAR[] = "recevie";
const char CLEAR_HISTORY[] = "clearHistory";
const char CMD_EDIT[] = "cmdEdit";
const char SMS_USSD[] = "SMSUSSD";
const char AUTO_USSD[] = "autoUSSD";

// Elements and attributes that occur in several sections
const char ITEM[] = "item";
const char NAME[] = "name";
const char VALUE[] = "value";
const char VISIBLE[] = "visible";
const char COMMAND[] = "command";
const char TYPE[] = "type";
const char LENGTH[] = "length";
const char MIN_LENGTH[] = "minlenth";
const char LIMIT_TEXT[] = "LimitText";
const char WIDTH[] = "width";
const char HEIGHT[] = "height";

// The prepaid/postpaid detection
const char RETURN_PATTERN[] = "ReturnPattern";
const char STYLE[] = "style";

// The account windows
const char BALANCE[] = "Balance";
const char CHARGE[] = "Charge";
const char ONLINE_CHARGE[] = "OnlineCharge";
const char MSISDN[] = "MSISDN";
const char POSITION[] = "pos";
const char RETURN_STYLE[] = "ReturnStyle";
const char URL[] = "URL";
const char UPDATE_BUTTON[] = "UpdateButton";

// The appearance of the transcript and the colours of the profile editor
const char Y_HEIGHT[] = "yHeight";
const char Y_OFFSET[] = "yOffset";
const char COLOR[] = "color";
const char RED[] = "red";
const char GREEN[] = "green";
const char BLUE[] = "blue";
const char READONLY_COLOR[] = "readonlycolor";
const char COMMON_COLOR[] = "commoncolor";
const char HEAD_COLOR[] = "headcolor";
const char SHOW_CONFIRM_DIALOG[] = "showConfirmDialog";

// The windows offered for each SIM
const char VALID[] = "valid";
const char IMSI[] = "imsi";
const char USSD[] = "ussd";
const char COMMONPAID[] = "Commonpaid";
const char ADVANCED[] = "Advanced";

// The services window
const char MAIN_SIZE[] = "MainSize";
const char TREE_SIZE[] = "TreeSize";
const char TREE[] = "Tree";
const char DIALOG[] = "Dialog";
const char CONTROL[] = "control";
const char PARENT[] = "parent";
const char ID[] = "id";
const char TREE_ROOT[] = "root";
const char POS_X[] = "posx";
const char POS_Y[] = "posy";
const char NUMBER[] = "number";
const char SMS[] = "sms";

// The profile files
const char PROFILES[] = "tksvdoc";
const char PROFILES_TYPE[] = "USSDProfile";
const char READONLY[] = "readonly";
const char SHOW_BUTTON[] = "showButton";
const char LANG_ID[] = "langID";
const char DESCRIPTION_LANG_ID[] = "desLangID";

// The values of options
const char ON[] = "true";
const char OFF[] = "false";

} // namespace XmlName

} // namespace Formats

#endif
