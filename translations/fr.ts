<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>Codes USSD</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Saisissez un code, par exemple *100#, ou la réponse à un menu.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>Code de recharge ou numéro&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>E&amp;ffacer</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>En attente de la réponse du réseau…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Envoyé&#xa0;: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Reçu&#xa0;: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>Effacer tout l’historique&#xa0;?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>Le réseau n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>La commande n’a pas été exécutée.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Veuillez patienter…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Échec de l’envoi.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Modifier les codes</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Double-cliquez sur une cellule pour la modifier&#xa0;; les lignes colorées sont fixes. Dans un code, %s représente le numéro saisi.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s&#xa0;: cette entrée figure déjà dans la liste. Saisissez-en une autre.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>Enregistrer les modifications&#xa0;?</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Compte prépayé</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Compte forfait</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>Mon solde</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>A&amp;ctualiser</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>La réponse peut prendre quelques secondes.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>Code de recharge</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Recharge en ligne</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>Mon numéro</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>Mon &amp;numéro</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Services de l’opérateur</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Internet, un jour</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Achète un forfait Internet d’un jour.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Internet, 7 jours</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Achète un forfait Internet d’une semaine.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Internet, un mois</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Achète un forfait Internet d’un mois.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Activer l’itinérance</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Autorise les réseaux étrangers.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Couper l’itinérance</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Bloque les réseaux étrangers.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Activer la messagerie</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Renvoie les appels manqués vers la messagerie.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Couper la messagerie</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>Ne renvoie plus les appels manqués vers la messagerie.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Rappelle-moi</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Demande gratuitement à quelqu’un de vous rappeler.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Transfert de crédit</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Transfère du crédit&#xa0;; le réseau demande ensuite le numéro.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Météo par SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Demande par SMS les prévisions pour une ville.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Tarif par SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Demande par SMS les prix de votre tarif.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Alertes conso</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Vous prévient par SMS quand le crédit ou les données s’épuisent.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Montant&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Acheter</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>&amp;Désactiver</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>&amp;Demander</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>Affiche votre solde</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>Mon numéro</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Affiche votre numéro</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Internet restant</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Affiche le volume Internet restant</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Validité</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Affiche la date de validité du crédit</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Ouvre le menu de l’opérateur</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Forfaits Internet</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Liste les forfaits Internet</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Indique si l’itinérance est active</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Messagerie</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Indique si la messagerie est active</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>Mon tarif</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Affiche votre tarif</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Recharge avec le code saisi</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Rappelle-moi</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Demande au numéro saisi de vous rappeler</translation>
    </message>
</context>
</TS>
