<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>USSD codes</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Enter a code such as *100#, or the answer to a menu.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>Top-up PIN or phone number:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Send</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>Clea&amp;r</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>Waiting for the network’s reply…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Sent: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Received: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Please confirm</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>Clear the whole history?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>The network did not reply in time.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>There is no reply.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Please wait…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Sending failed.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Edit codes</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Double-click to edit; coloured rows are fixed. The last two buttons need a number (%s).</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: this entry is already in the list. Please enter another one.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>Save the changes?</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>This file is damaged and was read in part only, so it is not saved over. Please repair or delete it:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>The changes are not saved, because this file cannot be written:
%s</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Prepaid account</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Contract account</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>My balance</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>&amp;Update</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>The reply may take a few seconds.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>Top-up PIN</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>&amp;Top up</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Online top-up</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>My number</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>Get &amp;number</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>&amp;Close</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Operator services</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Data, one day</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Buys a data pack for one day.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Data, one week</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Buys a data pack for one week.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Data, one month</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Buys a data pack for one month.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Roaming on</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Allows use of networks abroad.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Roaming off</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Bars use of networks abroad.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Voice mail on</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Sends missed calls to your voice mail.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Voice mail off</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>No longer sends missed calls to your voice mail.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Call me</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Asks somebody to call you back, free of charge.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Credit transfer</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Passes part of your credit on.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Weather by SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Orders the forecast for a town as a short message.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Tariff by SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Orders the prices of your tariff as a short message.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Usage alerts</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Sends you a short message when little credit or data is left.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Phone number:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Amount:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Town:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Buy</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>Switch &amp;on</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>Switch &amp;off</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>&amp;Send</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>&amp;Order</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>Shows your balance</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>My number</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Shows your own phone number</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Data left</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Shows how much data is left</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Validity</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Shows how long your credit is valid</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Main menu</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Opens the operator’s menu</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Data packs</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Lists data packs to buy</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Shows whether roaming is on</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Voice mail</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Shows whether voice mail is on</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>My tariff</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Shows your tariff</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Top up</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Tops up with the PIN entered</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Call me</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Asks the number entered to call you back</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>USSD dashboard</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>Show the SIM’s &amp;number</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Demonstration (invented network)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>&amp;Open scenario file...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Open a scenario file</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Scenario files</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>The scenario file cannot be used</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Demonstration: invented network (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Source: modem (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>No network</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Signal: %1%</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Signal: unknown</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>SIM card: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>SIM card without a readable number</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>There is no device.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>There is no SIM card in the device.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>The SIM card waits for its PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>The device is switched off.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>Searching for a network...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>The plug-in is missing: there is no file %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>The plug-in file %1 cannot be loaded as a library: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>The library %1 is no plug-in for this program's Qt: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>The plug-in %1 was loaded but gives no object.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>The plug-in %1 does not have the interface %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>The plug-in %1 refused to start.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>The plug-in %1 does not offer the USSD service (number %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>There is no option %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>Something must follow %1.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>Nothing is known to do with "%1".</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send and --tour do not go together.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour brings devices of its own, so none of --demo, --scenario and --modem goes with it.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>A code or answer must not be empty or hold control characters.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>There is no such language. There are: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>'ussd-dashboard --help' tells what can be asked for.</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>There is no display to open a window on. --send CODE and --tour FOLDER need none.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>The USSD window does not take %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>The plug-in ended the wait for a reply neither with a reply nor with a failure.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>The network asks for no answer any more. Not sent: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>%1 cannot be written.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>The plug-in does not show its window as it should (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>The history was not cleared (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 pictures and transcript.txt are in %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Usage: ussd-dashboard [OPTION...]
Shows the windows of the USSD plug-in and the state of the device.

  --send CODE [ANSWER...]  send the code without a window, print the reply, and
                           answer the network's menus with the answers in turn
  --tour FOLDER            walk through all windows without a display; leaves
                           pictures and transcript.txt in the folder
  --export FILE            write the kept replies about balances to a
                           .csv or .json file
  --demo                   use an invented network; nothing is sent
  --scenario FILE          use the invented network of this file
  --modem ID               use the modem with this equipment identifier (IMEI)
  --enable                 with --send: switch the modem on if it is off
  --end-foreign-session    with --send: end the codes of another program first
  --language CODE          language, for example en or ar
  --verbose                write what the program and the plug-in log
  --log FILE               write the same to a file that only you can read
  --help                   this text
  --version                the program's version

--send ends with 0 when every command was answered, 1 refused, 2 wrong usage,
3 no modem or not ready, 4 no answer in time, 5 in use by another program,
6 not permitted, 7 menu left open, 8 output not written, 128 and the number of
the signal when it was interrupted. Otherwise the program ends with 0 when all
went well, 1 when something failed, and 2 when the arguments or the scenario
file are wrong.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Prepaid</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Postpaid</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>Prepaid or postpaid? Asking…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>No USSD window goes with this SIM card.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>%1 cannot be written. The copy stays where it is: %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>There are no fonts on this computer, so texts cannot be seen.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>%1 cannot be written. What you choose is forgotten when the program ends.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>%1 cannot be written, so there is no copy of your own USSD codes.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>The texts of the chosen language are damaged: %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>The texts of the chosen language are missing: %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Automatic: the first modem</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>No modem found</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (in use)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Modem %1 (not there)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Modem %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Source: modem (none)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Source: looking for a modem…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>Enter the PIN of the SIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>4 to 8 digits. It goes to the SIM and is not kept.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>&amp;Unlock</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>%1 tries are left.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>One try is left. After another wrong PIN the SIM needs its PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>The SIM card checks the PIN…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>That was not the PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>The PIN could not be sent to the SIM. Try again.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>The SIM did not answer in time. Try again.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>This log holds the codes that are sent and the replies, and with them PINs, numbers and balances. Keep it to yourself.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>The log file %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>it is a symbolic link.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>it is not a file of your own, or has a second name.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem goes with neither --demo nor --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Operator’s codes…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>This SIM card is of %1. The codes for its balance and top-up can be taken from the list of operators.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>The codes for balance and top-up can be taken from the list of operators. Several of them fit this SIM card: choose yours.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>&amp;Take them</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>C&amp;hoose…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Operator’s codes</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>Whose codes shall be used with this SIM card (network %1)?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>The codes of the demonstration</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>&amp;Use</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>The codes of %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>These files were changed by hand and are in use:
%1

Shall they be set aside for the codes of %2? They are kept.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>The network of the SIM is not known yet. As soon as a modem with a SIM is ready, you can choose your operator here.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>The demonstration has codes of its own. To choose your operator, use your modem.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>Your code</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Show in the history</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>No free button for %1: see the history, or Favourites on Home.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Your codes are saved</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>Type into an empty row to add a code.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Type a code</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Type a name</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>There is no list of operators. Install the package mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>The configuration is chosen by USSD_PLUGIN_LIBRARY_PATH.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Demonstration – USSD dashboard</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Demonstration: the network is invented; nothing is sent.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Demonstration: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>weak signal</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>postpaid</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>No modem</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Looking for a modem…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>The network does not accept this SIM.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>The SIM card or the modem is blocked.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>Waiting until another program has finished with the modem…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>The network ended the session.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>The network or the modem does not support this code.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>The network waited too long and ended the session.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>The network did not reply in time.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>The network sent an empty reply.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>The network replied, but the modem could not decode the reply.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>The modem cannot send a character of this command.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>There is no modem that can send codes.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>The modem is switched off.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>The modem is not registered with a network.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>The modem was removed, or ModemManager ended.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>You are not permitted to send codes with this modem.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Another program is using codes on this modem.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>The modem uses only 4G, but codes need 2G or 3G here.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>The command was cancelled.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>The network or the modem refused the command.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>It was not carried out.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>The network may have carried out the command all the same.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Last message of the network: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>The network opened no menu. Nothing more was sent.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>The menu no longer offers “%1” on key %2. Nothing more was sent.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Keep</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Name of the walk:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Keep this walk…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>The file with your favourites was damaged. It is kept as %1, and a new one has been started.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>The favourites cannot be stored in %1. They are kept until the program ends.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Rename…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Another favourite has this name.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: step %2 of %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1 stopped at step %2 of %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>The next step could not be sent.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>The network asks something of its own accord. Nothing more was sent.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>You have typed something yourself. Nothing more was sent.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>Key %2 is now “%3”, not “%1”. Nothing more was sent.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Top up</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Codes to send</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>The history of codes cannot be kept: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>yesterday %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>today %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Type the code</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Number or PIN for %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>No code was sent yet</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Delete history</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Numbers and PINs are not kept</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>%1 more choices</translation>
    </message>
    <message>
        <source>CHOICE_MORE</source>
        <translation>+%1</translation>
    </message>
    <message>
        <source>CHOICE_NAME</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>STRIP_NAME</source>
        <translation>State of the codes</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Back to 4G only</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>Allow 2G and 3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Text files</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Close the search</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>More</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Save the transcript…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Find in the transcript</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Copy the reply</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Dismiss</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>What happened</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Send again</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>End</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>End menu</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Codes in a window</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>History</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>The reply to %1 cannot be read</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>The network answered without a text.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>No text in the reply to %1</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>You stopped %1. It was not sent.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>You stopped %1. The network may have carried it out all the same.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>The modem is not ready.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1 was not sent</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>The modem went away. Whether the network carried it out is not known.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1 was broken off</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>The network does not know this code, or it is not for your contract.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1 was refused</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>The network did not answer within 30 seconds. It may have carried the code out all the same.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>No reply to %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>The network was told.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Menu ended</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Type your answer below.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Choose, or type below.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Choose one, or type the answer below.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Menu open</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>The network waits for your answer</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Another program is using the modem.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Another window is asking.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>Waiting for its turn</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>Most replies come within 10 seconds. Cancel frees the modem at once.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 of %2 seconds</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>Waiting for the reply to %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Send a code, or choose one below.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 goes with --send only.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable switches it on.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session ends the session of the other program, which may be buying something.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>The network waited for an answer to this menu. The session was ended.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>Standard output cannot be written.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>None: only the field for codes</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>No codes are set up for this SIM card. Type a code into the field, or choose the operator.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Send a code, or choose one below.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>We do not know your operator’s codes</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Choose your operator, and its balance and top-up codes appear here. You can type codes without it.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>Waiting for its turn</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Another program is using the modem. Your code is sent when it has finished.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Another program is using codes</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Codes can be sent when it has finished. It may be buying something.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>Looking for a modem</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>This takes a moment.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>No modem</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Connect a modem, or switch it on. This page comes to life by itself.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 is not connected</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>The chosen modem is not connected</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Connect it, or choose another modem.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>The modem was removed</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Connect it again. This page comes to life by itself.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>The modem does not work</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>ModemManager has given it up. Unplug it and connect it again. The log of ModemManager gives the reason.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>The message bus does not run</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>The D-Bus of the system cannot be reached, so no modem is found.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>The modem service does not run</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>ModemManager is not installed, or it was stopped.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>The modem service does not answer</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>ModemManager runs but does not answer. Wait a moment, or start it again.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>Not permitted</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>This computer does not let you use its modem. Its administrator can allow it for your account.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>No SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Put a SIM into the modem. Some modems must be switched off for that.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>The SIM is locked</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Enter its PIN to use it.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>The SIM needs its PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Too many wrong PINs. Unlock it in a phone with the PUK of your operator, then put it back.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>The modem is switched off</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Switch it on to use it. It needs a moment to find its network.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>Looking for a network</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>This can take a minute. Codes can be sent as soon as the network is found.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>The network does not accept this SIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Ask your operator whether it is active, or use another SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>This modem cannot send codes</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>It has no USSD. Choose another modem, or use a phone for codes.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>This state belongs to the demonstration.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>An administrator creates the file in the first line with this rule, and adds your account to the group netdev. Then log in again.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Type this in a terminal, with the password of an administrator. If it says that there is no such service, install the package modemmanager first.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Type this in a terminal, with the password of an administrator.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>The PUK is a number of 8 digits that unlocks a SIM after too many wrong PINs. It stands on the card that the SIM came in, and your operator can tell it. After ten wrong PUKs the SIM is useless.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>%1 tries left</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>1 try left</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>Enter the PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Switch on</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Look again</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Choose a modem</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>How to allow it</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>How to start it</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>What is a PUK?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Try the demonstration</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Use my modem</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>End it</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Choose operator</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Type a code</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>End the session of the other program? It may be buying something.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>End the session</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>%1 cannot be written. New messages are lost when the program ends.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>The file with the messages was damaged. It is now called %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>%1 cannot be deleted.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Mark all read</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Search messages</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>All</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>Unread %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>Unread</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>Waiting %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · from the network</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Waits for your answer</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>Unread</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>Or type an answer</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Type an answer</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Answering may cost money. Ending it tells the network that you want nothing.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>End without an answer</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Copy the message</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Delete the message</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>No messages yet</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Messages that the network sends by itself appear here.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>No message found</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Choose a message to read it.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Messages of the network</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Text of the message</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Message from %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>It waits for your answer.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>You have a new message.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>A menu is still open in the network, but its text is not known any more. Answer it, or end it.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>Your balance is %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Packs and switches of %1. Each opens in the services window, which shows what it does before anything is sent.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Packs and switches of your operator. Each opens in the services window, which shows what it does before anything is sent.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>By code</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>By text message</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>to %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>asks for a number</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>Your operator has no services here.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>The network waits for your answer</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Choose one, or type the answer below.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Type your answer below.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>Show the PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>The file with your balances was damaged. It is kept as %1, and a new one has been started.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>Balances cannot be stored in %1. They are kept until the program ends.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>A later version of the program has written %1. Balances are kept until the program ends.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>USSD Dashboard</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 unread</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Operator: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Demonstration</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Strong signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Good signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Weak signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>No signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_PERCENT</source>
        <translation>Signal %1 %</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NAME</source>
        <translation>%1, %2 %</translation>
    </message>
    <message>
        <source>HEADER_SIM</source>
        <translation>SIM %1</translation>
    </message>
    <message>
        <source>HEADER_SIM_ENDING</source>
        <translation>SIM ending %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>Show the SIM’s number</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>Hide the SIM’s number</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, %2 unread</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Modem ready</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>No modem in use</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>Looking for one</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Everything here is invented. No modem is used and nothing costs money.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>No operator’s codes yet</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Something is not right</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Your own codes can be restored</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>Their file has gone. There is a copy of %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>Their file is incomplete. There is a copy of %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Delete the copy</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Codes in a window</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>&amp;Account window</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>&amp;Account window, prepaid</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Account &amp;window, postpaid</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>&amp;Edit codes</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>E&amp;xport balances…</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>&amp;Modem</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>A&amp;bout</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>USSD dashboard %1. It sends USSD codes through a modem and shows the replies.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Chosen modem</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Operator’s codes</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>None: you type codes yourself</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Find out the kind of contract</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Sends a code once for each SIM. It may cost money.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>System</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Text size</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>After a restart</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Reduce motion</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Follows the system</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Messages from the network</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>When the window is not in front</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Show their text</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>Others may read it on the screen</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Low balance</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Below %1, after an answer told the balance</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>After an answer told the balance</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>Hide the SIM number</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Only the last four digits are shown</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Keep history and balances</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>On this computer only, for 12 months</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Delete all…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Balances, messages, codes sent and favourites</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>Delete all balances, messages, codes sent and favourites? They cannot be brought back.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Three steps, and you see your balance, send codes and buy packs from here.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Modem found</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM ready</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM ending %1, registered with a network.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Then the SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>Whose codes shall be used?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>You choose this when the SIM is ready.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>Your SIM fits one operator in the list. You can change this at any time in Settings.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>Your SIM fits %1 operators in the list. You can change this at any time in Settings.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>No operator in the list fits your SIM. You can type codes yourself.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>Codes: %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>balance</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>top-up</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>own number</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Without operator’s codes</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>You type codes yourself, nothing is preset</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>Use %1</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>Use codes</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>Go on without</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Try the demonstration instead</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Nothing is sent to the network until you press a button. Codes may cost money.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>The dashboard already runs. Its window is in front now and keeps its device.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>The dashboard already runs. Its window is in front now and keeps its language and its log.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>asks for a text</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>End the menu first.</translation>
    </message>
    <message>
        <source>HOME_LONG_DATE</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>HOME_SHORT_DATE</source>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>HOME_TODAY</source>
        <translation>today at %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>yesterday at %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>last day</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>1 day left</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>%1 days left</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Valid until %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Ended on %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>has ended</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>Balance (invented)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>Asked %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>%1 days old</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Low balance</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>May have changed since</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Not asked yet</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Top up</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Ask again</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Ask now</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>Asking… %1 s</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>End the menu first.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Show the reply</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Reply to %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Balance over time</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>Last %1 days</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Ask again on another day to see a line here.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Spent %1, topped up %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>From %1 to %2 in %3 days, lowest %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>My number</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Copy the number</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Valid until</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Data left</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>of %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>Favourites</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>Choose up to %1 codes and put them in order.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>Number for %1</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>Answer</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Last known: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, asked %2. It may have changed since.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Asked %1. It may have changed since.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Export balances</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: the name has to end with .csv or .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>%1 cannot be read.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>The modem did not accept the other networks.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Ask for the balance once a day</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Sends the balance code by itself, but not while roaming. Your operator may charge for it.</translation>
    </message>
</context>
</TS>
