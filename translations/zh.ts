<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>USSD 代码</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>请输入代码（如 *100#），或菜单选项。</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>充值密码或电话号码:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>清除(&amp;R)</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>正在等待网络回复…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>已发送: </translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>已收到: </translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>请确认</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>要清除全部记录吗？</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>网络未及时回复。</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>没有回复。</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>请稍候…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>发送失败。</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>确定</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>编辑代码</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>双击单元格即可修改；彩色行不可修改。最后两个按钮需要先输入号码，号码会代替 %s。</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: 列表中已有此项，请输入其他内容。</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>要保存更改吗？</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>此文件已损坏，只读取了一部分，因此不会被覆盖。请修复或删除它：
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>无法写入此文件，因此不保存更改：
%s</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>预付费账户</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>后付费账户</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>我的余额</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>更新(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>回复可能需要几秒钟。</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>充值密码</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>充值(&amp;T)</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>在线充值</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>我的号码</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>查询号码(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>运营商服务</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>日流量包</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>购买一天有效的流量包。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>周流量包</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>购买一周有效的流量包。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>月流量包</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>购买一个月有效的流量包。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>开通漫游</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>允许在境外使用网络。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>关闭漫游</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>禁止在境外使用网络。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>开通语音信箱</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>未接来电转到语音信箱。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>关闭语音信箱</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>未接来电不再转到语音信箱。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>请回电</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>免费请对方给您回电。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>余额转账</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>转出部分余额。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>短信天气</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>通过短信订阅城市天气预报。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>短信查资费</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>通过短信查询资费价格。</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>用量提醒</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>余额或流量不足时发短信提醒。</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>电话号码:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>金额:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>城市:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>购买(&amp;B)</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>开通(&amp;O)</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>关闭(&amp;F)</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>订阅(&amp;O)</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>余额</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>查询余额</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>本机号码</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>查询本机号码</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>剩余流量</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>查询剩余流量</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>查询余额有效期</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>主菜单</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>打开运营商菜单</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>流量包</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>查看可购流量包</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>查询漫游状态</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>语音信箱</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>查询语音信箱状态</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>我的资费</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>查询资费套餐</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>充值</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>用所输入的密码充值</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>请回电</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>请所输入的号码回电</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>USSD 面板</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>MENU_NETWORK</source>
        <translation>网络(&amp;N)</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>WINDOW_GENERAL_PAGE</source>
        <translation>USSD 代码(&amp;U)</translation>
    </message>
    <message>
        <source>WINDOW_GENERAL_FRAME</source>
        <translation>在窗口中显示 USSD 代码(&amp;W)</translation>
    </message>
    <message>
        <source>WINDOW_PREPAID</source>
        <translation>预付费(&amp;P)</translation>
    </message>
    <message>
        <source>WINDOW_POSTPAID</source>
        <translation>后付费(&amp;O)</translation>
    </message>
    <message>
        <source>WINDOW_USSD_SMS</source>
        <translation>服务(&amp;V)</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>演示（虚构的网络）(&amp;D)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>打开场景文件(&amp;O)...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>打开场景文件</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>场景文件</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>无法使用该场景文件</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>演示：虚构的网络（%1）</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>来源：调制解调器（%1）</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>无网络</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>信号：%1%</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>信号：未知</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>SIM 卡：%1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>无法读取 SIM 卡号</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>没有设备。</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>设备中没有 SIM 卡。</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>SIM 卡等待输入 PIN 码。</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>设备已关闭。</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>正在搜索网络...</translation>
    </message>
    <message>
        <source>NAME_OPERATOR</source>
        <translation>运营商</translation>
    </message>
    <message>
        <source>NAME_SIGNAL</source>
        <translation>信号强度</translation>
    </message>
    <message>
        <source>NAME_SIM</source>
        <translation>SIM 卡</translation>
    </message>
    <message>
        <source>NAME_SOURCE</source>
        <translation>当前来源</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>缺少插件：没有文件 %1。</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>插件文件 %1 无法作为库加载：%2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>库 %1 不是适用于本程序 Qt 的插件：%2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>插件 %1 已加载，但未提供对象。</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>插件 %1 没有接口 %2。</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>插件 %1 拒绝启动。</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>插件 %1 未提供 USSD 服务（编号 %2）。</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>没有选项 %1。</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>%1 之后必须有值。</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>--send 和 --tour 不能同时使用。</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>--tour 自带设备，不能与 --demo、--scenario 或 --modem 同时使用。</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>代码或回答不能为空，也不能含有控制字符。</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>没有该语言。可用：%1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>请运行 ussd-dashboard --help 查看帮助。</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>没有可用于打开窗口的显示器。--send 代码 和 --tour 文件夹 不需要显示器。</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>USSD 窗口不接受 %1。</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>插件既没有给出回复，也没有报告失败。</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>网络不再等待回答。未发送：%1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>插件没有正确显示其窗口（%1）。</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>历史记录未清除（%1）。</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 张图片和 transcript.txt 位于 %2。</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>用法：ussd-dashboard [选项...]
显示 USSD 插件的窗口和设备状态。

  --send 代码 [回答...]    不打开窗口发送代码，打印回复，并依次回答网络菜单
  --tour 文件夹            无需显示器走遍所有窗口，在文件夹中留下图片和
                           transcript.txt
  --demo                   使用虚构的网络，不发送任何内容
  --scenario 文件          使用该文件的虚构网络
  --modem 标识             使用具有此设备标识 (IMEI) 的调制解调器
  --enable                 用于 --send：调制解调器关闭时将其打开
  --end-foreign-session    用于 --send：先结束另一个程序的代码
  --language 代码          语言，例如 en 或 ar
  --verbose                输出程序和插件的日志
  --log 文件               将日志写入只有您能读取的文件
  --help                   显示本文
  --version                显示程序版本

--send 的返回值：0 每条命令都有回复，1 被拒绝，2 用法有误，3 没有调制解调器或
未就绪，4 未及时回复，5 另一个程序正在使用，6 未获许可，7 菜单未回答，8 输出无法
写入，被中断时为 128 加信号编号。其他情况：全部成功时返回 0，有失败时返回 1，
参数或场景文件有误时返回 2。</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>预付费</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>后付费</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>预付费还是后付费？正在查询…</translation>
    </message>
    <message>
        <source>NAME_PAID_TYPE</source>
        <translation>合约类型</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>没有适用于此 SIM 卡的 USSD 窗口。</translation>
    </message>
    <message>
        <source>RESTORE_CAPTION</source>
        <translation>您自己的 USSD 代码</translation>
    </message>
    <message>
        <source>RESTORE_OFFER</source>
        <translation>保存您自己的 USSD 代码的文件不见了：
%1

它有一份 %2 的副本。要恢复吗？选择“否”将删除副本。</translation>
    </message>
    <message>
        <source>RESTORE_YES</source>
        <translation>是，恢复(&amp;Y)</translation>
    </message>
    <message>
        <source>RESTORE_NO</source>
        <translation>否，删除副本(&amp;N)</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>无法写入 %1。副本仍保留在：%2</translation>
    </message>
    <message>
        <source>RESTORE_OFFER_DAMAGED</source>
        <translation>保存您自己的 USSD 代码的文件不完整：
%1

它有一份 %2 的副本。要恢复吗？不完整的文件会保留在旁边。选择“否”将删除副本。</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>这台计算机上没有字体，因此看不到文字。</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>无法写入 %1。您的选择在程序结束后不会保留。</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>无法写入 %1，因此没有您自己的 USSD 代码的副本。</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>所选语言的文字已损坏：%1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>所选语言的文字缺失：%1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>自动(&amp;A)：第一个调制解调器</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>未找到调制解调器</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1（使用中）</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>调制解调器 %1（不在）</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>调制解调器 %1</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>来源：调制解调器（无）</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>来源：正在查找调制解调器…</translation>
    </message>
    <message>
        <source>ADVICE_NO_BUS</source>
        <translation>无法访问系统消息总线 (D-Bus)，因此找不到调制解调器。请启动 dbus 服务，或在菜单中选择演示。</translation>
    </message>
    <message>
        <source>ADVICE_NO_SERVICE</source>
        <translation>ModemManager 未运行，因此找不到调制解调器。请安装并启动它 (systemctl start ModemManager)，或在菜单中选择演示。</translation>
    </message>
    <message>
        <source>ADVICE_NOT_PERMITTED</source>
        <translation>系统策略 (polkit) 不允许您使用调制解调器。请管理员授予您 org.freedesktop.ModemManager1.Device.Control 和 org.freedesktop.ModemManager1.USSD 权限。</translation>
    </message>
    <message>
        <source>ADVICE_CHOSEN_ABSENT</source>
        <translation>所选调制解调器不在。请连接它，或在菜单中选择另一个。</translation>
    </message>
    <message>
        <source>ADVICE_WRONG_PIN</source>
        <translation>这不是 SIM 卡的 PIN 码。</translation>
    </message>
    <message>
        <source>ADVICE_PUK_NEEDED</source>
        <translation>PIN 码已不能解锁：SIM 卡或调制解调器需要 PUK 码或其他由运营商提供的代码。请用手机或 mmcli 输入。</translation>
    </message>
    <message>
        <source>ADVICE_NO_USSD</source>
        <translation>此调制解调器不能发送 USSD 代码。请在菜单中选择另一个。</translation>
    </message>
    <message>
        <source>ADVICE_MODEM_FAILED</source>
        <translation>ModemManager 已放弃此调制解调器。请拔下再重新连接；原因见 ModemManager 日志。</translation>
    </message>
    <message>
        <source>ADVICE_NO_MODEM</source>
        <translation>没有调制解调器。请连接一个，或在菜单中选择演示。</translation>
    </message>
    <message>
        <source>ADVICE_SIM_MISSING</source>
        <translation>调制解调器中没有 SIM 卡。请插入一张并重新连接调制解调器。</translation>
    </message>
    <message>
        <source>ADVICE_SIM_LOCKED</source>
        <translation>SIM 卡已锁定：请输入 PIN 码。</translation>
    </message>
    <message>
        <source>ADVICE_DISABLED</source>
        <translation>调制解调器已关闭。打开后才能发送代码。</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>SIM 卡 PIN 码</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>SIM 卡已锁定。PIN 码为 4 至 8 位数字，不会被保存。</translation>
    </message>
    <message>
        <source>PIN_LABEL</source>
        <translation>&amp;PIN 码：</translation>
    </message>
    <message>
        <source>PIN_BUTTON</source>
        <translation>输入 PI&amp;N 码…</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>解锁(&amp;U)</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>剩余尝试次数：%1。</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>这是最后一次机会：再输错 SIM 卡将被锁死，只有 PUK 码才能解锁。</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>SIM 卡正在检查 PIN 码…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>PIN 码不对。请重试。</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>无法将 PIN 码发送到 SIM 卡。请重试。</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>SIM 卡未及时应答。请重试。</translation>
    </message>
    <message>
        <source>TEXT_PANEL</source>
        <translation>网络消息</translation>
    </message>
    <message>
        <source>TEXT_AT</source>
        <translation>%1，来自网络：</translation>
    </message>
    <message>
        <source>TEXT_QUESTION</source>
        <translation>网络在等待回答。请在代码栏中输入并发送。</translation>
    </message>
    <message>
        <source>TEXT_UNKNOWN</source>
        <translation>网络中仍有一个菜单打开，但其文字已不可知。请回答，或用代码重新开始。</translation>
    </message>
    <message>
        <source>TEXT_CLOSE</source>
        <translation>关闭消息</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>此日志包含发送的代码和回复，其中有 PIN 码、号码和余额。请勿外传。</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>日志文件 %1 无法使用：%2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>它是符号链接。</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>它不是您自己的文件，或另有名称。</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>--modem 不能与 --demo 或 --scenario 同时使用。</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>运营商代码(&amp;O)…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>这张 SIM 卡属于 %1。余额和充值代码可从运营商列表中获取。</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>余额和充值代码可从运营商列表中获取。有多家运营商符合这张 SIM 卡：请选择。</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>获取(&amp;T)</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>选择(&amp;H)…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>运营商代码</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>这张 SIM 卡（网络 %1）使用哪家运营商的代码？</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>演示的代码</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>使用(&amp;U)</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>CODES_IN_USE</source>
        <translation>现在使用 %1 的代码。</translation>
    </message>
    <message>
        <source>CODES_SHIPPED_IN_USE</source>
        <translation>现在使用演示的代码。</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>无法使用 %1 的代码：%2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>以下文件经手工修改并正在使用：
%1

要为 %2 的代码将其移到一边吗？文件会保留。</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>没有网络已知的 SIM 卡。</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>没有运营商列表。请安装软件包 mobile-broadband-provider-info。</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>配置由 USSD_PLUGIN_LIBRARY_PATH 指定。</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>USSD 面板 – 演示</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>演示：网络是虚构的，不会发送任何内容。</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>演示：%1</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>无调制解调器</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>正在查找调制解调器…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>网络不接受这张 SIM 卡。</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>SIM 卡或调制解调器已锁定。</translation>
    </message>
    <message>
        <source>ADVICE_REGISTRATION_DENIED</source>
        <translation>网络不接受这张 SIM 卡。请向运营商确认它是否已启用，或换一张卡。</translation>
    </message>
    <message>
        <source>ADVICE_SERVICE_SILENT</source>
        <translation>ModemManager 正在运行但没有回应。请稍候，或重新启动它 (systemctl restart ModemManager)。</translation>
    </message>
    <message>
        <source>ADVICE_MODEM_REMOVED</source>
        <translation>调制解调器已拔出。请重新连接。</translation>
    </message>
    <message>
        <source>ADVICE_FOREIGN_SESSION</source>
        <translation>另一个程序正在此调制解调器上使用代码。</translation>
    </message>
    <message>
        <source>DEVICE_ENABLE</source>
        <translation>打开(&amp;W)</translation>
    </message>
    <message>
        <source>DEVICE_LOOK_AGAIN</source>
        <translation>重新查找(&amp;G)</translation>
    </message>
    <message>
        <source>DEVICE_END_SESSION</source>
        <translation>结束(&amp;E)</translation>
    </message>
    <message>
        <source>FOREIGN_CAPTION</source>
        <translation>另一个程序的代码</translation>
    </message>
    <message>
        <source>FOREIGN_QUESTION</source>
        <translation>另一个程序可能正在购买，仍要结束它的会话吗？</translation>
    </message>
    <message>
        <source>COMMAND_PENDING</source>
        <translation>您可以停止等待，但网络仍可能执行该命令。</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>正在等待另一个程序用完调制解调器…</translation>
    </message>
    <message>
        <source>COMMAND_CANCEL</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>网络结束了会话。</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>网络或调制解调器不支持此代码。</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>网络等待过久，结束了会话。</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>网络没有及时回复。</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>网络的回复是空的。</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>网络已回复，但调制解调器无法解码。</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>调制解调器无法发送此命令中的某个字符。</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>没有可以发送代码的调制解调器。</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>调制解调器已关闭。</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>调制解调器没有注册到网络。</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>调制解调器已拔出，或 ModemManager 已结束。</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>您无权用此调制解调器发送代码。</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>另一个程序正在此调制解调器上使用代码。</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>调制解调器只连接了 4G 网络，而网络在 2G 和 3G 上答复代码。</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>命令已取消。</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>网络或调制解调器拒绝了命令。</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>命令没有执行。</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>网络仍可能已执行该命令。</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>网络的最后一条消息：%1</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>%1 只能与 --send 同时使用。</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>--enable 可将其打开。</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>--end-foreign-session 会结束另一个程序的会话，而它可能正在购买。</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>网络在等待对此菜单的回答。会话已结束。</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>无：只有代码栏</translation>
    </message>
    <message>
        <source>CODES_NONE_IN_USE</source>
        <translation>现在不使用任何运营商的代码。请在代码栏中输入代码。</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>尚未为这张 SIM 卡设置代码。请在代码栏中输入代码，或选择运营商。</translation>
    </message>
    <message>
        <source>PAID_DETECT</source>
        <translation>查明 SIM 卡是预付费还是后付费（会发送代码）(&amp;F)</translation>
    </message>
</context>
</TS>
