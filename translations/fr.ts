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
        <translation>Il n’y a pas de réponse.</translation>
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
        <translation>Double-clic pour modifier&#xa0;; lignes colorées fixes. Les 2 derniers boutons exigent un numéro (%s).</translation>
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
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>Ce fichier est endommagé et n’a été lu qu’en partie&#xa0;; il n’est donc pas remplacé. Réparez-le ou supprimez-le&#xa0;:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>Les modifications ne sont pas enregistrées, car ce fichier ne peut pas être écrit&#xa0;:
%s</translation>
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
        <translation>Transfère une partie de votre crédit.</translation>
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
        <translation>Data restante</translation>
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
        <translation>Forfaits data</translation>
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
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>Tableau de bord USSD</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>F&amp;ichier</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>Afficher le &amp;numéro de la SIM</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Démonstration (réseau inventé)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>&amp;Ouvrir un fichier de scénario...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Ouvrir un fichier de scénario</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Fichiers de scénario</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>Le fichier de scénario est inutilisable</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Démonstration : réseau inventé (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Source : modem (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>Pas de réseau</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Signal : %1 %</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Signal : inconnu</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>Carte SIM : %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>Carte SIM sans numéro lisible</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>Aucun appareil n’est présent.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>Il n’y a pas de carte SIM dans l’appareil.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>La carte SIM attend son code PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>L’appareil est désactivé.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>Recherche d’un réseau...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>Le module est absent : il n’y a pas de fichier %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>Le fichier du module %1 ne peut pas être chargé comme bibliothèque : %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>La bibliothèque %1 n’est pas un module pour le Qt de ce programme : %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>Le module %1 a été chargé mais ne fournit aucun objet.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>Le module %1 n’a pas l’interface %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>Le module %1 a refusé de démarrer.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>Le module %1 n’offre pas le service USSD (numéro %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>Il n’y a pas d’option %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>%1 doit être suivi d’une valeur.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>« %1 » est inattendu.</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send et --tour sont incompatibles.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour apporte ses propres appareils ; --demo, --scenario et --modem ne peuvent l’accompagner.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>Un code ou une réponse ne doit être ni vide ni contenir de caractères de contrôle.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>Cette langue n’existe pas. Il y a : %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>« ussd-dashboard --help » dit ce qui est possible.</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>Il n’y a pas d’écran où ouvrir une fenêtre. --send CODE et --tour DOSSIER n’en ont pas besoin.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>La fenêtre USSD n’accepte pas %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>Le module n’a terminé l’attente ni par une réponse ni par un échec.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>Le réseau n’attend plus de réponse. Non envoyé : %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>Le module n’affiche pas sa fenêtre comme il le devrait (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>L’historique n’a pas été effacé (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 images et transcript.txt se trouvent dans %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Utilisation : ussd-dashboard [OPTION...]
Affiche les fenêtres du module USSD et l’état de l’appareil.

  --send CODE [RÉPONSE...] envoyer le code sans fenêtre, afficher la réponse et
                           répondre tour à tour aux menus du réseau
  --tour DOSSIER           parcourir toutes les fenêtres sans écran ; laisse des
                           images et transcript.txt dans le dossier
  --export FICHIER         écrire les réponses conservées sur les soldes
                           dans un fichier .csv ou .json
  --demo                   utiliser un réseau inventé ; rien n’est envoyé
  --scenario FICHIER       utiliser le réseau inventé de ce fichier
  --modem IDENTIFIANT      utiliser le modem de cet identifiant (IMEI)
  --enable                 avec --send : allumer le modem s’il est éteint
  --end-foreign-session    avec --send : mettre d’abord fin aux codes d’un autre
                           programme
  --language CODE          langue, par exemple en ou ar
  --verbose                écrire le journal du programme et du module
  --log FICHIER            la même chose dans un fichier lisible de vous seul
  --help                   ce texte
  --version                la version du programme

--send se termine par 0 quand chaque commande a eu sa réponse, 1 refusée, 2 appel
incorrect, 3 pas de modem ou pas prêt, 4 pas de réponse à temps, 5 utilisé par un
autre programme, 6 non autorisé, 7 menu resté ouvert, 8 sortie non écrite, 128
plus le numéro du signal en cas d’interruption. Sinon, le résultat est 0 quand
tout a réussi, 1 en cas d’échec et 2 quand les arguments ou le fichier de
scénario sont incorrects.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Prépayé</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Postpayé</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>Prépayé ou postpayé ? Demande en cours…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>Aucune fenêtre USSD ne va avec cette carte SIM.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>%1 ne peut pas être écrit. La copie reste où elle est : %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>Il n’y a aucune police sur cet ordinateur ; les textes ne sont donc pas visibles.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>Impossible d’écrire %1. Vos choix seront oubliés à la fin du programme.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>Impossible d’écrire %1 ; il n’y a donc pas de copie de vos propres codes USSD.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>Les textes de la langue choisie sont endommagés : %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>Les textes de la langue choisie manquent : %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Automatique : le premier modem</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>Aucun modem trouvé</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (utilisé)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Modem %1 (absent)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Modem %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Source : modem (aucun)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Source : recherche d’un modem…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>Saisir le PIN de la SIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>4 à 8 chiffres. Il va à la SIM et n’est pas conservé.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>&amp;Déverrouiller</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>Il reste %1 essais.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>Il reste un essai. Après un autre PIN erroné, la SIM demande son PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>La carte SIM vérifie le code PIN…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>Ce n’était pas le PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>Le PIN n’a pas pu être envoyé à la SIM. Réessayez.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>La SIM n’a pas répondu à temps. Réessayez.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>Ce journal contient les codes envoyés et les réponses, donc des codes PIN, des numéros et des soldes. Gardez-le pour vous.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>Le fichier journal %1 ne peut pas être utilisé : %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>c’est un lien symbolique.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>ce n’est pas un fichier à vous, ou il a un second nom.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem ne va ni avec --demo ni avec --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Codes de l’opérateur…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>Cette carte SIM est de %1. Les codes du solde et de la recharge peuvent être repris de la liste des opérateurs.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>Les codes du solde et de la recharge peuvent être repris de la liste des opérateurs. Plusieurs conviennent à cette carte SIM : choisissez le vôtre.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Codes de l’opérateur</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>De qui faut-il utiliser les codes avec cette carte SIM (réseau %1) ?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>Les codes de la démonstration</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>&amp;Utiliser</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>Les codes de %1 ne peuvent pas être utilisés : %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>Ces fichiers ont été modifiés à la main et sont utilisés :
%1

Faut-il les mettre de côté pour les codes de %2 ? Ils sont conservés.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>Le réseau de la SIM n’est pas encore connu. Dès qu’un modem avec une SIM est prêt, vous pouvez choisir ici votre opérateur.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>La démonstration a ses propres codes. Pour choisir votre opérateur, utilisez votre modem.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>Votre code</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Voir dans l’historique</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>Aucun bouton libre pour %1 : voir l’historique ou les favoris de l’accueil.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Vos codes sont enregistrés</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>Saisissez dans une ligne vide pour ajouter un code.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Saisissez un code</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Saisissez un nom</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>Il n’y a pas de liste des opérateurs. Installez le paquet mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>La configuration est choisie par USSD_PLUGIN_LIBRARY_PATH.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Démonstration – Tableau de bord USSD</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Démonstration : le réseau est inventé ; rien n’est envoyé.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Démonstration : %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>signal faible</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>forfait</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>Pas de modem</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Recherche d’un modem…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>Le réseau n’accepte pas cette carte SIM.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>La carte SIM ou le modem est bloqué.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>En attente : un autre programme doit d’abord en avoir fini avec le modem…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>Le réseau a mis fin à la session.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>Le réseau ou le modem ne prend pas en charge ce code.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>Le réseau a attendu trop longtemps et a mis fin à la session.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>Le réseau n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>Le réseau a envoyé une réponse vide.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>Le réseau a répondu, mais le modem n’a pas pu décoder la réponse.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>Le modem ne peut pas envoyer un caractère de cette commande.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>Aucun modem ne peut envoyer de codes.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>Le modem est éteint.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>Le modem n’est inscrit sur aucun réseau.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>Le modem a été retiré, ou ModemManager s’est arrêté.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>Vous n’êtes pas autorisé à envoyer des codes avec ce modem.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Un autre programme utilise des codes sur ce modem.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>Le modem n’utilise que la 4G, mais les codes exigent ici la 2G ou la 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>La commande a été annulée.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>Le réseau ou le modem a refusé la commande.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>La commande n’a pas été exécutée.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>Le réseau a peut-être quand même exécuté la commande.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Dernier message du réseau : %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>Le réseau n’a ouvert aucun menu. Rien d’autre n’a été envoyé.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>Le menu ne propose plus « %1 » sur la touche %2. Rien d’autre n’a été envoyé.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Nom du parcours :</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Garder ce parcours…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>Le fichier de vos favoris était endommagé. Il est conservé sous le nom %1, et un nouveau a été créé.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>Les favoris ne peuvent pas être enregistrés dans %1. Ils sont conservés jusqu’à la fermeture du programme.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Un autre favori porte déjà ce nom.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1 : étape %2 sur %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1 arrêté à l’étape %2 sur %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>L’étape suivante n’a pas pu être envoyée.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>Le réseau pose une question de lui-même. Rien d’autre n’a été envoyé.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>Vous avez saisi quelque chose vous-même. Rien d’autre n’a été envoyé.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>La touche %2 est maintenant « %3 », pas « %1 ». Rien d’autre n’a été envoyé.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Codes à envoyer</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>Impossible de conserver l’historique des codes : %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>hier %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>aujourd’hui %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Saisir le code</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Numéro ou PIN pour %1 :</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>Aucun code envoyé pour l’instant</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Les numéros et PIN ne sont pas conservés</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>%1 autres choix</translation>
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
        <translation>État des codes</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Revenir à la 4G seule</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>Autoriser 2G et 3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Fichiers texte</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Fermer la recherche</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Enregistrer l’échange…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Rechercher dans l’échange</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Copier la réponse</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>Que s’est-il passé</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Renvoyer</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>Finir</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>Terminer le menu</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Codes dans une fenêtre</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>La réponse à %1 est illisible</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>Le réseau a répondu sans texte.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>Réponse à %1 sans texte</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>Vous avez arrêté %1. Il n’a pas été envoyé.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>Vous avez arrêté %1. Le réseau l’a peut-être exécuté quand même.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>Le modem n’est pas prêt.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1 n’a pas été envoyé</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>Le modem a disparu. On ignore si le réseau l’a exécuté.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1 a été interrompu</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>Le réseau ne connaît pas ce code, ou il n’est pas prévu pour votre contrat.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1 a été refusé</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>Le réseau n’a pas répondu en 30 secondes. Il a peut-être exécuté le code quand même.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>Pas de réponse à %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>Le réseau en a été informé.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Menu terminé</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Saisissez votre réponse ci-dessous.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Choisissez ou saisissez.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Choisissez, ou saisissez la réponse ci-dessous.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Menu ouvert</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>Le réseau attend votre réponse</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Un autre programme utilise le modem.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Une autre fenêtre interroge le réseau.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>En attente de son tour</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>La plupart des réponses arrivent en 10 secondes. Annuler libère le modem aussitôt.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 sur %2 secondes</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>En attente de la réponse à %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Envoyez un code ou choisissez-en un ci-dessous.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 ne va qu’avec --send.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable l’allume.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session met fin à la session de l’autre programme, qui est peut-être en train d’acheter quelque chose.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>Le réseau attendait une réponse à ce menu. La session a été fermée.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>Aucun : seulement le champ des codes</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>Aucun code n’est configuré pour cette carte SIM. Saisissez un code dans le champ ou choisissez l’opérateur.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Envoyez un code ou choisissez-en un ci-dessous.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>Les codes de votre opérateur sont inconnus</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Choisissez votre opérateur : ses codes de solde et de recharge apparaîtront ici. Vous pouvez saisir des codes sans cela.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>En attente de son tour</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Un autre programme utilise le modem. Votre code sera envoyé quand il aura terminé.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Un autre programme utilise des codes</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Des codes pourront être envoyés quand il aura terminé. Il est peut-être en train d’acheter quelque chose.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>Recherche d’un modem</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>Cela prend un instant.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>Aucun modem</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Branchez un modem ou allumez-le. Cette page s’active d’elle-même.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 n’est pas branché</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>Le modem choisi n’est pas branché</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Branchez-le ou choisissez un autre modem.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>Le modem a été retiré</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Rebranchez-le. Cette page s’active d’elle-même.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>Le modem ne fonctionne pas</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>ModemManager l’a abandonné. Débranchez-le puis rebranchez-le. Le journal de ModemManager en donne la raison.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>Le bus de messages ne fonctionne pas</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>Le D-Bus du système est inaccessible, aucun modem n’est donc trouvé.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>Le service des modems ne fonctionne pas</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>ModemManager n’est pas installé ou a été arrêté.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>Le service des modems ne répond pas</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>ModemManager fonctionne mais ne répond pas. Attendez un instant ou redémarrez-le.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>Non autorisé</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>Cet ordinateur ne vous laisse pas utiliser son modem. Son administrateur peut l’autoriser pour votre compte.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>Aucune SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Insérez une SIM dans le modem. Certains modems doivent être éteints pour cela.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>La SIM est verrouillée</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Saisissez son PIN pour l’utiliser.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>La SIM demande son PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Trop de PIN erronés. Déverrouillez-la dans un téléphone avec le PUK de votre opérateur, puis remettez-la.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>Le modem est éteint</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Allumez-le pour l’utiliser. Il lui faut un instant pour trouver son réseau.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>Recherche d’un réseau</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>Cela peut prendre une minute. Des codes pourront être envoyés dès que le réseau sera trouvé.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>Le réseau n’accepte pas cette SIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Demandez à votre opérateur si elle est active, ou utilisez une autre SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>Ce modem ne peut pas envoyer de codes</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>Il n’a pas l’USSD. Choisissez un autre modem, ou utilisez un téléphone pour les codes.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>Cet état fait partie de la démonstration.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>Un administrateur crée le fichier de la première ligne avec cette règle et ajoute votre compte au groupe netdev. Reconnectez-vous ensuite.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Saisissez ceci dans un terminal, avec le mot de passe d’un administrateur. Si le service n’existe pas, installez d’abord le paquet modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Saisissez ceci dans un terminal, avec le mot de passe d’un administrateur.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>Le PUK est un numéro de 8 chiffres qui déverrouille une SIM après trop de PIN erronés. Il figure sur la carte qui contenait la SIM, et votre opérateur peut le donner. Après dix PUK erronés, la SIM est inutilisable.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>%1 essais restants</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>1 essai restant</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>Saisir le PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Allumer</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Chercher à nouveau</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Choisir un modem</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>Comment l’autoriser</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>Comment le démarrer</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>Qu’est-ce qu’un PUK ?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Essayer la démonstration</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Utiliser mon modem</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>La terminer</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Choisir l’opérateur</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Saisir un code</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>Terminer la session de l’autre programme ? Il est peut-être en train d’acheter quelque chose.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>Terminer la session</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>%1 ne peut pas être écrit. Les nouveaux messages seront perdus à la fermeture du programme.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>Le fichier des messages était endommagé. Il s’appelle maintenant %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>%1 ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Tout marquer comme lu</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>Non lus %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>Non lus</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>En attente %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · du réseau</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Attend votre réponse</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>Non lu</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>Ou saisissez une réponse</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Saisissez une réponse</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Répondre peut être payant. Terminer indique au réseau que vous ne voulez rien.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>Terminer sans répondre</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Copier le message</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Supprimer le message</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>Pas encore de messages</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Les messages que le réseau envoie de lui-même apparaissent ici.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>Aucun message trouvé</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Choisissez un message pour le lire.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Messages du réseau</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Texte du message</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Message de %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>Il attend votre réponse.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>Vous avez un nouveau message.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>Un menu est encore ouvert dans le réseau, mais son texte n’est plus connu. Répondez-y ou terminez-le.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>Votre solde est de %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Forfaits et réglages de %1. Chacun s’ouvre dans la fenêtre des services, qui montre ce qu’il fait avant tout envoi.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Forfaits et réglages de votre opérateur. Chacun s’ouvre dans la fenêtre des services, qui montre ce qu’il fait avant tout envoi.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>Par code</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>Par SMS</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>au %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>demande un numéro</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>Votre opérateur n’a pas de services ici.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>Le réseau attend votre réponse</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Choisissez ou saisissez la réponse ci-dessous.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Saisissez votre réponse ci-dessous.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>Afficher le PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>Le fichier de vos soldes était endommagé. Il est conservé sous %1 et un nouveau a été créé.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>Les soldes ne peuvent pas être enregistrés dans %1. Ils sont conservés jusqu’à la fermeture du programme.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>Une version plus récente du programme a écrit %1. Les soldes sont conservés jusqu’à la fermeture du programme.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>Tableau USSD</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Accueil</translation>
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
        <translation>Réglages</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 non lus</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Opérateur : %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Démonstration</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Signal fort</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Bon signal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Signal faible</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>Pas de signal</translation>
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
        <translation>SIM finissant par %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>Afficher le numéro de la SIM</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>Masquer le numéro de la SIM</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, %2 non lus</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Modem prêt</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>Aucun modem utilisé</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Tout est inventé ici. Aucun modem n’est utilisé et rien ne coûte d’argent.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>Pas encore de codes de l’opérateur</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Quelque chose ne va pas</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Vos propres codes peuvent être restaurés</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>Leur fichier a disparu. Il y a une copie du %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>Leur fichier est incomplet. Il y a une copie du %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Supprimer la copie</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Codes dans une fenêtre</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>Fenêtre du c&amp;ompte</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>Fenêtre du c&amp;ompte, prépayé</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Fenêtre du compte, &amp;forfait</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>&amp;Modifier les codes</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>E&amp;xporter les soldes…</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>M&amp;odem</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>Tableau de bord USSD %1. Il envoie des codes USSD par un modem et affiche les réponses.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Vie privée</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Modem choisi</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Codes de l’opérateur</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>Aucun : vous tapez les codes vous-même</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Changer</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Déterminer le type de contrat</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Envoie un code une fois par SIM. Cela peut coûter de l’argent.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>Après un redémarrage</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Réduire les animations</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Suit le système</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Messages du réseau</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>Quand la fenêtre n’est pas au premier plan</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Afficher leur texte</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>D’autres peuvent le lire à l’écran</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Solde faible</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Sous %1, quand une réponse a indiqué le solde</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>Quand une réponse a indiqué le solde</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>Masquer le numéro de la SIM</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Seuls les quatre derniers chiffres sont affichés</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Conserver l’historique et les soldes</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>Sur cet ordinateur seulement, pendant 12 mois</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Tout supprimer…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Soldes, messages, codes envoyés et favoris</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>Supprimer tous les soldes, messages, codes envoyés et favoris ? Ils ne pourront pas être récupérés.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Trois étapes, et vous voyez ici votre solde, envoyez des codes et achetez des forfaits.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Modem trouvé</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM prête</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM finissant par %1, inscrite sur un réseau.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Puis la SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>Les codes de qui faut-il utiliser ?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>Vous choisirez quand la SIM sera prête.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>Votre SIM correspond à un opérateur de la liste. Vous pouvez changer cela à tout moment dans Réglages.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>Votre SIM correspond à %1 opérateurs de la liste. Vous pouvez changer cela à tout moment dans Réglages.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>Aucun opérateur de la liste ne correspond à votre SIM. Vous pouvez taper les codes.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>Codes : %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>solde</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>recharge</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>numéro propre</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Sans codes de l’opérateur</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>Vous tapez les codes, rien n’est prédéfini</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>Utiliser les codes</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>Continuer sans</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Essayer plutôt la démonstration</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Rien n’est envoyé au réseau avant que vous n’appuyiez sur un bouton. Les codes peuvent coûter de l’argent.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>Le tableau de bord est déjà ouvert. Sa fenêtre est maintenant au premier plan et garde son appareil.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>Le tableau de bord est déjà ouvert. Sa fenêtre est maintenant au premier plan et garde sa langue et son journal.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>demande un texte</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>Terminez d’abord le menu.</translation>
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
        <translation>aujourd’hui à %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>hier à %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>dernier jour</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>reste 1 jour</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>reste %1 jours</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Valable jusqu’au %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Terminé le %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>Solde (inventé)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>Demandé %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Solde faible</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>A pu changer depuis</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Pas encore demandé</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Redemander</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>Demande… %1 s</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>Terminez d’abord le menu.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Voir la réponse</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Réponse à %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Évolution du solde</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>%1 derniers jours</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Redemandez un autre jour pour voir ici une courbe.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Dépensé %1, rechargé %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>De %1 à %2 en %3 jours, minimum %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>Mon numéro</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Copier le numéro</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Valable jusqu’au</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Données restantes</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>Choisissez jusqu’à %1 codes et ordonnez-les.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>Numéro pour %1</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>Répondre</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Dernier connu : %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, demandé %2. Il a pu changer depuis.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Demandé %1. Il a pu changer depuis.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Exporter les soldes</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1 : le nom doit se terminer par .csv ou .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>Le modem n’a pas accepté les autres réseaux.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Demander le solde une fois par jour</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Envoie le code du solde de lui-même, mais pas en itinérance. Votre opérateur peut le facturer.</translation>
    </message>
</context>
</TS>
