<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>Códigos USSD</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Escriba un código como *100# o la respuesta a un menú.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>PIN de recarga o teléfono:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>Esperando la respuesta de la red…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Enviado: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Recibido: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>¿Borrar todo el historial?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>La red no respondió a tiempo.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>No hay respuesta.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Espere, por favor…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Error al enviar.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>Aceptar</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Editar códigos</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Doble clic para cambiar; filas de color fijas. Los 2 últimos botones exigen un número (%s).</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: esta entrada ya está en la lista. Escriba otra.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>Este archivo está dañado y solo se ha leído en parte, por lo que no se sobrescribe. Repárelo o elimínelo:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>Los cambios no se guardan porque no se puede escribir en este archivo:
%s</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Cuenta de prepago</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Cuenta de contrato</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>Mi saldo</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>La respuesta puede tardar unos segundos.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>PIN de recarga</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Recarga en línea</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>Mi número</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>Ver &amp;número</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Servicios del operador</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Datos, un día</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Compra un paquete de datos para un día.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Datos, una semana</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Compra un paquete de datos para una semana.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Datos, un mes</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Compra un paquete de datos para un mes.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Activar roaming</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Permite usar redes en el extranjero.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Desactivar roaming</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Impide usar redes en el extranjero.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Activar buzón</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Desvía las llamadas perdidas al buzón de voz.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Desactivar buzón</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>Deja de desviar las llamadas al buzón de voz.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Llámame</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Pide gratis a alguien que le llame.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Transferir saldo</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Transfiere parte de su saldo.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Tiempo por SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Pide por SMS el pronóstico de una ciudad.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Tarifa por SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Pide por SMS los precios de su tarifa.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Avisos de consumo</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Le avisa por SMS cuando queda poco saldo o pocos datos.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Número de teléfono:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Importe:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Ciudad:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Comprar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>&amp;Desactivar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>&amp;Pedir</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>Muestra su saldo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>Mi número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Muestra su propio número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Saldo datos</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Muestra los datos que quedan</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Vigencia</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Muestra hasta cuándo vale su saldo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Abre el menú del operador</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Bonos datos</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Muestra los paquetes de datos</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Indica si el roaming está activo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Buzón de voz</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Indica si el buzón de voz está activo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>Mi tarifa</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Muestra su tarifa</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Recarga con el PIN introducido</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Llámame</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Pide al número introducido que le llame</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>Panel USSD</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>Mostrar el &amp;número de la SIM</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Demostración (red inventada)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>&amp;Abrir un archivo de escenario...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Abrir un archivo de escenario</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Archivos de escenario</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>No se puede usar el archivo de escenario</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Demostración: red inventada (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Fuente: módem (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>Sin red</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Señal: %1 %</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Señal: desconocida</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>Tarjeta SIM: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>Tarjeta SIM sin número legible</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>No hay ningún dispositivo.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>No hay tarjeta SIM en el dispositivo.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>La tarjeta SIM espera su PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>El dispositivo está apagado.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>Buscando una red...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>Falta el complemento: no existe el archivo %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>El archivo del complemento %1 no se puede cargar como biblioteca: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>La biblioteca %1 no es un complemento para el Qt de este programa: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>El complemento %1 se cargó, pero no ofrece ningún objeto.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>El complemento %1 no tiene la interfaz %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>El complemento %1 se negó a iniciarse.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>El complemento %1 no ofrece el servicio USSD (número %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>No existe la opción %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>Falta un valor después de %1.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>«%1» no se esperaba.</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send y --tour no se pueden combinar.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour trae sus propios dispositivos; no se puede añadir --demo, --scenario ni --modem.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>Un código o una respuesta no puede estar vacío ni contener caracteres de control.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>No existe ese idioma. Hay: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>«ussd-dashboard --help» explica lo que se puede pedir.</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>No hay pantalla en la que abrir una ventana. --send CÓDIGO y --tour CARPETA no la necesitan.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>La ventana USSD no acepta %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>El complemento no terminó la espera ni con una respuesta ni con un fallo.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>La red ya no espera respuesta. Sin enviar: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>El complemento no muestra su ventana como debería (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>No se borró el historial (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 imágenes y transcript.txt están en %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Uso: ussd-dashboard [OPCIÓN...]
Muestra las ventanas del complemento USSD y el estado del dispositivo.

  --send CÓDIGO [RESPUESTA...]
                           enviar el código sin ventana, mostrar la respuesta y
                           contestar por turno a los menús de la red
  --tour CARPETA           recorrer todas las ventanas sin pantalla; deja
                           imágenes y transcript.txt en la carpeta
  --export ARCHIVO         escribir las respuestas guardadas sobre saldos
                           en un archivo .csv o .json
  --demo                   usar una red inventada; no se envía nada
  --scenario ARCHIVO       usar la red inventada de este archivo
  --modem ID               usar el módem con este identificador (IMEI)
  --enable                 con --send: encender el módem si está apagado
  --end-foreign-session    con --send: terminar antes los códigos de otro programa
  --language CÓDIGO        idioma, por ejemplo en o ar
  --verbose                escribir el registro del programa y del complemento
  --log ARCHIVO            lo mismo en un archivo que solo usted puede leer
  --help                   este texto
  --version                la versión del programa

--send termina con 0 si cada orden tuvo respuesta, 1 rechazada, 2 uso incorrecto,
3 sin módem o no preparado, 4 sin respuesta a tiempo, 5 en uso por otro programa,
6 no permitido, 7 menú abierto, 8 salida no escrita, 128 más el número de la señal
si fue interrumpido. En los demás casos termina con 0 si todo salió bien, con 1 si
algo falló y con 2 si los argumentos o el archivo de escenario son incorrectos.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Prepago</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Pospago</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>¿Prepago o pospago? Preguntando…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>Ninguna ventana USSD corresponde a esta tarjeta SIM.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>No se puede escribir %1. La copia se queda donde está: %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>En este equipo no hay fuentes, así que los textos no se pueden ver.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>No se puede escribir %1. Lo que elija se olvidará al terminar el programa.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>No se puede escribir %1, así que no hay copia de sus propios códigos USSD.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>Los textos del idioma elegido están dañados: %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>Faltan los textos del idioma elegido: %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Automático: el primer módem</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>No se encontró ningún módem</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (en uso)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Módem %1 (no está)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Módem %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Origen: módem (ninguno)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Origen: buscando un módem…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>Introduzca el PIN de la SIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>De 4 a 8 cifras. Va a la SIM y no se guarda.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>&amp;Desbloquear</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>Quedan %1 intentos.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>Queda un intento. Tras otro PIN incorrecto, la SIM necesita su PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>La tarjeta SIM comprueba el PIN…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>Ese no era el PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>No se pudo enviar el PIN a la SIM. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>La SIM no respondió a tiempo. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>Este registro contiene los códigos enviados y las respuestas, y con ellos PIN, números y saldos. No lo comparta.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>El archivo de registro %1 no se puede usar: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>es un enlace simbólico.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>no es un archivo propio o tiene un segundo nombre.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem no va ni con --demo ni con --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Códigos del operador…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>Esta tarjeta SIM es de %1. Los códigos de saldo y recarga se pueden tomar de la lista de operadores.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>Los códigos de saldo y recarga se pueden tomar de la lista de operadores. Varios convienen a esta tarjeta SIM: elija el suyo.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>&amp;Tomarlos</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Códigos del operador</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>¿De quién se usarán los códigos con esta tarjeta SIM (red %1)?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>Los códigos de la demostración</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>Los códigos de %1 no se pueden usar: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>Estos archivos se cambiaron a mano y están en uso:
%1

¿Se apartan para los códigos de %2? Se conservan.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>Aún no se conoce la red de la SIM. En cuanto un módem con una SIM esté listo, podrá elegir aquí su operador.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>La demostración tiene sus propios códigos. Para elegir su operador, use su módem.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>Su código</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Ver en el historial</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>Sin botón libre para %1: vea el historial o los favoritos en Inicio.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Sus códigos se han guardado</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>Escriba en una fila vacía para añadir un código.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Escriba un código</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Escriba un nombre</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>No hay lista de operadores. Instale el paquete mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>La configuración la determina USSD_PLUGIN_LIBRARY_PATH.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Demostración – Panel USSD</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Demostración: la red es inventada; no se envía nada.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Demostración: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>señal débil</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>contrato</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>Sin módem</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Buscando un módem…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>La red no acepta esta SIM.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>La tarjeta SIM o el módem está bloqueado.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>Esperando a que otro programa termine con el módem…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>La red ha terminado la sesión.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>La red o el módem no admite este código.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>La red ha esperado demasiado y ha terminado la sesión.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>La red no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>La red ha enviado una respuesta vacía.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>La red ha respondido, pero el módem no ha podido descodificar la respuesta.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>El módem no puede enviar un carácter de esta orden.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>No hay ningún módem que pueda enviar códigos.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>El módem está apagado.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>El módem no está registrado en ninguna red.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>Se ha retirado el módem, o ModemManager ha terminado.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>No tiene permiso para enviar códigos con este módem.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Otro programa está usando códigos en este módem.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>El módem solo usa 4G, pero aquí los códigos necesitan 2G o 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>La orden se ha cancelado.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>La red o el módem ha rechazado la orden.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>La orden no se ha ejecutado.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>Es posible que la red haya ejecutado la orden de todos modos.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Último mensaje de la red: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>La red no abrió ningún menú. No se envió nada más.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>El menú ya no ofrece «%1» en la tecla %2. No se envió nada más.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Nombre del recorrido:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Guardar este recorrido…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>El archivo con sus favoritos estaba dañado. Se conserva como %1 y se ha creado uno nuevo.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>No se pueden guardar los favoritos en %1. Se conservan hasta que se cierre el programa.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Cambiar nombre…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Otro favorito ya tiene este nombre.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: paso %2 de %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1 detenido en el paso %2 de %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>No se pudo enviar el paso siguiente.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>La red hace una pregunta por su cuenta. No se envió nada más.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>Ha escrito algo usted mismo. No se envió nada más.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>La tecla %2 es ahora «%3», no «%1». No se envió nada más.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Códigos para enviar</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>No se puede guardar el historial de códigos: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>ayer %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>hoy %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Escribir el código</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Número o PIN para %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>Aún no se ha enviado ningún código</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Borrar historial</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Los números y PIN no se guardan</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>%1 opciones más</translation>
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
        <translation>Estado de los códigos</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Volver a solo 4G</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>Permitir 2G y 3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Archivos de texto</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Cerrar la búsqueda</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Guardar la conversación…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Buscar en la conversación</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Copiar la respuesta</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>Qué pasó</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>Terminar menú</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Códigos en una ventana</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>No se puede leer la respuesta a %1</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>La red respondió sin texto.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>La respuesta a %1 no tiene texto</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>Usted detuvo %1. No se envió.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>Usted detuvo %1. Puede que la red lo haya ejecutado de todos modos.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>El módem no está listo.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1 no se envió</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>El módem desapareció. No se sabe si la red lo ejecutó.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1 se interrumpió</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>La red no conoce este código, o no es para su contrato.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1 fue rechazado</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>La red no respondió en 30 segundos. Puede que haya ejecutado el código de todos modos.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>Sin respuesta a %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>Se ha informado a la red.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Menú terminado</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Escriba su respuesta abajo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Elija o escriba abajo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Elija una opción o escriba la respuesta abajo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Menú abierto</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>La red espera su respuesta</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Otro programa está usando el módem.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Otra ventana está consultando.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>Esperando su turno</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>La mayoría de las respuestas llegan en 10 segundos. Cancelar libera el módem al instante.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 de %2 segundos</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>Esperando la respuesta a %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Envíe un código o elija uno abajo.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 solo va con --send.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable lo enciende.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session termina la sesión del otro programa, que quizá esté comprando algo.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>La red esperaba una respuesta a este menú. Se ha cerrado la sesión.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>Ninguno: solo el campo de códigos</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>No hay códigos configurados para esta tarjeta SIM. Escriba un código en el campo o elija el operador.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Envíe un código o elija uno abajo.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>No conocemos los códigos de su operador</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Elija su operador y aquí aparecerán sus códigos de saldo y recarga. También puede escribir códigos sin elegirlo.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>Esperando su turno</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Otro programa está usando el módem. Su código se enviará cuando termine.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Otro programa está usando códigos</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Podrá enviar códigos cuando termine. Quizá esté comprando algo.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>Buscando un módem</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>Esto tarda un momento.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>Sin módem</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Conecte un módem o enciéndalo. Esta página se activará por sí sola.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 no está conectado</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>El módem elegido no está conectado</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Conéctelo o elija otro módem.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>Se ha retirado el módem</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Conéctelo de nuevo. Esta página se activará por sí sola.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>El módem no funciona</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>ModemManager lo ha descartado. Desconéctelo y vuelva a conectarlo. El registro de ModemManager indica el motivo.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>El bus de mensajes no funciona</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>No se puede acceder al D-Bus del sistema, por lo que no se encuentra ningún módem.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>El servicio de módem no funciona</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>ModemManager no está instalado o se ha detenido.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>El servicio de módem no responde</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>ModemManager funciona pero no responde. Espere un momento o reinícielo.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>No permitido</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>Este equipo no le deja usar su módem. Su administrador puede permitirlo para su cuenta.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>Sin SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Inserte una SIM en el módem. Algunos módems deben estar apagados para ello.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>La SIM está bloqueada</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Introduzca su PIN para usarla.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>La SIM necesita su PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Demasiados PIN incorrectos. Desbloquéela en un teléfono con el PUK de su operador y vuelva a ponerla.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>El módem está apagado</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Enciéndalo para usarlo. Necesita un momento para encontrar su red.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>Buscando una red</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>Puede tardar un minuto. Podrá enviar códigos en cuanto se encuentre la red.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>La red no acepta esta SIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Pregunte a su operador si está activa o use otra SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>Este módem no puede enviar códigos</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>No tiene USSD. Elija otro módem o use un teléfono para los códigos.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>Este estado forma parte de la demostración.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>Un administrador crea el archivo de la primera línea con esta regla y añade su cuenta al grupo netdev. Después, vuelva a iniciar la sesión.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Escriba esto en un terminal, con la contraseña de un administrador. Si indica que el servicio no existe, instale antes el paquete modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Escriba esto en un terminal, con la contraseña de un administrador.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>El PUK es un número de 8 cifras que desbloquea una SIM tras demasiados PIN incorrectos. Está en la tarjeta en la que venía la SIM, y su operador puede indicárselo. Tras diez PUK incorrectos, la SIM queda inservible.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>Quedan %1 intentos</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>Queda 1 intento</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>Introducir el PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Encender</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Elegir un módem</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>Cómo permitirlo</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>Cómo iniciarlo</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>¿Qué es un PUK?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Probar la demostración</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Usar mi módem</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>Finalizarla</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Elegir operador</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Escribir un código</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>¿Finalizar la sesión del otro programa? Quizá esté comprando algo.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>Finalizar la sesión</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>No se puede escribir %1. Los mensajes nuevos se perderán al cerrar el programa.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>El archivo de los mensajes estaba dañado. Ahora se llama %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>No se puede eliminar %1.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Marcar todo como leído</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Buscar mensajes</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>No leídos %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>No leídos</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>En espera %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · de la red</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Espera su respuesta</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>No leído</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>O escriba una respuesta</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Escriba una respuesta</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Responder puede costar dinero. Al terminar, la red sabe que no quiere nada.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>Terminar sin responder</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Copiar el mensaje</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Eliminar el mensaje</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>Aún no hay mensajes</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Aquí aparecen los mensajes que la red envía por sí misma.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>Ningún mensaje encontrado</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Elija un mensaje para leerlo.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Mensajes de la red</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Texto del mensaje</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Mensaje de %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>Espera su respuesta.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>Tiene un mensaje nuevo.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>Sigue abierto un menú en la red, pero ya no se conoce su texto. Respóndalo o termínelo.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>Su saldo es de %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Paquetes y ajustes de %1. Cada uno se abre en la ventana de servicios, que muestra lo que hace antes de enviar nada.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Paquetes y ajustes de su operador. Cada uno se abre en la ventana de servicios, que muestra lo que hace antes de enviar nada.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>Por código</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>Por SMS</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>a %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>pide un número</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>Su operador no tiene servicios aquí.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>La red espera su respuesta</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Elija una o escriba la respuesta abajo.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Escriba su respuesta abajo.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>Mostrar el PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>El archivo con sus saldos estaba dañado. Se conserva como %1 y se ha creado uno nuevo.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>No se pueden guardar los saldos en %1. Se conservan hasta cerrar el programa.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>Una versión posterior del programa escribió %1. Los saldos se conservan hasta cerrar el programa.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>Panel USSD</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>Códigos</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>Servicios</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 sin leer</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Operador: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Demostración</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Señal fuerte</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Señal buena</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Señal débil</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>Sin señal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_PERCENT</source>
        <translation>Señal %1 %</translation>
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
        <translation>SIM terminada en %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>Mostrar el número de la SIM</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>Ocultar el número de la SIM</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, %2 sin leer</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Módem listo</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>Ningún módem en uso</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>Buscando uno</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Todo aquí es inventado. No se usa ningún módem y nada cuesta dinero.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>Aún sin códigos del operador</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Algo no está bien</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Sus propios códigos se pueden restaurar</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>Su archivo ha desaparecido. Hay una copia del %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>Su archivo está incompleto. Hay una copia del %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Eliminar la copia</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Códigos en una ventana</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>Ventana de la c&amp;uenta</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>Ventana de la c&amp;uenta, prepago</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Ventana de la cuenta, c&amp;ontrato</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>&amp;Editar códigos</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>E&amp;xportar saldos…</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>&amp;Módem</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Ajustes</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>Acerca &amp;de</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>Panel USSD %1. Envía códigos USSD por un módem y muestra las respuestas.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Módem elegido</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Códigos del operador</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>Ninguno: usted escribe los códigos</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Averiguar el tipo de contrato</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Envía un código una vez por SIM. Puede costar dinero.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>Después de reiniciar</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Reducir el movimiento</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Sigue al sistema</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Mensajes de la red</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>Cuando la ventana no está delante</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Mostrar su texto</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>Otras personas pueden leerlo en la pantalla</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Saldo bajo</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Por debajo de %1, cuando una respuesta indica el saldo</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>Cuando una respuesta indica el saldo</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>Ocultar el número de la SIM</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Solo se muestran las últimas cuatro cifras</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Guardar historial y saldos</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>Solo en este equipo, durante 12 meses</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Eliminar todo…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Saldos, mensajes, códigos enviados y favoritos</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>¿Eliminar todos los saldos, mensajes, códigos enviados y favoritos? No se pueden recuperar.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Tres pasos, y desde aquí verá su saldo, enviará códigos y comprará paquetes.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Módem encontrado</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM lista</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM terminada en %1, registrada en una red.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Después la SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>¿De quién son los códigos que se usarán?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>Podrá elegirlo cuando la SIM esté lista.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>Su SIM coincide con un operador de la lista. Puede cambiarlo en cualquier momento en Ajustes.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>Su SIM coincide con %1 operadores de la lista. Puede cambiarlo en cualquier momento en Ajustes.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>Ningún operador de la lista coincide con su SIM. Puede escribir los códigos.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>Códigos: %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>saldo</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>recarga</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>número propio</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Sin códigos del operador</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>Usted escribe los códigos, nada viene puesto</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>Usar códigos</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>Seguir sin ellos</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Probar la demostración</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Nada se envía a la red hasta que pulse un botón. Los códigos pueden costar dinero.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>El panel ya está abierto. Su ventana está ahora delante y conserva su dispositivo.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>El panel ya está abierto. Su ventana está ahora delante y conserva su idioma y su registro.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>pide un texto</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>Termine antes el menú.</translation>
    </message>
    <message>
        <source>HOME_LONG_DATE</source>
        <translation>d 'de' MMMM 'de' yyyy</translation>
    </message>
    <message>
        <source>HOME_SHORT_DATE</source>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>HOME_TODAY</source>
        <translation>hoy a las %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>ayer a las %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>último día</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>queda 1 día</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>quedan %1 días</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Válido hasta el %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Terminó el %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>ha terminado</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>Saldo (inventado)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>Consultado %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Saldo bajo</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>Puede haber cambiado</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Aún sin consultar</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Consultar de nuevo</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Consultar ahora</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>Consultando… %1 s</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>Termine antes el menú.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Ver la respuesta</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Respuesta a %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Saldo en el tiempo</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>Últimos %1 días</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Consulte de nuevo otro día para ver aquí una línea.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Gastado %1, recargado %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>De %1 a %2 en %3 días, mínimo %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>Mi número</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Copiar el número</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Datos restantes</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>Elija hasta %1 códigos y ordénelos.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>Número para %1</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>Responder</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Último conocido: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, consultado %2. Puede haber cambiado desde entonces.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Consultado %1. Puede haber cambiado desde entonces.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Exportar saldos</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: el nombre debe terminar en .csv o .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>El módem no ha aceptado las otras redes.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Consultar el saldo una vez al día</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Envía el código de saldo por sí solo, pero no en itinerancia. Su operador puede cobrarlo.</translation>
    </message>
</context>
</TS>
