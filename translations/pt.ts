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
        <translation>Não há resposta.</translation>
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
        <translation>Duplo clique para alterar; linhas coloridas fixas. Os 2 últimos botões exigem um número (%s).</translation>
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
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>Este ficheiro está danificado e só foi lido em parte, por isso não é substituído. Repare-o ou elimine-o:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>As alterações não são guardadas, porque não é possível escrever neste ficheiro:
%s</translation>
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
        <translation>Transfere parte do seu saldo.</translation>
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
        <translation>Meu número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Mostra o seu número</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Saldo dados</translation>
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
        <translation>Pacotes dados</translation>
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
        <translation>Meu tarifário</translation>
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
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>Painel USSD</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>Fi&amp;cheiro</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>Mostrar o &amp;número do SIM</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Demonstração (rede inventada)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>&amp;Abrir ficheiro de cenário...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Abrir um ficheiro de cenário</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Ficheiros de cenário</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>O ficheiro de cenário não pode ser usado</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Demonstração: rede inventada (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Fonte: modem (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>Sem rede</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Sinal: %1%</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Sinal: desconhecido</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>Cartão SIM: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>Cartão SIM sem número legível</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>Não há nenhum dispositivo.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>Não há cartão SIM no dispositivo.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>O cartão SIM aguarda o PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>O dispositivo está desligado.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>À procura de uma rede...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>Falta o suplemento: não existe o ficheiro %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>O ficheiro do suplemento %1 não pode ser carregado como biblioteca: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>A biblioteca %1 não é um suplemento para o Qt deste programa: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>O suplemento %1 foi carregado, mas não fornece nenhum objeto.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>O suplemento %1 não tem a interface %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>O suplemento %1 recusou-se a iniciar.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>O suplemento %1 não oferece o serviço USSD (número %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>Não existe a opção %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>Falta um valor depois de %1.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>«%1» não era esperado.</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send e --tour não podem ser combinados.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour traz os seus próprios dispositivos; não se pode acrescentar --demo, --scenario nem --modem.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>Um código ou uma resposta não pode estar vazio nem conter caracteres de controlo.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>Esse idioma não existe. Há: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>«ussd-dashboard --help» explica o que se pode pedir.</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>Não há ecrã onde abrir uma janela. --send CÓDIGO e --tour PASTA não precisam dele.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>A janela USSD não aceita %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>O suplemento não terminou a espera nem com uma resposta nem com uma falha.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>A rede já não espera resposta. Não enviado: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>Não é possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>Não é possível escrever %1.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>O suplemento não mostra a sua janela como deveria (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>O histórico não foi apagado (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 imagens e transcript.txt estão em %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Utilização: ussd-dashboard [OPÇÃO...]
Mostra as janelas do suplemento USSD e o estado do dispositivo.

  --send CÓDIGO [RESPOSTA...]
                           enviar o código sem janela, mostrar a resposta e
                           responder à vez aos menus da rede
  --tour PASTA             percorrer todas as janelas sem ecrã; deixa imagens e
                           transcript.txt na pasta
  --export FICHEIRO        escrever as respostas guardadas sobre saldos
                           num ficheiro .csv ou .json
  --demo                   usar uma rede inventada; nada é enviado
  --scenario FICHEIRO      usar a rede inventada deste ficheiro
  --modem ID               usar o modem com este identificador (IMEI)
  --enable                 com --send: ligar o modem se estiver desligado
  --end-foreign-session    com --send: terminar antes os códigos de outro programa
  --language CÓDIGO        idioma, por exemplo en ou ar
  --verbose                escrever o registo do programa e do suplemento
  --log FICHEIRO           o mesmo num ficheiro que só você pode ler
  --help                   este texto
  --version                a versão do programa

--send termina com 0 quando cada comando teve resposta, 1 recusado, 2 uso errado,
3 sem modem ou não preparado, 4 sem resposta a tempo, 5 em uso por outro programa,
6 não permitido, 7 menu aberto, 8 saída não escrita, 128 mais o número do sinal
quando foi interrompido. De resto, termina com 0 quando tudo correu bem, com 1
quando algo falhou e com 2 quando os argumentos ou o ficheiro de cenário estão
errados.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Pré-pago</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Pós-pago</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>Pré-pago ou pós-pago? A perguntar…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>Nenhuma janela USSD corresponde a este cartão SIM.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>Não é possível escrever %1. A cópia fica onde está: %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>Não há tipos de letra neste computador, por isso os textos não se veem.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>Não é possível escrever %1. O que escolher será esquecido quando o programa terminar.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>Não é possível escrever %1, por isso não há cópia dos seus próprios códigos USSD.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>Os textos do idioma escolhido estão danificados: %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>Faltam os textos do idioma escolhido: %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Automático: o primeiro modem</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>Nenhum modem encontrado</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (em uso)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Modem %1 (ausente)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Modem %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Origem: modem (nenhum)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Origem: procurando um modem…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>Introduzir o PIN do SIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>4 a 8 algarismos. Vai para o SIM e não é guardado.</translation>
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
        <translation>Restam %1 tentativas.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>Resta uma tentativa. Depois de outro PIN errado, o SIM precisa do PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>O cartão SIM verifica o PIN…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>Esse não era o PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>Não foi possível enviar o PIN ao SIM. Tente de novo.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>O SIM não respondeu a tempo. Tente de novo.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>Este registo contém os códigos enviados e as respostas, e com eles PIN, números e saldos. Não o partilhe.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>O ficheiro de registo %1 não pode ser usado: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>é uma ligação simbólica.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>não é um ficheiro seu ou tem um segundo nome.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem não combina com --demo nem com --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Códigos da operadora…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>Este cartão SIM é de %1. Os códigos de saldo e carregamento podem ser tirados da lista de operadoras.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>Os códigos de saldo e carregamento podem ser tirados da lista de operadoras. Várias servem para este cartão SIM: escolha a sua.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>&amp;Escolher…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Códigos da operadora</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>De quem devem ser usados os códigos com este cartão SIM (rede %1)?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>Os códigos da demonstração</translation>
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
        <translation>Os códigos de %1 não podem ser usados: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>Estes ficheiros foram alterados à mão e estão em uso:
%1

Devem ser postos de lado para os códigos de %2? São conservados.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>A rede do SIM ainda não é conhecida. Assim que um modem com SIM estiver pronto, pode escolher aqui a sua operadora.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>A demonstração tem códigos próprios. Para escolher a sua operadora, use o seu modem.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>O seu código</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Ver no histórico</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>Sem botão livre para %1: veja o histórico ou os favoritos no Início.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Os seus códigos foram guardados</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>Escreva numa linha vazia para adicionar um código.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Escreva um código</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Escreva um nome</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>Não há lista de operadoras. Instale o pacote mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>A configuração é determinada por USSD_PLUGIN_LIBRARY_PATH.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Demonstração – Painel USSD</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Demonstração: a rede é inventada; nada é enviado.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Demonstração: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>sinal fraco</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>pós-pago</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>Sem modem</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Procurando um modem…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>A rede não aceita este SIM.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>O cartão SIM ou o modem está bloqueado.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>A aguardar que outro programa termine de usar o modem…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>A rede terminou a sessão.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>A rede ou o modem não suporta este código.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>A rede esperou demasiado e terminou a sessão.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>A rede não respondeu a tempo.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>A rede enviou uma resposta vazia.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>A rede respondeu, mas o modem não conseguiu descodificar a resposta.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>O modem não consegue enviar um carácter deste comando.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>Não há nenhum modem que possa enviar códigos.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>O modem está desligado.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>O modem não está registado em nenhuma rede.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>O modem foi removido, ou o ModemManager terminou.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>Não tem permissão para enviar códigos com este modem.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Outro programa está a usar códigos neste modem.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>O modem só usa 4G, mas aqui os códigos precisam de 2G ou 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>O comando foi cancelado.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>A rede ou o modem recusou o comando.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>O comando não foi executado.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>A rede pode ter executado o comando mesmo assim.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Última mensagem da rede: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>A rede não abriu nenhum menu. Nada mais foi enviado.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>O menu já não oferece “%1” na tecla %2. Nada mais foi enviado.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Nome do percurso:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Guardar este percurso…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>O ficheiro com os seus favoritos estava danificado. Fica guardado como %1 e foi criado um novo.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>Não é possível guardar os favoritos em %1. Ficam disponíveis até o programa terminar.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Mudar o nome…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Outro favorito já tem este nome.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: passo %2 de %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1 parou no passo %2 de %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>Não foi possível enviar o passo seguinte.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>A rede faz uma pergunta por iniciativa própria. Nada mais foi enviado.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>Escreveu algo por si. Nada mais foi enviado.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>A tecla %2 é agora “%3”, não “%1”. Nada mais foi enviado.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Carregar</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Códigos para enviar</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>Não é possível guardar o histórico de códigos: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>ontem %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>hoje %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Escrever o código</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Número ou PIN para %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>Ainda não foi enviado nenhum código</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Apagar histórico</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Os números e PIN não são guardados</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>Mais %1 opções</translation>
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
        <translation>Estado dos códigos</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Voltar a só 4G</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>Permitir 2G e 3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>Não é possível escrever %1: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Ficheiros de texto</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Fechar a procura</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Guardar a conversa…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Procurar na conversa</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Copiar a resposta</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>O que aconteceu</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Enviar de novo</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>Terminar menu</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Códigos numa janela</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>Não é possível ler a resposta a %1</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>A rede respondeu sem texto.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>A resposta a %1 não tem texto</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>Parou %1. Não foi enviado.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>Parou %1. A rede pode tê-lo executado mesmo assim.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>O modem não está pronto.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1 não foi enviado</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>O modem desapareceu. Não se sabe se a rede o executou.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1 foi interrompido</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>A rede não conhece este código, ou ele não é para o seu contrato.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1 foi recusado</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>A rede não respondeu em 30 segundos. Pode ter executado o código mesmo assim.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>Sem resposta a %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>A rede foi informada.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Menu terminado</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Escreva a sua resposta abaixo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Escolha ou escreva abaixo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Escolha uma opção ou escreva a resposta abaixo.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Menu aberto</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>A rede espera pela sua resposta</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Outro programa está a usar o modem.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Outra janela está a consultar.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>À espera da sua vez</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>A maioria das respostas chega em 10 segundos. Cancelar liberta o modem de imediato.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 de %2 segundos</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>À espera da resposta a %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Envie um código ou escolha um abaixo.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 só combina com --send.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable liga-o.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session termina a sessão do outro programa, que pode estar a comprar algo.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>A rede esperava uma resposta a este menu. A sessão foi encerrada.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>Não é possível escrever na saída padrão.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>Nenhum: só o campo de códigos</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>Não há códigos configurados para este cartão SIM. Escreva um código no campo ou escolha a operadora.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Envie um código ou escolha um abaixo.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>Não conhecemos os códigos da sua operadora</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Escolha a sua operadora, e os códigos de saldo e recarga aparecem aqui. Pode digitar códigos sem isso.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>À espera da vez</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Outro programa está a usar o modem. O seu código será enviado quando ele terminar.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Outro programa está a usar códigos</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Os códigos podem ser enviados quando ele terminar. Talvez esteja a comprar algo.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>À procura de um modem</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>Isto demora um momento.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>Sem modem</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Ligue um modem ou acenda-o. Esta página ativa-se sozinha.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 não está ligado</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>O modem escolhido não está ligado</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Ligue-o ou escolha outro modem.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>O modem foi retirado</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Ligue-o de novo. Esta página ativa-se sozinha.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>O modem não funciona</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>O ModemManager desistiu dele. Desligue-o e ligue-o de novo. O registo do ModemManager indica o motivo.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>O barramento de mensagens não está a funcionar</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>O D-Bus do sistema não está acessível, por isso nenhum modem é encontrado.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>O serviço de modem não está a funcionar</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>O ModemManager não está instalado ou foi parado.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>O serviço de modem não responde</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>O ModemManager está a funcionar mas não responde. Aguarde um momento ou reinicie-o.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>Não permitido</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>Este computador não lhe permite usar o modem. O administrador pode autorizar a sua conta.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>Sem SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Coloque um SIM no modem. Alguns modems têm de estar desligados para isso.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>O SIM está bloqueado</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Introduza o PIN para o usar.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>O SIM precisa do PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Demasiados PIN errados. Desbloqueie-o num telefone com o PUK da sua operadora e volte a colocá-lo.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>O modem está desligado</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Ligue-o para o usar. Precisa de um momento para encontrar a rede.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>À procura de uma rede</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>Pode demorar um minuto. Os códigos podem ser enviados assim que a rede for encontrada.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>A rede não aceita este SIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Pergunte à sua operadora se está ativo ou use outro SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>Este modem não pode enviar códigos</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>Não tem USSD. Escolha outro modem ou use um telefone para os códigos.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>Este estado faz parte da demonstração.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>Um administrador cria o ficheiro da primeira linha com esta regra e adiciona a sua conta ao grupo netdev. Depois, inicie a sessão de novo.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Digite isto num terminal, com a palavra-passe de um administrador. Se o serviço não existir, instale primeiro o pacote modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Digite isto num terminal, com a palavra-passe de um administrador.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>O PUK é um número de 8 algarismos que desbloqueia um SIM depois de demasiados PIN errados. Está no cartão em que o SIM veio, e a sua operadora pode indicá-lo. Depois de dez PUK errados, o SIM fica inutilizável.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>Restam %1 tentativas</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>Resta 1 tentativa</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>Introduzir o PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Procurar de novo</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Escolher um modem</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>Como permitir</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>Como iniciar</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>O que é um PUK?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Experimentar a demonstração</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Usar o meu modem</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>Terminá-la</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Escolher a operadora</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Digitar um código</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>Terminar a sessão do outro programa? Talvez esteja a comprar algo.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>Terminar a sessão</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>Não é possível escrever %1. As mensagens novas perdem-se quando o programa termina.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>O ficheiro das mensagens estava danificado. Agora chama-se %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>Não é possível eliminar %1.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Marcar tudo como lido</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Procurar mensagens</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>Por ler %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>Por ler</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>À espera %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>À espera</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · da rede</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Espera a sua resposta</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>Por ler</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>Ou digite uma resposta</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Digite uma resposta</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Responder pode custar dinheiro. Terminar diz à rede que não quer nada.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>Terminar sem responder</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Copiar a mensagem</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Eliminar a mensagem</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>Ainda sem mensagens</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Aqui aparecem as mensagens que a rede envia por si.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>Nenhuma mensagem encontrada</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Escolha uma mensagem para a ler.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Mensagens da rede</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Texto da mensagem</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Mensagem de %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>Espera a sua resposta.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>Tem uma mensagem nova.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Ler</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>Ainda há um menu aberto na rede, mas o seu texto já não é conhecido. Responda ou termine-o.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>O seu saldo é %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Serviços</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Pacotes e opções de %1. Cada um abre na janela de serviços, que mostra o que faz antes de enviar algo.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Pacotes e opções da sua operadora. Cada um abre na janela de serviços, que mostra o que faz antes de enviar algo.</translation>
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
        <translation>para %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>pede um número</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>A sua operadora não tem serviços aqui.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>A rede espera a sua resposta</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Escolha uma ou digite a resposta abaixo.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Digite a sua resposta abaixo.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>Mostrar o PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>O ficheiro com os seus saldos estava danificado. Fica guardado como %1 e foi criado um novo.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>Não é possível guardar os saldos em %1. Ficam disponíveis até o programa fechar.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>Uma versão mais recente do programa escreveu %1. Os saldos ficam disponíveis até o programa fechar.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>Painel USSD</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>Códigos</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>Serviços</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 por ler</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Operador: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Demonstração</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Sinal forte</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Sinal bom</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Sinal fraco</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>Sem sinal</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_PERCENT</source>
        <translation>Sinal %1 %</translation>
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
        <translation>SIM terminado em %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>Mostrar o número do SIM</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>Ocultar o número do SIM</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, %2 por ler</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Modem pronto</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>Nenhum modem em uso</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>À procura de um</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Tudo aqui é inventado. Nenhum modem é usado e nada custa dinheiro.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>Ainda sem códigos do operador</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Algo não está bem</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Os seus códigos podem ser restaurados</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>O ficheiro desapareceu. Há uma cópia de %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>O ficheiro está incompleto. Há uma cópia de %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Eliminar a cópia</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Códigos numa janela</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>J&amp;anela da conta</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>J&amp;anela da conta, pré-pago</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Janela da conta, pós-pag&amp;o</translation>
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
        <translation>&amp;Modem</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Definições</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>So&amp;bre</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>Painel USSD %1. Envia códigos USSD por um modem e mostra as respostas.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Aspeto</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Modem escolhido</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Códigos do operador</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>Nenhum: escreve os códigos</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Determinar o tipo de contrato</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Envia um código uma vez por SIM. Pode custar dinheiro.</translation>
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
        <translation>Escuro</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Tamanho do texto</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>Depois de reiniciar</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Reduzir o movimento</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Segue o sistema</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Mensagens da rede</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>Quando a janela não está à frente</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Mostrar o seu texto</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>Outras pessoas podem lê-lo no ecrã</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Saldo baixo</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Abaixo de %1, quando uma resposta indica o saldo</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>Quando uma resposta indica o saldo</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Montante</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>Ocultar o número do SIM</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Só se mostram os últimos quatro algarismos</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Guardar histórico e saldos</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>Só neste computador, durante 12 meses</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Eliminar tudo</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Eliminar tudo…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Saldos, mensagens, códigos enviados e favoritos</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>Eliminar todos os saldos, mensagens, códigos enviados e favoritos? Não podem ser recuperados.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Três passos, e aqui vê o saldo, envia códigos e compra pacotes.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Modem encontrado</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM pronto</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM terminado em %1, registado numa rede.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Depois o SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>De quem são os códigos a usar?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>Escolhe quando o SIM estiver pronto.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>O seu SIM corresponde a um operador da lista. Pode alterar isto a qualquer momento em Definições.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>O seu SIM corresponde a %1 operadores da lista. Pode alterar isto a qualquer momento em Definições.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>Nenhum operador da lista corresponde ao seu SIM. Pode escrever os códigos.</translation>
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
        <translation>carregamento</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>número próprio</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Sem códigos do operador</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>Escreve os códigos, nada vem predefinido</translation>
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
        <translation>Continuar sem</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Experimentar a demonstração</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Nada é enviado à rede até premir um botão. Os códigos podem custar dinheiro.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>O painel já está aberto. A sua janela está agora à frente e mantém o dispositivo.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>O painel já está aberto. A sua janela está agora à frente e mantém o idioma e o registo.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>pede um texto</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>Termine primeiro o menu.</translation>
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
        <translation>hoje às %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>ontem às %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>último dia</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>resta 1 dia</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>restam %1 dias</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Válido até %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Terminou em %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>terminou</translation>
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
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Saldo baixo</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>Pode ter mudado</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Ainda não consultado</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Consultar de novo</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Consultar agora</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>A consultar… %1 s</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>Termine primeiro o menu.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Ver a resposta</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Resposta a %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Saldo ao longo do tempo</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>Últimos %1 dias</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Consulte de novo noutro dia para ver aqui uma linha.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Gasto %1, recarregado %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>De %1 a %2 em %3 dias, mínimo %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>O meu número</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Copiar o número</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Válido até</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Dados restantes</translation>
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
        <translation>Escolha até %1 códigos e ordene-os.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Descer</translation>
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
        <translation>Ler</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Último conhecido: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, consultado %2. Pode ter mudado desde então.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Consultado %1. Pode ter mudado desde então.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Exportar saldos</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: o nome tem de terminar em .csv ou .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>Não é possível escrever %1: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>O modem não aceitou as outras redes.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Consultar o saldo uma vez por dia</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Envia o código de saldo sozinho, mas não em roaming. O seu operador pode cobrar por isso.</translation>
    </message>
</context>
</TS>
