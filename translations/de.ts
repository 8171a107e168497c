<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>USSD-Codes</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Code wie *100# eingeben, oder die Antwort auf ein Menü.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>Auflade-PIN oder Rufnummer:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>Warten auf die Antwort des Netzes …</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Gesendet: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Empfangen: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Bitte bestätigen</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>Den ganzen Verlauf löschen?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>Das Netz hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>Der Befehl wurde nicht ausgeführt.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Bitte warten …</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Senden fehlgeschlagen.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Codes bearbeiten</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Doppelklick ändert eine Zelle; farbige Zeilen sind fest. In einem Code steht %s für die eingegebene Nummer.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>&amp;Abbrechen</translation>
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
        <translation>%s: Dieser Eintrag steht schon in der Liste. Bitte einen anderen eingeben.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Prepaid-Konto</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Vertragskonto</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>Mein Guthaben</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>Akt&amp;ualisieren</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>Die Antwort kann einige Sekunden dauern.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>Auflade-PIN</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>Auf&amp;laden</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Online aufladen</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>Meine Nummer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>&amp;Nummer abrufen</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>&amp;Schließen</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Netzbetreiberdienste</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Daten, ein Tag</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Kauft ein Datenpaket für einen Tag.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Daten, eine Woche</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Kauft ein Datenpaket für eine Woche.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Daten, ein Monat</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Kauft ein Datenpaket für einen Monat.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Roaming ein</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Erlaubt die Nutzung von Netzen im Ausland.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Roaming aus</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Sperrt die Nutzung von Netzen im Ausland.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Mailbox ein</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Leitet verpasste Anrufe zur Mailbox.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Mailbox aus</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>Leitet verpasste Anrufe nicht mehr zur Mailbox.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Ruf mich an</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Bittet jemanden kostenlos um Rückruf.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Guthabentransfer</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Gibt Guthaben weiter; das Netz fragt dann nach der Rufnummer.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Wetter per SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Bestellt die Vorhersage für einen Ort als SMS.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Tarif per SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Bestellt die Preise Ihres Tarifs als SMS.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Verbrauchsalarm</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Schickt eine SMS, wenn Guthaben oder Daten knapp werden.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Rufnummer:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Betrag:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Kaufen</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>&amp;Einschalten</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>&amp;Ausschalten</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>&amp;Bestellen</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>Zeigt Ihr Guthaben</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>Meine Nummer</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Zeigt Ihre eigene Rufnummer</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Restdaten</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Zeigt Ihr restliches Datenvolumen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Gültigkeit</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Zeigt, wie lange Ihr Guthaben gilt</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Öffnet das Menü des Betreibers</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Datenpakete</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Listet Datenpakete zum Kauf</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Zeigt, ob Roaming eingeschaltet ist</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Mailbox</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Zeigt, ob die Mailbox eingeschaltet ist</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>Mein Tarif</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Zeigt Ihren Tarif</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Aufladen</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Lädt mit der eingegebenen PIN auf</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Ruf mich an</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Bittet die eingegebene Nummer um Rückruf</translation>
    </message>
</context>
</TS>
