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
        <translation>Es gibt keine Antwort.</translation>
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
        <translation>Doppelklick ändert; farbige Zeilen sind fest. Die letzten zwei Knöpfe brauchen eine Nummer (%s).</translation>
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
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>Diese Datei ist beschädigt und wurde nur zum Teil gelesen; deshalb wird sie nicht überschrieben. Bitte reparieren oder löschen:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>Die Änderungen werden nicht gespeichert, weil diese Datei nicht geschrieben werden kann:
%s</translation>
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
        <translation>Gibt einen Teil Ihres Guthabens weiter.</translation>
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
        <translation>Rufnummer</translation>
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
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>USSD-Dashboard</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>SIM-&amp;Nummer zeigen</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Vorführung (erfundenes Netz)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>Szenariodatei ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Szenariodatei öffnen</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Szenariodateien</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>Die Szenariodatei ist nicht verwendbar</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Vorführung: erfundenes Netz (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Quelle: Modem (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>Kein Netz</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Signal: %1 %</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Signal: unbekannt</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>SIM-Karte: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>SIM-Karte ohne lesbare Nummer</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>Es ist kein Gerät da.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>Im Gerät ist keine SIM-Karte.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>Die SIM-Karte wartet auf ihre PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>Das Gerät ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>Netz wird gesucht...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>Das Plug-in fehlt: es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>Die Plug-in-Datei %1 lässt sich nicht als Bibliothek laden: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>Die Bibliothek %1 ist kein Plug-in für das Qt dieses Programms: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>Das Plug-in %1 wurde geladen, liefert aber kein Objekt.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>Dem Plug-in %1 fehlt die Schnittstelle %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>Das Plug-in %1 hat den Start verweigert.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>Das Plug-in %1 bietet den USSD-Dienst (Nummer %2) nicht an.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>Es gibt keine Option %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>Auf %1 muss etwas folgen.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>Mit „%1“ ist nichts anzufangen.</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send und --tour gehen nicht zusammen.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour bringt eigene Geräte mit; --demo, --scenario und --modem passen nicht dazu.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>Ein Code oder eine Antwort darf nicht leer sein und keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>Diese Sprache gibt es nicht. Es gibt: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>'ussd-dashboard --help' sagt, was möglich ist.</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>Es gibt keine Anzeige, auf der sich ein Fenster öffnen ließe. --send CODE und --tour ORDNER brauchen keine.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>Das USSD-Fenster nimmt %1 nicht an.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>Das Plug-in hat das Warten weder mit einer Antwort noch mit einem Fehler beendet.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>Das Netz fragt nach keiner Antwort mehr. Nicht gesendet: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>Das Plug-in zeigt sein Fenster nicht, wie es soll (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>Der Verlauf wurde nicht gelöscht (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 Bilder und transcript.txt liegen in %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Aufruf: ussd-dashboard [OPTION...]
Zeigt die Fenster des USSD-Plug-ins und den Zustand des Geräts.

  --send CODE [ANTWORT...] den Code ohne Fenster senden, die Antwort ausgeben
                           und die Menüs des Netzes der Reihe nach beantworten
  --tour ORDNER            ohne Anzeige durch alle Fenster gehen; lässt Bilder
                           und transcript.txt im Ordner
  --export DATEI           die gespeicherten Antworten zum Guthaben in
                           eine .csv- oder .json-Datei schreiben
  --demo                   ein erfundenes Netz verwenden; nichts wird gesendet
  --scenario DATEI         das erfundene Netz dieser Datei verwenden
  --modem KENNUNG          das Modem mit dieser Gerätekennung (IMEI) verwenden
  --enable                 bei --send: das Modem einschalten, wenn es aus ist
  --end-foreign-session    bei --send: zuerst die Codes eines anderen Programms
                           beenden
  --language CODE          Sprache, zum Beispiel en oder ar
  --verbose                ausgeben, was Programm und Plug-in protokollieren
  --log DATEI              dasselbe in eine Datei, die nur Sie lesen können
  --help                   dieser Text
  --version                die Version des Programms

--send endet mit 0, wenn jeder Befehl beantwortet wurde, 1 abgelehnt, 2 falscher
Aufruf, 3 kein Modem oder nicht bereit, 4 keine Antwort in der Zeit, 5 von einem
anderen Programm belegt, 6 nicht erlaubt, 7 Menü offen geblieben, 8 Ausgabe nicht
geschrieben, 128 und die Nummer des Signals bei einem Abbruch. Sonst ist das Ende
0, wenn alles gelang, 1, wenn etwas misslang, und 2, wenn die Argumente oder die
Szenariodatei falsch sind.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Prepaid</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Vertrag</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>Prepaid oder Vertrag? Frage läuft…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>Zu dieser SIM-Karte gehört kein USSD-Fenster.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>%1 lässt sich nicht schreiben. Die Kopie bleibt, wo sie ist: %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>Auf diesem Computer gibt es keine Schriften; Texte sind daher nicht zu sehen.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>%1 kann nicht geschrieben werden. Was Sie wählen, ist nach dem Ende des Programms vergessen.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>%1 kann nicht geschrieben werden; daher gibt es keine Kopie Ihrer eigenen USSD-Codes.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>Die Texte der gewählten Sprache sind beschädigt: %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>Die Texte der gewählten Sprache fehlen: %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Automatisch: das erste Modem</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>Kein Modem gefunden</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (in Gebrauch)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Modem %1 (nicht vorhanden)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Modem %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Quelle: Modem (keines)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Quelle: ein Modem wird gesucht …</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>PIN der SIM eingeben</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>4 bis 8 Ziffern. Sie geht an die SIM und wird nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>&amp;Entsperren</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>Noch %1 Versuche.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>Noch ein Versuch. Nach einer weiteren falschen PIN braucht die SIM ihre PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>Die SIM-Karte prüft die PIN …</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>Das war nicht die PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>Die PIN konnte nicht an die SIM gesendet werden. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>Die SIM hat nicht rechtzeitig geantwortet. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>Dieses Protokoll enthält gesendete Codes und Antworten, und damit PINs, Nummern und Guthaben. Nicht weitergeben.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>Die Protokolldatei %1 ist nicht benutzbar: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>Sie ist ein symbolischer Link.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>Sie ist keine eigene Datei oder hat einen zweiten Namen.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>Zu --modem passt weder --demo noch --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Codes des Betreibers …</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>Diese SIM-Karte ist von %1. Die Codes für Guthaben und Aufladung können aus der Liste der Betreiber übernommen werden.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>Die Codes für Guthaben und Aufladung können aus der Liste der Betreiber übernommen werden. Mehrere passen zu dieser SIM-Karte: bitte wählen.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Codes des Betreibers</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>Wessen Codes sollen mit dieser SIM-Karte (Netz %1) verwendet werden?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>Die Codes der Vorführung</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>&amp;Verwenden</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>Die Codes von %1 sind nicht benutzbar: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>Diese Dateien wurden von Hand geändert und sind in Gebrauch:
%1

Sollen sie für die Codes von %2 beiseitegelegt werden? Sie bleiben erhalten.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>Das Netz der SIM ist noch nicht bekannt. Sobald ein Modem mit einer SIM bereit ist, können Sie hier Ihren Betreiber wählen.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>Die Vorführung hat ihre eigenen Codes. Um Ihren Betreiber zu wählen, verwenden Sie Ihr Modem.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>Ihr Code</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Im Verlauf zeigen</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>Kein Knopf frei für %1: siehe Verlauf oder Favoriten auf „Start“.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Ihre Codes sind gespeichert</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>In einer leeren Zeile lässt sich ein Code hinzufügen.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Code eingeben</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Name eingeben</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>Es gibt keine Liste der Betreiber. Das Paket mobile-broadband-provider-info installieren.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>Die Konfiguration ist durch USSD_PLUGIN_LIBRARY_PATH bestimmt.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Vorführung – USSD-Dashboard</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Vorführung: Das Netz ist erfunden; es wird nichts gesendet.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Vorführung: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>schwaches Signal</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>Vertrag</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>Kein Modem</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Ein Modem wird gesucht …</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>Das Netz nimmt diese SIM nicht an.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>Die SIM-Karte oder das Modem ist gesperrt.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>Es wird gewartet, bis ein anderes Programm mit dem Modem fertig ist …</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>Das Netz hat die Sitzung beendet.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>Das Netz oder das Modem unterstützt diesen Code nicht.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>Das Netz hat zu lange gewartet und die Sitzung beendet.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>Das Netz hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>Das Netz hat eine leere Antwort gesendet.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>Das Netz hat geantwortet, aber das Modem konnte die Antwort nicht entschlüsseln.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>Das Modem kann ein Zeichen dieses Befehls nicht senden.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>Es ist kein Modem da, das Codes senden kann.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>Das Modem ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>Das Modem ist in keinem Netz angemeldet.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>Das Modem wurde entfernt, oder ModemManager wurde beendet.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>Sie dürfen mit diesem Modem keine Codes senden.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Ein anderes Programm verwendet gerade Codes auf diesem Modem.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>Das Modem nutzt nur 4G, Codes brauchen hier 2G oder 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>Der Befehl wurde abgebrochen.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>Das Netz oder das Modem hat den Befehl abgelehnt.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>Der Befehl wurde nicht ausgeführt.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>Das Netz hat den Befehl möglicherweise trotzdem ausgeführt.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Letzte Nachricht des Netzes: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>Das Netz hat kein Menü geöffnet. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>Das Menü bietet „%1“ nicht mehr mit Taste %2 an. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Merken</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Name des Weges:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Diesen Weg merken…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>Die Datei mit Ihren Favoriten war beschädigt. Sie bleibt als %1 erhalten, und eine neue wurde angelegt.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>Die Favoriten können nicht in %1 gespeichert werden. Sie bleiben bis zum Ende des Programms erhalten.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Umbenennen…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Ein anderer Favorit heißt schon so.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: Schritt %2 von %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1: Halt bei Schritt %2 von %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>Der nächste Schritt konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>Das Netz stellt von sich aus eine Frage. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>Sie haben selbst etwas eingegeben. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>Taste %2 ist jetzt „%3“, nicht „%1“. Es wurde nichts weiter gesendet.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Aufladen</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Codes zum Senden</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>Der Verlauf der Codes kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>gestern %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>heute %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Code eintragen</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Nummer oder PIN für %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>Noch kein Code gesendet</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Nummern und PINs werden nicht gespeichert</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>%1 weitere Möglichkeiten</translation>
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
        <translation>Zustand der Codes</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Zurück zu nur 4G</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>2G und 3G erlauben</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Textdateien</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Verlauf speichern…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Im Verlauf suchen</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Antwort kopieren</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>Was ist passiert</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>Menü beenden</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Codes in einem Fenster</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>Die Antwort auf %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>Das Netz hat ohne Text geantwortet.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>Kein Text in der Antwort auf %1</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>Sie haben %1 abgebrochen. Er wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>Sie haben %1 abgebrochen. Das Netz kann ihn trotzdem ausgeführt haben.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>Das Modem ist nicht bereit.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1 wurde nicht gesendet</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>Das Modem ist weg. Ob das Netz ihn ausgeführt hat, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1 wurde unterbrochen</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>Das Netz kennt diesen Code nicht, oder er gilt nicht für Ihren Vertrag.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1 wurde abgelehnt</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>Das Netz hat 30 Sekunden lang nicht geantwortet. Es kann den Code trotzdem ausgeführt haben.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>Keine Antwort auf %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>Dem Netz wurde es mitgeteilt.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Menü beendet</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Tippen Sie Ihre Antwort unten.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Wählen oder unten tippen.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Wählen Sie, oder tippen Sie die Antwort unten.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Menü offen</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>Das Netz wartet auf Ihre Antwort</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Ein anderes Programm benutzt das Modem.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Ein anderes Fenster fragt gerade.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>Wartet, bis es an der Reihe ist</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>Die meisten Antworten kommen in 10 Sekunden. Abbrechen gibt das Modem sofort frei.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 von %2 Sekunden</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>Warten auf die Antwort auf %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Senden Sie einen Code oder wählen Sie unten.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 passt nur zu --send.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable schaltet es ein.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session beendet die Sitzung des anderen Programms, das gerade etwas kaufen könnte.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>Das Netz hat auf eine Antwort auf dieses Menü gewartet. Die Sitzung wurde beendet.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>Die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>Keine: nur das Feld für Codes</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>Für diese SIM-Karte sind keine Codes eingerichtet. Einen Code in das Feld eingeben oder den Betreiber wählen.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Code senden oder unten einen wählen.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>Die Codes Ihres Anbieters sind nicht bekannt</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Wählen Sie Ihren Anbieter, dann erscheinen hier seine Codes für Guthaben und Aufladung. Codes eintippen können Sie auch so.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>Wartet, bis es an der Reihe ist</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Ein anderes Programm benutzt das Modem. Ihr Code wird gesendet, sobald es fertig ist.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Ein anderes Programm verwendet Codes</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Codes können gesendet werden, sobald es fertig ist. Vielleicht kauft es gerade etwas.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>Modem wird gesucht</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>Das dauert einen Moment.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>Kein Modem</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Schließen Sie ein Modem an oder schalten Sie es ein. Diese Seite füllt sich dann von selbst.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 ist nicht angeschlossen</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>Das gewählte Modem ist nicht angeschlossen</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Schließen Sie es an oder wählen Sie ein anderes Modem.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>Das Modem wurde entfernt</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Schließen Sie es wieder an. Diese Seite füllt sich dann von selbst.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>Das Modem arbeitet nicht</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>ModemManager hat es aufgegeben. Ziehen Sie es ab und schließen Sie es wieder an. Den Grund nennt das Protokoll von ModemManager.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>Der Nachrichtenbus läuft nicht</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>Der D-Bus des Systems ist nicht erreichbar. Deshalb wird kein Modem gefunden.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>Der Modemdienst läuft nicht</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>ModemManager ist nicht installiert oder wurde angehalten.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>Der Modemdienst antwortet nicht</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>ModemManager läuft, antwortet aber nicht. Warten Sie einen Moment oder starten Sie den Dienst neu.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>Nicht erlaubt</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>Dieser Computer lässt Sie sein Modem nicht verwenden. Seine Verwaltung kann es Ihrem Konto erlauben.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>Keine SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Legen Sie eine SIM in das Modem ein. Manche Modems müssen dafür ausgeschaltet sein.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>Die SIM ist gesperrt</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Geben Sie ihre PIN ein, um sie zu verwenden.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>Die SIM braucht ihre PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Zu viele falsche PINs. Entsperren Sie sie in einem Telefon mit der PUK Ihres Anbieters und legen Sie sie dann wieder ein.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>Das Modem ist ausgeschaltet</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Schalten Sie es ein, um es zu verwenden. Es braucht einen Moment, um sein Netz zu finden.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>Netz wird gesucht</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>Das kann eine Minute dauern. Codes können gesendet werden, sobald das Netz gefunden ist.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>Das Netz nimmt diese SIM nicht an</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Fragen Sie Ihren Anbieter, ob sie freigeschaltet ist, oder verwenden Sie eine andere SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>Dieses Modem kann keine Codes senden</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>Es kann kein USSD. Wählen Sie ein anderes Modem oder nehmen Sie für Codes ein Telefon.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>Dieser Zustand gehört zur Demonstration.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>Die Verwaltung legt die Datei der ersten Zeile mit dieser Regel an und nimmt Ihr Konto in die Gruppe netdev auf. Melden Sie sich danach neu an.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Geben Sie dies in einem Terminal mit dem Passwort der Verwaltung ein. Gibt es den Dienst nicht, installieren Sie zuerst das Paket modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Geben Sie dies in einem Terminal mit dem Passwort der Verwaltung ein.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>Die PUK ist eine Nummer mit 8 Ziffern, die eine SIM nach zu vielen falschen PINs entsperrt. Sie steht auf der Karte, aus der die SIM stammt, und Ihr Anbieter kann sie nennen. Nach zehn falschen PUKs ist die SIM unbrauchbar.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>Noch %1 Versuche</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>Noch 1 Versuch</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>PIN eingeben</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Noch einmal suchen</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Modem wählen</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>So wird es erlaubt</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>So wird er gestartet</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>Was ist eine PUK?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Vorführung ansehen</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Mein Modem verwenden</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Anbieter wählen</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Code eintippen</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>Sitzung des anderen Programms beenden? Vielleicht kauft es gerade etwas.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>Sitzung beenden</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>%1 kann nicht geschrieben werden. Neue Nachrichten gehen verloren, wenn das Programm endet.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>Die Datei mit den Nachrichten war beschädigt. Sie heißt jetzt %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>%1 kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Alle als gelesen markieren</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Nachrichten durchsuchen</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>Ungelesen %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>Ungelesen</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>Wartend %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>Wartend</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · vom Netz</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Wartet auf Ihre Antwort</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>Ungelesen</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>Oder Antwort eintippen</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Antwort eintippen</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Antworten kann Geld kosten. Mit dem Beenden erfährt das Netz, dass Sie nichts möchten.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>Ohne Antwort beenden</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Nachricht kopieren</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Nachricht löschen</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>Noch keine Nachrichten</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Nachrichten, die das Netz von sich aus sendet, erscheinen hier.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>Keine Nachricht gefunden</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Wählen Sie eine Nachricht, um sie zu lesen.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Nachrichten des Netzes</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Text der Nachricht</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Nachricht von %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>Sie wartet auf Ihre Antwort.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>Sie haben eine neue Nachricht.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>Im Netz ist noch ein Menü offen, sein Text ist aber nicht mehr bekannt. Antworten Sie oder beenden Sie es.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>Ihr Guthaben beträgt %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Pakete und Schalter von %1. Jeder Dienst öffnet sich im Fenster der Dienste. Es zeigt, was er tut, bevor etwas gesendet wird.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Pakete und Schalter Ihres Anbieters. Jeder Dienst öffnet sich im Fenster der Dienste. Es zeigt, was er tut, bevor etwas gesendet wird.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>Per Code</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>Per SMS</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>an %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>fragt nach einer Nummer</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>Ihr Anbieter hat hier keine Dienste.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>Das Netz wartet auf Ihre Antwort</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Wählen Sie oder tippen Sie die Antwort unten ein.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Tippen Sie Ihre Antwort unten ein.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>PIN anzeigen</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>Die Datei mit Ihren Guthaben war beschädigt. Sie bleibt als %1 erhalten, und eine neue wurde angelegt.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>Guthaben können nicht in %1 gespeichert werden. Sie bleiben bis zum Ende des Programms erhalten.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>Eine neuere Version des Programms hat %1 geschrieben. Guthaben bleiben bis zum Ende des Programms erhalten.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>USSD-Dashboard</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 ungelesen</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Anbieter: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Vorführung</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Starkes Signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Gutes Signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Schwaches Signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>Kein Signal</translation>
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
        <translation>SIM mit Ende %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>SIM-Nummer zeigen</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>SIM-Nummer verbergen</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, %2 ungelesen</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Modem bereit</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>Kein Modem in Gebrauch</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>Wird gesucht</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Alles hier ist erfunden. Kein Modem wird benutzt, und nichts kostet Geld.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>Noch keine Codes des Anbieters</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Etwas stimmt nicht</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Ihre eigenen Codes können wiederhergestellt werden</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>Ihre Datei ist weg. Es gibt eine Kopie vom %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>Ihre Datei ist unvollständig. Es gibt eine Kopie vom %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Kopie löschen</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Codes in einem Fenster</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>&amp;Kontofenster</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>&amp;Kontofenster, Prepaid</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Kontofenster, &amp;Vertrag</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>Codes &amp;bearbeiten</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>Guthaben e&amp;xportieren …</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>&amp;Modem</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>USSD-Dashboard %1. Es sendet USSD-Codes über ein Modem und zeigt die Antworten.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Privatsphäre</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Gewähltes Modem</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Codes des Anbieters</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>Keine: Sie tippen Codes selbst</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Vertragsart feststellen</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Sendet einmal je SIM einen Code. Das kann Geld kosten.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>System</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>Nach einem Neustart</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Weniger Bewegung</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Folgt dem System</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Nachrichten aus dem Netz</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>Wenn das Fenster nicht vorn ist</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Ihren Text zeigen</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>Andere können ihn auf dem Bildschirm lesen</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Niedriges Guthaben</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Unter %1, nachdem eine Antwort das Guthaben nannte</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>Nachdem eine Antwort das Guthaben nannte</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>SIM-Nummer verbergen</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Nur die letzten vier Ziffern werden gezeigt</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Verlauf und Guthaben behalten</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>Nur auf diesem Computer, 12 Monate lang</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Alles löschen…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Guthaben, Nachrichten, gesendete Codes und Favoriten</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>Alle Guthaben, Nachrichten, gesendeten Codes und Favoriten löschen? Sie lassen sich nicht zurückholen.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Drei Schritte, dann sehen Sie hier Ihr Guthaben, senden Codes und kaufen Pakete.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Modem gefunden</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM bereit</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM mit Ende %1, in einem Netz angemeldet.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Dann die SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>Wessen Codes sollen benutzt werden?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>Das wählen Sie, sobald die SIM bereit ist.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>Ihre SIM passt zu einem Anbieter der Liste. Sie können das jederzeit in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>Ihre SIM passt zu %1 Anbietern der Liste. Sie können das jederzeit in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>Kein Anbieter der Liste passt zu Ihrer SIM. Sie können Codes selbst tippen.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>Codes: %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>Aufladen</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>eigene Nummer</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Ohne Codes des Anbieters</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>Sie tippen Codes selbst, nichts ist vorgegeben</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>%1 benutzen</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>Codes benutzen</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>Ohne weiter</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Stattdessen die Vorführung ansehen</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Nichts wird an das Netz gesendet, bevor Sie einen Knopf drücken. Codes können Geld kosten.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>Das Dashboard läuft schon. Sein Fenster ist jetzt vorn und behält sein Gerät.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>Das Dashboard läuft schon. Sein Fenster ist jetzt vorn und behält seine Sprache und sein Protokoll.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>fragt nach einem Text</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>Beenden Sie zuerst das Menü.</translation>
    </message>
    <message>
        <source>HOME_LONG_DATE</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>HOME_SHORT_DATE</source>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>HOME_TODAY</source>
        <translation>heute um %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>gestern um %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>letzter Tag</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>noch 1 Tag</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>noch %1 Tage</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Gültig bis %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Abgelaufen am %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>abgelaufen</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>Guthaben (erfunden)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>Abgefragt %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>%1 Tage alt</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Wenig Guthaben</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>Kann sich geändert haben</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Nicht abgefragt</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Aufladen</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Neu abfragen</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Jetzt abfragen</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>Abfrage… %1 s</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>Beenden Sie zuerst das Menü.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Antwort zeigen</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Antwort auf %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Guthaben im Verlauf</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>Letzte %1 Tage</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Fragen Sie an einem anderen Tag erneut ab, um hier eine Linie zu sehen.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Ausgegeben %1, aufgeladen %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>Von %1 auf %2 in %3 Tagen, niedrigster Stand %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>Meine Nummer</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Nummer kopieren</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Restdaten</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>Wählen Sie bis zu %1 Codes und ordnen Sie sie.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>Nummer für %1</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Zuletzt bekannt: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, abgefragt %2. Es kann sich seither geändert haben.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Abgefragt %1. Es kann sich seither geändert haben.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Guthaben exportieren</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: Der Name muss auf .csv oder .json enden.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>Das Modem hat die anderen Netze nicht angenommen.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Einmal am Tag das Guthaben abfragen</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Sendet den Guthabencode von selbst, aber nicht im Roaming. Ihr Betreiber kann dafür Geld verlangen.</translation>
    </message>
</context>
</TS>
