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
        <translation>The command was not carried out.</translation>
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
        <translation>Double-click a cell to change it; coloured rows are fixed. In a code, %s stands for the number entered.</translation>
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
        <translation>Passes credit on; the network then asks for the number.</translation>
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
</TS>
