<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>Códigos USSD</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Introduza um código, como *100#, ou a resposta a um menu.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>PIN de recarga ou número:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>A aguardar a resposta da rede…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Enviado: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Recebido: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>Limpar todo o histórico?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>A rede não respondeu a tempo.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>O comando não foi executado.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Aguarde…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Falha no envio.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>OK</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Editar códigos</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Faça duplo clique numa célula para a alterar; as linhas coloridas são fixas. Num código, %s representa o número introduzido.</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: esta entrada já está na lista. Introduza outra.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>Guardar as alterações?</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Conta pré-paga</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Conta pós-paga</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>O meu saldo</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>A resposta pode demorar alguns segundos.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>PIN de recarga</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>&amp;Carregar</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Recarga online</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>O meu número</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>Ver &amp;número</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>&amp;Fechar</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Serviços do operador</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Serviços</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Dados, um dia</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Compra um pacote de dados para um dia.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Dados, uma semana</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Compra um pacote de dados para uma semana.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Dados, um mês</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Compra um pacote de dados para um mês.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Ativar roaming</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Permite usar redes no estrangeiro.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Desativar roaming</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Impede o uso de redes no estrangeiro.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Ativar voice mail</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Desvia chamadas não atendidas para o voice mail.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Desativar voice mail</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>Deixa de desviar chamadas para o voice mail.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Liga-me</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Pede gratuitamente a alguém que lhe ligue.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Transferir saldo</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Transfere saldo; a rede pede depois o número.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Tempo por SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Pede por SMS a previsão para uma cidade.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Tarifário por SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Pede por SMS os preços do seu tarifário.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Alertas de consumo</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Avisa por SMS quando resta pouco saldo ou poucos dados.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Número de telefone:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Montante:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Cidade:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Comprar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>&amp;Ativar</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>&amp;Desativar</translation>
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
        <translation>Mostra o seu saldo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>O meu número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Mostra o seu número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Dados restantes</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Mostra os dados que restam</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Validade</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Mostra até quando vale o saldo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Abre o menu do operador</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Pacotes de dados</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Mostra os pacotes de dados</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Indica se o roaming está ativo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Voice mail</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Indica se o voice mail está ativo</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>O meu tarifário</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Mostra o seu tarifário</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Carrega com o PIN introduzido</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Liga-me</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Pede ao número introduzido que lhe ligue</translation>
    </message>
</context>
</TS>
