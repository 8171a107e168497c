<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>USSD-коды</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>Введите код, например *100#, или ответ на меню.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>PIN пополнения или номер:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>&amp;Отправить</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>О&amp;чистить</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>Ожидание ответа сети…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>Отправлено: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>Получено: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>Подтверждение</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>Очистить всю историю?</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>Сеть не ответила вовремя.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>Ответа нет.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>Подождите…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>Не удалось отправить.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>ОК</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>Изменить коды</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>Правка двойным щелчком; цветные строки постоянны. Двум последним кнопкам нужен номер (%s).</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: такая запись уже есть в списке. Введите другую.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>Сохранить изменения?</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>Этот файл повреждён и прочитан не полностью, поэтому он не перезаписывается. Исправьте или удалите его:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>Изменения не сохраняются, так как этот файл недоступен для записи:
%s</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>Предоплаченный счёт</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>Контрактный счёт</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>Мой баланс</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>&amp;Обновить</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>Ответ может занять несколько секунд.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>PIN пополнения</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>&amp;Пополнить</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>Онлайн-оплата</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>Мой номер</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>Узнать &amp;номер</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>Услуги оператора</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>Услуги</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>Интернет, день</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>Подключает пакет интернета на один день.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>Интернет, неделя</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>Подключает пакет интернета на неделю.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>Интернет, месяц</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>Подключает пакет интернета на месяц.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>Включить роуминг</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>Разрешает использовать сети за границей.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>Выключить роуминг</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>Запрещает использовать сети за границей.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>Автоответчик вкл.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>Направляет пропущенные звонки на автоответчик.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>Автоответчик выкл.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>Больше не направляет звонки на автоответчик.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>Перезвони мне</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>Бесплатно просит кого-то перезвонить вам.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>Перевод средств</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>Передаёт часть ваших средств.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>Погода по SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>Заказывает прогноз для города в SMS.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>Тариф по SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>Заказывает цены вашего тарифа в SMS.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>Оповещения</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>Присылает SMS, когда средств или трафика мало.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>Номер телефона:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>Сумма:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>Город:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>&amp;Купить</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>&amp;Включить</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>&amp;Выключить</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>&amp;Отправить</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>&amp;Заказать</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>Показывает ваш баланс</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>Мой номер</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>Показывает ваш номер</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>Остаток ГБ</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>Показывает остаток трафика</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>Срок счёта</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>Показывает срок действия средств</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>Открывает меню оператора</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>Пакеты ГБ</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>Список пакетов трафика</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>Роуминг</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>Показывает, включён ли роуминг</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>Автоответчик</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>Показывает, включён ли автоответчик</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>Мой тариф</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>Показывает ваш тариф</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>Пополнить</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>Пополняет счёт введённым PIN</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>Перезвони</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>Просит введённый номер перезвонить</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>Панель USSD</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>Пока&amp;зать номер SIM</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>&amp;Демонстрация (вымышленная сеть)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>&amp;Открыть файл сценария...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>Открыть файл сценария</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>Файлы сценариев</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>Все файлы</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>Файл сценария нельзя использовать</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>Демонстрация: вымышленная сеть (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>Источник: модем (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>Нет сети</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>Сигнал: %1 %</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>Сигнал: неизвестен</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>SIM-карта: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>Номер SIM-карты не читается</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>Устройства нет.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>В устройстве нет SIM-карты.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>SIM-карта ожидает ввода PIN-кода.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>Устройство выключено.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>Поиск сети...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>Модуль отсутствует: нет файла %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>Файл модуля %1 не загружается как библиотека: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>Библиотека %1 не является модулем для версии Qt этой программы: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>Модуль %1 загружен, но не даёт объекта.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>У модуля %1 нет интерфейса %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>Модуль %1 отказался запускаться.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>Модуль %1 не предоставляет службу USSD (номер %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>Нет параметра %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>После %1 должно стоять значение.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>Лишний аргумент «%1».</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send и --tour нельзя указать вместе.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>У --tour свои устройства, поэтому --demo, --scenario и --modem с ним не указываются.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>Код или ответ не может быть пустым или содержать управляющие символы.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>Такого языка нет. Есть: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>Справка: ussd-dashboard --help</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>Нет экрана, на котором можно открыть окно. Для --send КОД и --tour ПАПКА он не нужен.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>Окно USSD не принимает %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>Модуль не завершил ожидание ни ответом, ни ошибкой.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>Сеть больше не ждёт ответа. Не отправлено: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>Не удаётся создать папку %1.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>Не удаётся записать %1.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>Модуль не показывает своё окно как следует (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>История не очищена (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 изображений и transcript.txt находятся в %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>Использование: ussd-dashboard [ПАРАМЕТР...]
Показывает окна модуля USSD и состояние устройства.

  --send КОД [ОТВЕТ...]    отправить код без окна, вывести ответ сети и по
                           очереди ответить на её меню
  --tour ПАПКА             пройти по всем окнам без экрана; оставляет в папке
                           изображения и transcript.txt
  --export ФАЙЛ            записать сохранённые ответы о балансе
                           в файл .csv или .json
  --demo                   вымышленная сеть; ничего не отправляется
  --scenario ФАЙЛ          вымышленная сеть из этого файла
  --modem ID               использовать модем с этим номером (IMEI)
  --enable                 для --send: включить модем, если он выключен
  --end-foreign-session    для --send: сначала завершить коды другой программы
  --language КОД           язык, например en или ar
  --verbose                выводить журнал программы и модуля
  --log ФАЙЛ               то же в файл, который можете читать только вы
  --help                   этот текст
  --version                версия программы

Код завершения --send: 0 — на все команды получен ответ, 1 — отказ, 2 — неверный
вызов, 3 — нет модема или он не готов, 4 — нет ответа вовремя, 5 — занято другой
программой, 6 — не разрешено, 7 — меню осталось открытым, 8 — вывод не записан,
128 и номер сигнала — прервано. В остальных случаях: 0 — всё удалось, 1 — что-то
не удалось, 2 — неверны аргументы или файл сценария.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>Предоплата</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>Постоплата</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>Предоплата или постоплата? Запрос…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>Для этой SIM-карты нет окон USSD.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>Не удаётся записать %1. Копия остаётся на месте: %2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>На этом компьютере нет шрифтов, поэтому тексты не видны.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>Не удаётся записать %1. Ваш выбор будет забыт после завершения программы.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>Не удаётся записать %1, поэтому копии ваших собственных кодов USSD нет.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>Тексты выбранного языка повреждены: %1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>Нет текстов выбранного языка: %1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>&amp;Автоматически: первый модем</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>Модем не найден</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (используется)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>Модем %1 (отсутствует)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>Модем %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>Источник: модем (нет)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>Источник: поиск модема…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>Введите PIN для SIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>От 4 до 8 цифр. Он передаётся SIM и не сохраняется.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>&amp;Разблокировать</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>Осталось попыток: %1.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>Осталась одна попытка. После ещё одного неверного PIN для SIM понадобится PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>SIM-карта проверяет PIN-код…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>Это был не тот PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>Не удалось передать PIN. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>SIM не ответила вовремя. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>Этот журнал содержит отправленные коды и ответы, а с ними PIN-коды, номера и балансы. Никому его не передавайте.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>Файл журнала %1 использовать нельзя: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>это символическая ссылка.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>это не ваш собственный файл или у него есть второе имя.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem несовместим с --demo и --scenario.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>&amp;Коды оператора…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>Это SIM-карта оператора %1. Коды баланса и пополнения можно взять из списка операторов.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>Коды баланса и пополнения можно взять из списка операторов. К этой SIM-карте подходят несколько: выберите своего.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>&amp;Взять</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>В&amp;ыбрать…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>Коды оператора</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>Чьи коды использовать с этой SIM-картой (сеть %1)?</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>Коды демонстрации</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>&amp;Использовать</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>Коды %1 использовать нельзя: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>Эти файлы изменены вручную и используются:
%1

Отложить их ради кодов %2? Они сохранятся.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>Сеть SIM пока не известна. Как только модем с SIM будет готов, вы сможете выбрать здесь своего оператора.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>У демонстрации свои коды. Чтобы выбрать оператора, используйте свой модем.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>Ваш код</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>Показать в истории</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>Нет свободной кнопки для %1: смотрите историю или избранное на главной.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>Ваши коды сохранены</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>Введите текст в пустую строку, чтобы добавить код.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>Введите код</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>Введите название</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>Нет списка операторов. Установите пакет mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>Конфигурация задана переменной USSD_PLUGIN_LIBRARY_PATH.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>Демонстрация – Панель USSD</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>Демонстрация: сеть вымышлена, ничего не отправляется.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>Демонстрация: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>слабый сигнал</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>постоплата</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>Нет модема</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>Поиск модема…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>Сеть не принимает эту SIM-карту.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>SIM-карта или модем заблокированы.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>Ожидание, пока другая программа закончит работу с модемом…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>Сеть завершила сеанс.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>Сеть или модем не поддерживает этот код.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>Сеть ждала слишком долго и завершила сеанс.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>Сеть не ответила вовремя.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>Сеть прислала пустой ответ.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>Сеть ответила, но модем не смог декодировать ответ.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>Модем не может отправить один из символов этой команды.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>Нет модема, который может отправлять коды.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>Модем выключен.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>Модем не зарегистрирован в сети.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>Модем отключён, или ModemManager завершил работу.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>Вам не разрешено отправлять коды через этот модем.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>Другая программа использует коды на этом модеме.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>Модем использует только 4G, а для кодов здесь нужны 2G или 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>Команда отменена.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>Сеть или модем отклонили команду.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>Команда не выполнена.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>Сеть всё равно могла выполнить команду.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>Последнее сообщение сети: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>Сеть не открыла меню. Больше ничего не отправлено.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>В меню больше нет «%1» на клавише %2. Больше ничего не отправлено.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>Запомнить</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>Название пути:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>Запомнить этот путь…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>Файл избранного был повреждён. Он сохранён как %1, создан новый файл.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>Избранное не удаётся сохранить в %1. Оно хранится до завершения программы.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>Переименовать…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>Такое имя уже есть в избранном.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: шаг %2 из %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>%1: остановлено на шаге %2 из %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>Следующий шаг не удалось отправить.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>Сеть сама задала вопрос. Больше ничего не отправлено.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>Вы сами начали ввод. Больше ничего не отправлено.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>Клавиша %2 теперь «%3», а не «%1». Больше ничего не отправлено.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>Пополнить</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>Коды для отправки</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>Не удаётся сохранить историю кодов: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>вчера %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>сегодня %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>Ввести код</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>Номер или PIN для %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>Коды ещё не отправлялись</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>Удалить историю</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>Номера и PIN не сохраняются</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>Ещё вариантов: %1</translation>
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
        <translation>Состояние кодов</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>Снова только 4G</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>Разрешить 2G и 3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>Не удаётся записать %1: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>Текстовые файлы</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>Закрыть поиск</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>Сохранить переписку…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>Найти в переписке</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>Скопировать ответ</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>Что случилось</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>Отправить снова</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>Закрыть меню</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>Коды в отдельном окне</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>История</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>Ответ на %1 не читается</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>Сеть ответила без текста.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>В ответе на %1 нет текста</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>Вы остановили %1. Код не отправлен.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>Вы остановили %1. Возможно, сеть всё же выполнила код.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>Модем не готов.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>%1: не отправлено</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>Модем пропал. Выполнила ли сеть код, неизвестно.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>%1: прервано</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>Сеть не знает этот код, или он не для вашего тарифа.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>%1: отказано</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>Сеть не ответила за 30 секунд. Возможно, она всё же выполнила код.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>Нет ответа на %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>Сеть об этом знает.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>Меню закрыто</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>Введите ответ ниже.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>Выберите или введите ниже.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>Выберите или введите ответ ниже.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>Меню открыто</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>Сеть ждёт вашего ответа</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>Модем занят другой программой.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>Запрос отправило другое окно.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>Ожидание очереди</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>Обычно ответ приходит за 10 секунд. Отмена сразу освобождает модем.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 из %2 секунд</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>Ожидание ответа на %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>Отправьте код или выберите ниже.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 указывается только вместе с --send.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>Его включает --enable.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session завершает сеанс другой программы, которая, возможно, что-то покупает.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>Сеть ждала ответа на это меню. Сеанс завершён.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>Не удаётся записать стандартный вывод.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>Никакие: только поле для кодов</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>Для этой SIM-карты коды не настроены. Введите код в поле или выберите оператора.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>Отправьте код или выберите его ниже.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>Коды вашего оператора неизвестны</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>Выберите оператора, и здесь появятся его коды баланса и пополнения. Вводить коды можно и без этого.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>Ожидание очереди</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>Модем занят другой программой. Ваш код будет отправлен, когда она закончит.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>Коды использует другая программа</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>Коды можно будет отправлять, когда она закончит. Возможно, она что-то покупает.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>Поиск модема</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>Это займёт немного времени.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>Нет модема</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>Подключите модем или включите его. Страница оживёт сама.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 не подключён</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>Выбранный модем не подключён</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>Подключите его или выберите другой модем.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>Модем отключён</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>Подключите его снова. Страница оживёт сама.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>Модем не работает</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>ModemManager отказался от него. Отключите и снова подключите его. Причина указана в журнале ModemManager.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>Шина сообщений не запущена</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>Системная шина D-Bus недоступна, поэтому модем не найден.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>Служба модемов не запущена</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>ModemManager не установлен или остановлен.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>Служба модемов не отвечает</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>ModemManager запущен, но не отвечает. Подождите немного или перезапустите его.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>Нет разрешения</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>Этот компьютер не разрешает вам использовать модем. Администратор может вам это разрешить.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>Нет SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>Вставьте SIM в модем. Некоторые модемы нужно для этого выключить.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>SIM заблокирована</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>Введите её PIN, чтобы пользоваться ею.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>Для SIM нужен PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>Слишком много неверных PIN. Разблокируйте её в телефоне с помощью PUK от оператора и верните на место.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>Модем выключен</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>Включите его, чтобы пользоваться им. Ему нужно немного времени, чтобы найти сеть.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>Поиск сети</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>Это может занять минуту. Коды можно будет отправлять, как только сеть найдена.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>Сеть не принимает эту SIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>Узнайте у оператора, активна ли она, или используйте другую SIM.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>Этот модем не может отправлять коды</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>В нём нет USSD. Выберите другой модем или отправляйте коды с телефона.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>Это состояние относится к демонстрации.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>Администратор создаёт файл, указанный в первой строке, с этим правилом и добавляет вашу учётную запись в группу netdev. Затем войдите в систему снова.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>Введите это в терминале с паролем администратора. Если такой службы нет, сначала установите пакет modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>Введите это в терминале с паролем администратора.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>PUK — это номер из 8 цифр, который разблокирует SIM после слишком многих неверных PIN. Он указан на карте, в которой была SIM, его может сообщить оператор. После десяти неверных PUK SIM становится непригодной.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>Осталось попыток: %1</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>Осталась 1 попытка</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>Ввести PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>Искать снова</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>Выбрать модем</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>Как это разрешить</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>Как запустить</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>Что такое PUK?</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>Попробовать демонстрацию</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>Использовать мой модем</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>Выбрать оператора</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>Ввести код</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>Завершить сеанс другой программы? Возможно, она что-то покупает.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>Завершить сеанс</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>Не удаётся записать %1. Новые сообщения пропадут, когда программа завершится.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>Файл с сообщениями был повреждён. Теперь он называется %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>Не удаётся удалить %1.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>Отметить все прочитанными</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>Поиск сообщений</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>Новые %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>Новые</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>Ждут %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>Ждут</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1, %2 · от сети</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>Ждёт вашего ответа</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>Не прочитано</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>Или введите ответ</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>Введите ответ</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>Ответ может стоить денег. Если завершить, сеть узнает, что вам ничего не нужно.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>Завершить без ответа</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>Скопировать сообщение</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>Удалить сообщение</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>Сообщений пока нет</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>Здесь появляются сообщения, которые сеть присылает сама.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>Сообщения не найдены</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>Выберите сообщение, чтобы прочитать его.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>Сообщения сети</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>Текст сообщения</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>Сообщение от %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>Оно ждёт вашего ответа.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>У вас новое сообщение.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>Прочитать</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>В сети ещё открыто меню, но его текст больше не известен. Ответьте на него или завершите его.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>Ваш баланс: %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>Услуги</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>Пакеты и переключатели %1. Каждый открывается в окне услуг, которое показывает его действие до отправки.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>Пакеты и переключатели вашего оператора. Каждый открывается в окне услуг, которое показывает его действие до отправки.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>По коду</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>По SMS</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>на %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>запрашивает номер</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>У вашего оператора здесь нет услуг.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>Сеть ждёт вашего ответа</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>Выберите вариант или введите ответ ниже.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>Введите ответ ниже.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>Показать PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>Файл с балансами был повреждён. Он сохранён как %1, создан новый.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>Не удаётся сохранить балансы в %1. Они хранятся до закрытия программы.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>Файл %1 записан более новой версией программы. Балансы хранятся до закрытия программы.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>Панель USSD</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>Коды</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>Услуги</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>непрочитанных: %1</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>Оператор: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>Демонстрация</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>Сильный сигнал</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>Хороший сигнал</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>Слабый сигнал</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>Нет сигнала</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_PERCENT</source>
        <translation>Сигнал %1 %</translation>
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
        <translation>SIM, в конце %1</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>Показать номер SIM</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>Скрыть номер SIM</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1, непрочитанных: %2</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>Модем готов</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>Модем не используется</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>Идёт поиск</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>Здесь всё вымышлено. Модем не используется, и ничто не стоит денег.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>Кодов оператора пока нет</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>Что-то не так</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>Ваши коды можно восстановить</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>Файл с ними пропал. Есть копия от %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>Файл с ними неполон. Есть копия от %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>Удалить копию</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>&amp;Коды в окне</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>Окно с&amp;чёта</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>Окно с&amp;чёта, предоплата</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>Окно счёта, п&amp;остоплата</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>&amp;Изменить коды</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>&amp;Экспорт балансов…</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>&amp;Модем</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>&amp;Настройки</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>О про&amp;грамме</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>Панель USSD %1. Отправляет коды USSD через модем и показывает ответы.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>Модем</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>Выбранный модем</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>Коды оператора</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>Нет: коды вводите сами</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>Определять вид договора</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>Отправляет код один раз для каждой SIM. Это может стоить денег.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>После перезапуска</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>Меньше движения</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>Сообщения сети</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>Когда окно не впереди</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>Показывать их текст</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>Другие могут прочесть его на экране</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>Низкий баланс</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>Ниже %1, когда ответ сообщил баланс</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>Когда ответ сообщил баланс</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>Сумма</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>Скрывать номер SIM</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>Видны только последние четыре цифры</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>Хранить историю и балансы</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>Только на этом компьютере, 12 месяцев</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>Удалить всё</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>Удалить всё…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>Балансы, сообщения, отправленные коды и избранное</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>Удалить все балансы, сообщения, отправленные коды и избранное? Вернуть их нельзя.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>Три шага — и здесь видны баланс, коды и пакеты.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>Модем найден</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>SIM готова</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>SIM, в конце %1, зарегистрирована в сети.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>Затем SIM</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>Чьи коды использовать?</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>Вы выберете, когда SIM будет готова.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>Ваша SIM подходит одному оператору из списка. Это можно изменить в настройках.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>Ваша SIM подходит нескольким операторам из списка (%1). Это можно изменить в настройках.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>В списке нет оператора вашей SIM. Коды можно вводить самому.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>Коды: %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>баланс</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>пополнение</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>свой номер</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>Без кодов оператора</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>Вы вводите коды сами, заготовок нет</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>Использовать %1</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>Использовать</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>Продолжить без них</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>Посмотреть демонстрацию</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>Ничего не отправляется в сеть, пока вы не нажмёте кнопку. Коды могут стоить денег.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>Панель уже запущена. Её окно теперь впереди и сохраняет своё устройство.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>Панель уже запущена. Её окно теперь впереди и сохраняет свой язык и журнал.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>запрашивает текст</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>Сначала завершите меню.</translation>
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
        <translation>сегодня в %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>вчера в %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>последний день</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>остался 1 день</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>осталось дней: %1</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>Действует до %1, %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>Закончился %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>закончился</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>Баланс (вымышленный)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>Запрошен %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>Дней назад: %1</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>Низкий баланс</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>Мог измениться</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>Ещё не запрошен</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>Пополнить</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>Запросить снова</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>Запросить</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>Запрос… %1 с</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>Сначала завершите меню.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>Показать ответ</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>Ответ на %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>Динамика баланса</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>Дней: %1</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>Запросите в другой день, чтобы здесь появилась линия.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>Потрачено %1, пополнено %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>С %1 до %2 за %3 дней, минимум %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>Мой номер</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>Копировать номер</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>Остаток трафика</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>из %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>Выберите до %1 кодов и расположите их по порядку.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>Выше</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>Ниже</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>Номер для «%1»</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>Ответить</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>Читать</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>Последний известный: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1, запрошен %2. С тех пор он мог измениться.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>Запрошен %1. С тех пор он мог измениться.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>Экспорт балансов</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: имя должно оканчиваться на .csv или .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>Не удаётся прочитать %1.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>Не удаётся записать %1: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>Модем не принял другие сети.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>Запрашивать баланс раз в день</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>Сам отправляет код баланса, но не в роуминге. Оператор может взять за это плату.</translation>
    </message>
</context>
</TS>
