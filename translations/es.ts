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
        <translation>No se ejecutó la orden.</translation>
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
        <translation>Haga doble clic en una celda para cambiarla; las filas de color son fijas. En un código, %s representa el número introducido.</translation>
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
        <translation>Pasa saldo; la red pedirá después el número.</translation>
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
        <translation>Datos restantes</translation>
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
        <translation>Paquetes de datos</translation>
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
</TS>
