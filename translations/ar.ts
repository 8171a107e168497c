<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>USSDUIPlugin</name>
    <!-- general dialog -->
    <message>
        <source>IDS_ADVANCE_USSD</source>
        <translation>رموز USSD</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDTIP</source>
        <translation>أدخل رمزًا مثل &#x200e;*100#&#x200e; أو الرد على القائمة.</translation>
    </message>
    <message>
        <source>IDC_STATIC_USSDNUMTIP</source>
        <translation>رمز الشحن أو رقم الهاتف:</translation>
    </message>
    <message>
        <source>IDS_BUTTON_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDC_BUTTON_CLEARHISTOTY</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>IDC_GENERAL_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_TOP_PROMPT</source>
        <translation>في انتظار رد الشبكة…</translation>
    </message>
    <message>
        <source>IDS_USSD_SEND</source>
        <translation>الصادر: &#x200e;</translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>الوارد: &#x200e;</translation>
    </message>
    <message>
        <source>IDS_STR_PROMPT</source>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>IDS_STR_CLEAR</source>
        <translation>هل تريد مسح السجل بالكامل؟</translation>
    </message>
    <!-- replies -->
    <message>
        <source>USSD_CODE_TIME_OUT</source>
        <translation>لم ترد الشبكة في الوقت المحدد.</translation>
    </message>
    <message>
        <source>USSD_CODE_FAILED</source>
        <translation>لا يوجد رد.</translation>
    </message>
    <message>
        <source>USSD_CODE_WAITTING</source>
        <translation>يرجى الانتظار…</translation>
    </message>
    <message>
        <source>IDS_SMS_SEND_FAILED</source>
        <translation>فشل الإرسال.</translation>
    </message>
    <!-- message boxes -->
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>IDS_BUTTON_OK</source>
        <translation>موافق</translation>
    </message>
    <!-- profile editor -->
    <message>
        <source>IDC_TITLE_EDITCOMMAND</source>
        <translation>تحرير الرموز</translation>
    </message>
    <message>
        <source>IDC_STATIC_CMDTIP</source>
        <translation>انقر نقرًا مزدوجًا فوق خلية لتغييرها؛ الصفوف الملونة ثابتة. يحتاج آخر زرّين إلى رقم يحل محل &#x200e;%s&#x200e;.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVE</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_COMMAND_NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_COMMAND_CODE</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_EXISTTIP</source>
        <translation>%s: هذا الإدخال موجود بالفعل في القائمة. أدخل غيره.</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_SAVETIP</source>
        <translation>هل تريد حفظ التغييرات؟</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_DAMAGEDTIP</source>
        <translation>هذا الملف تالف ولم يُقرأ إلا جزء منه، لذلك لا يُستبدل. أصلحه أو احذفه:
%s</translation>
    </message>
    <message>
        <source>IDC_CMDEDIT_WRITETIP</source>
        <translation>لا تُحفظ التغييرات لأنه لا يمكن الكتابة في هذا الملف:
%s</translation>
    </message>
    <!-- prepaid and postpaid dialog -->
    <message>
        <source>IDS_WINDOW_TETLE_PREPAID</source>
        <translation>حساب الدفع المسبق</translation>
    </message>
    <message>
        <source>IDS_WINDOW_TETLE_POSTPAID</source>
        <translation>حساب الدفع الآجل</translation>
    </message>
    <message>
        <source>IDS_STATIC_MYBALANCE</source>
        <translation>رصيدي</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATA</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>IDS_STATIC_INFO</source>
        <translation>قد يستغرق الرد بضع ثوانٍ.</translation>
    </message>
    <message>
        <source>IDS_STATIC_PIN</source>
        <translation>رمز الشحن</translation>
    </message>
    <message>
        <source>IDS_BUTTON_ACTIVATE</source>
        <translation>شحن</translation>
    </message>
    <message>
        <source>IDS_STATIC_ONLINEREFILL</source>
        <translation>الشحن عبر الإنترنت</translation>
    </message>
    <message>
        <source>IDS_STATIC_MSISSDN</source>
        <translation>رقمي</translation>
    </message>
    <message>
        <source>IDS_BUTTON_UPDATAMSISDN</source>
        <translation>عرض الرقم</translation>
    </message>
    <message>
        <source>IDS_BUTTON_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <!-- USSD-SMS dialog: services -->
    <message>
        <source>IDS_WINDOW_TITLE_SMSUSSD</source>
        <translation>خدمات المشغّل</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_SERVICES</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY</source>
        <translation>بيانات ليوم</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_DAY_INFO</source>
        <translation>شراء باقة بيانات ليوم واحد.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK</source>
        <translation>بيانات لأسبوع</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_WEEK_INFO</source>
        <translation>شراء باقة بيانات لأسبوع واحد.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH</source>
        <translation>بيانات لشهر</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_DATA_MONTH_INFO</source>
        <translation>شراء باقة بيانات لشهر واحد.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON</source>
        <translation>تفعيل التجوال</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_ON_INFO</source>
        <translation>يسمح باستخدام الشبكات في الخارج.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF</source>
        <translation>إيقاف التجوال</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ROAMING_OFF_INFO</source>
        <translation>يمنع استخدام الشبكات في الخارج.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON</source>
        <translation>تفعيل البريد الصوتي</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_ON_INFO</source>
        <translation>يحوّل المكالمات الفائتة إلى البريد الصوتي.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF</source>
        <translation>إيقاف البريد الصوتي</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_VOICE_MAIL_OFF_INFO</source>
        <translation>يوقف تحويل المكالمات إلى البريد الصوتي.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME</source>
        <translation>اتصل بي</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_CALL_ME_INFO</source>
        <translation>يطلب من شخص معاودة الاتصال بك مجانًا.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER</source>
        <translation>تحويل الرصيد</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TRANSFER_INFO</source>
        <translation>يحوّل جزءًا من رصيدك.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER</source>
        <translation>الطقس برسالة SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_WEATHER_INFO</source>
        <translation>يطلب توقعات الطقس لمدينة برسالة قصيرة.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF</source>
        <translation>التعرفة برسالة SMS</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_TARIFF_INFO</source>
        <translation>يطلب أسعار تعرفتك برسالة قصيرة.</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT</source>
        <translation>تنبيهات الاستهلاك</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_ALERT_INFO</source>
        <translation>يرسل لك رسالة قصيرة عندما يقل الرصيد أو البيانات.</translation>
    </message>
    <!-- USSD-SMS dialog: entries and buttons -->
    <message>
        <source>IDS_SMSUSSD_LABEL_NUMBER</source>
        <translation>رقم الهاتف:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_AMOUNT</source>
        <translation>المبلغ:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_LABEL_TOWN</source>
        <translation>المدينة:</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_BUY</source>
        <translation>شراء</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_ON</source>
        <translation>تفعيل</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SWITCH_OFF</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_SMSUSSD_BUTTON_ORDER</source>
        <translation>طلب</translation>
    </message>
    <!-- profiles that ship with the plug-in -->
    <message>
        <source>IDS_PROFILE_BALANCE</source>
        <translation>الرصيد</translation>
    </message>
    <message>
        <source>IDS_PROFILE_BALANCE_DESC</source>
        <translation>يعرض رصيدك</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER</source>
        <translation>رقمي</translation>
    </message>
    <message>
        <source>IDS_PROFILE_OWN_NUMBER_DESC</source>
        <translation>يعرض رقم هاتفك</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT</source>
        <translation>البيانات المتبقية</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_LEFT_DESC</source>
        <translation>يعرض حجم البيانات المتبقية</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY</source>
        <translation>الصلاحية</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VALIDITY_DESC</source>
        <translation>يعرض مدة صلاحية رصيدك</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU</source>
        <translation>القائمة الرئيسية</translation>
    </message>
    <message>
        <source>IDS_PROFILE_MENU_DESC</source>
        <translation>يفتح قائمة المشغّل</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS</source>
        <translation>باقات البيانات</translation>
    </message>
    <message>
        <source>IDS_PROFILE_DATA_PACKS_DESC</source>
        <translation>يعرض باقات البيانات المتاحة</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING</source>
        <translation>التجوال</translation>
    </message>
    <message>
        <source>IDS_PROFILE_ROAMING_DESC</source>
        <translation>يعرض حالة التجوال</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL</source>
        <translation>البريد الصوتي</translation>
    </message>
    <message>
        <source>IDS_PROFILE_VOICE_MAIL_DESC</source>
        <translation>يعرض حالة البريد الصوتي</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF</source>
        <translation>تعرفتي</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TARIFF_DESC</source>
        <translation>يعرض تعرفتك</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP</source>
        <translation>شحن الرصيد</translation>
    </message>
    <message>
        <source>IDS_PROFILE_TOP_UP_DESC</source>
        <translation>يشحن الرصيد بالرمز المُدخل</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME</source>
        <translation>اتصل بي</translation>
    </message>
    <message>
        <source>IDS_PROFILE_CALL_ME_DESC</source>
        <translation>يطلب من الرقم المُدخل معاودة الاتصال</translation>
    </message>
</context>
<context>
    <name>Dashboard</name>
    <message>
        <source>APP_TITLE</source>
        <translation>لوحة USSD</translation>
    </message>
    <message>
        <source>MENU_FILE</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>MENU_NUMBER</source>
        <translation>إظهار رقم ال&amp;شريحة</translation>
    </message>
    <message>
        <source>MENU_LANGUAGE</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>ACTION_QUIT</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>NETWORK_DEFAULT</source>
        <translation>عرض تجريبي (شبكة مُختلَقة)</translation>
    </message>
    <message>
        <source>NETWORK_OPEN</source>
        <translation>فتح ملف سيناريو...</translation>
    </message>
    <message>
        <source>SCENARIO_CHOOSE</source>
        <translation>فتح ملف سيناريو</translation>
    </message>
    <message>
        <source>SCENARIO_FILTER</source>
        <translation>ملفات السيناريو</translation>
    </message>
    <message>
        <source>ALL_FILES</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>SCENARIO_UNUSABLE</source>
        <translation>لا يمكن استخدام ملف السيناريو</translation>
    </message>
    <message>
        <source>SOURCE_SIMULATED</source>
        <translation>عرض تجريبي: شبكة مُختلَقة (%1)</translation>
    </message>
    <message>
        <source>SOURCE_MODEM</source>
        <translation>المصدر: مودم (%1)</translation>
    </message>
    <message>
        <source>OPERATOR_NONE</source>
        <translation>لا توجد شبكة</translation>
    </message>
    <message>
        <source>SIGNAL_PERCENT</source>
        <translation>الإشارة: %1%</translation>
    </message>
    <message>
        <source>SIGNAL_UNKNOWN</source>
        <translation>الإشارة: غير معروفة</translation>
    </message>
    <message>
        <source>SIM_IMSI</source>
        <translation>بطاقة SIM&#x200f;: %1</translation>
    </message>
    <message>
        <source>SIM_WITHOUT_IMSI</source>
        <translation>بطاقة SIM بلا رقم مقروء</translation>
    </message>
    <message>
        <source>STATE_ABSENT</source>
        <translation>لا يوجد جهاز.</translation>
    </message>
    <message>
        <source>STATE_SIM_MISSING</source>
        <translation>لا توجد بطاقة SIM في الجهاز.</translation>
    </message>
    <message>
        <source>STATE_SIM_LOCKED</source>
        <translation>بطاقة SIM تنتظر رمز PIN.</translation>
    </message>
    <message>
        <source>STATE_DISABLED</source>
        <translation>الجهاز متوقف عن العمل.</translation>
    </message>
    <message>
        <source>STATE_SEARCHING</source>
        <translation>جارٍ البحث عن شبكة...</translation>
    </message>
    <message>
        <source>PLUGIN_FILE_MISSING</source>
        <translation>الملحق مفقود: لا يوجد ملف %1.</translation>
    </message>
    <message>
        <source>PLUGIN_NOT_A_LIBRARY</source>
        <translation>لا يمكن تحميل ملف الملحق %1 كمكتبة: %2</translation>
    </message>
    <message>
        <source>PLUGIN_WRONG_BUILD</source>
        <translation>المكتبة %1 ليست ملحقًا لنسخة Qt في هذا البرنامج: %2</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INSTANCE</source>
        <translation>تم تحميل الملحق %1 لكنه لا يقدّم أي كائن.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_INTERFACE</source>
        <translation>لا يملك الملحق %1 الواجهة %2.</translation>
    </message>
    <message>
        <source>PLUGIN_INIT_FAILED</source>
        <translation>رفض الملحق %1 أن يبدأ.</translation>
    </message>
    <message>
        <source>PLUGIN_NO_SERVICE</source>
        <translation>لا يقدّم الملحق %1 خدمة USSD (رقم %2).</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_OPTION</source>
        <translation>لا يوجد خيار %1.</translation>
    </message>
    <message>
        <source>CLI_MISSING_VALUE</source>
        <translation>يجب أن يتبع %1 قيمة.</translation>
    </message>
    <message>
        <source>CLI_UNEXPECTED</source>
        <translation>الوسيط "%1" غير متوقع.</translation>
    </message>
    <message>
        <source>CLI_CONFLICT</source>
        <translation>لا يمكن الجمع بين --send و --tour.</translation>
    </message>
    <message>
        <source>CLI_TOUR_SCENARIO</source>
        <translation>يأتي ‎--tour‎ بأجهزته الخاصة، فلا يُستخدم معه ‎--demo‎ ولا ‎--scenario‎ ولا ‎--modem‎.</translation>
    </message>
    <message>
        <source>CLI_BAD_COMMAND</source>
        <translation>يجب ألا يكون الرمز أو الرد فارغًا وألا يحتوي على أحرف تحكم.</translation>
    </message>
    <message>
        <source>CLI_UNKNOWN_LANGUAGE</source>
        <translation>لا توجد هذه اللغة. المتاح: %1</translation>
    </message>
    <message>
        <source>CLI_TRY_HELP</source>
        <translation>للمساعدة: ussd-dashboard --help</translation>
    </message>
    <message>
        <source>CLI_NO_DISPLAY</source>
        <translation>لا توجد شاشة لفتح نافذة عليها. لا يحتاج --send رمز و --tour مجلد إلى شاشة.</translation>
    </message>
    <message>
        <source>SEND_NOT_TAKEN</source>
        <translation>لا تقبل نافذة USSD %1.</translation>
    </message>
    <message>
        <source>SEND_NO_ANSWER</source>
        <translation>لم ينهِ الملحق الانتظار لا برد ولا بخطأ.</translation>
    </message>
    <message>
        <source>SEND_NOT_ASKED</source>
        <translation>لم تعد الشبكة تنتظر ردًا. لم يُرسل: %1</translation>
    </message>
    <message>
        <source>TOUR_NO_FOLDER</source>
        <translation>لا يمكن إنشاء المجلد %1.</translation>
    </message>
    <message>
        <source>TOUR_NOT_WRITTEN</source>
        <translation>لا يمكن كتابة %1.</translation>
    </message>
    <message>
        <source>TOUR_NO_WINDOW</source>
        <translation>لا يعرض الملحق نافذته كما ينبغي (%1).</translation>
    </message>
    <message>
        <source>TOUR_NOT_CLEARED</source>
        <translation>لم يُمسح السجل (%1).</translation>
    </message>
    <message>
        <source>TOUR_DONE</source>
        <translation>%1 من الصور وملف transcript.txt في %2.</translation>
    </message>
    <message>
        <source>CLI_HELP</source>
        <translation>الاستخدام: ussd-dashboard [خيار...]
يعرض نوافذ ملحق USSD وحالة الجهاز.

  --send رمز [رد...]       إرسال الرمز دون نافذة وطباعة الرد، ثم الرد على
                           قوائم الشبكة بالترتيب
  --tour مجلد              المرور على كل النوافذ دون شاشة، مع ترك صور
                           وملف transcript.txt في المجلد
  --export ملف             كتابة الردود المحفوظة عن الأرصدة في
                           ملف ‎.csv أو ‎.json
  --demo                   استخدام شبكة مُختلَقة دون إرسال أي شيء
  --scenario ملف           استخدام الشبكة المُختلَقة في هذا الملف
  --modem معرّف            استخدام المودم ذي هذا المعرّف (IMEI)
  --enable                 مع ‎--send‎: تشغيل المودم إن كان متوقفًا
  --end-foreign-session    مع ‎--send‎: إنهاء رموز برنامج آخر أولًا
  --language رمز           اللغة، مثل en أو ar
  --verbose                كتابة سجل البرنامج والملحق
  --log ملف                السجل نفسه في ملف لا يقرأه سواك
  --help                   هذا النص
  --version                إصدار البرنامج

رمز إنهاء ‎--send‎ هو 0 إذا جاء رد على كل أمر، و1 عند الرفض، و2 عند خطأ في
الاستخدام، و3 إذا لم يوجد مودم أو لم يكن جاهزًا، و4 إذا لم يأت رد في الوقت
المحدد، و5 إذا كان برنامج آخر يستخدمه، و6 إذا لم يُسمح بذلك، و7 إذا بقيت قائمة
مفتوحة، و8 إذا تعذّرت كتابة الخرج، و128 مع رقم الإشارة عند المقاطعة. وفي سوى
ذلك رمز الإنهاء 0 عند النجاح، و1 عند الفشل، و2 إذا كانت الوسائط أو ملف
السيناريو غير صحيحة.</translation>
    </message>
    <message>
        <source>PAID_PREPAID</source>
        <translation>مسبق الدفع</translation>
    </message>
    <message>
        <source>PAID_POSTPAID</source>
        <translation>آجل الدفع</translation>
    </message>
    <message>
        <source>PAID_ASKING</source>
        <translation>مسبق الدفع أم آجل؟ جارٍ السؤال…</translation>
    </message>
    <message>
        <source>WINDOWS_NONE</source>
        <translation>لا توجد نافذة USSD لبطاقة SIM هذه.</translation>
    </message>
    <message>
        <source>RESTORE_FAILED</source>
        <translation>لا يمكن كتابة &#x200e;%1&#x200e;. تبقى النسخة في مكانها: &#x200e;%2</translation>
    </message>
    <message>
        <source>NO_FONTS</source>
        <translation>لا توجد خطوط على هذا الحاسوب، ولذلك لا تظهر النصوص.</translation>
    </message>
    <message>
        <source>SETTINGS_NOT_SAVED</source>
        <translation>تتعذر كتابة &#x200e;%1&#x200e;. ما تختاره يُنسى عند انتهاء البرنامج.</translation>
    </message>
    <message>
        <source>COPY_NOT_WRITTEN</source>
        <translation>تتعذر كتابة &#x200e;%1&#x200e;، ولذلك لا توجد نسخة من رموز USSD الخاصة بك.</translation>
    </message>
    <message>
        <source>LANGUAGE_DAMAGED</source>
        <translation>نصوص اللغة المختارة تالفة: &#x200e;%1</translation>
    </message>
    <message>
        <source>LANGUAGE_MISSING</source>
        <translation>نصوص اللغة المختارة مفقودة: &#x200e;%1</translation>
    </message>
    <message>
        <source>NETWORK_AUTOMATIC</source>
        <translation>تلقائي: أول مودم</translation>
    </message>
    <message>
        <source>NETWORK_NO_MODEM</source>
        <translation>لم يُعثر على مودم</translation>
    </message>
    <message>
        <source>NETWORK_IN_USE</source>
        <translation>%1 (قيد الاستخدام)</translation>
    </message>
    <message>
        <source>NETWORK_ABSENT_MODEM</source>
        <translation>المودم ‎%1‎ (غير موجود)</translation>
    </message>
    <message>
        <source>NETWORK_UNNAMED_MODEM</source>
        <translation>المودم ‎%1‎</translation>
    </message>
    <message>
        <source>SOURCE_MODEM_NONE</source>
        <translation>المصدر: مودم (لا يوجد)</translation>
    </message>
    <message>
        <source>SOURCE_LOOKING</source>
        <translation>المصدر: جارٍ البحث عن مودم…</translation>
    </message>
    <message>
        <source>PIN_CAPTION</source>
        <translation>أدخل PIN الخاص بـSIM</translation>
    </message>
    <message>
        <source>PIN_QUESTION</source>
        <translation>من 4 إلى 8 خانات. يُرسل إلى SIM ولا يُحفظ.</translation>
    </message>
    <message>
        <source>PIN_OK</source>
        <translation>فتح القفل</translation>
    </message>
    <message>
        <source>PIN_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>PIN_TRIES</source>
        <translation>المحاولات المتبقية: %1.</translation>
    </message>
    <message>
        <source>PIN_LAST_TRY</source>
        <translation>بقيت محاولة واحدة. بعد PIN خاطئ آخر ستحتاج SIM إلى PUK.</translation>
    </message>
    <message>
        <source>PIN_CHECKING</source>
        <translation>بطاقة SIM تتحقق من الرمز…</translation>
    </message>
    <message>
        <source>PIN_WRONG</source>
        <translation>لم يكن هذا هو PIN.</translation>
    </message>
    <message>
        <source>PIN_NOT_SENT</source>
        <translation>تعذر إرسال PIN إلى SIM. حاول مجددًا.</translation>
    </message>
    <message>
        <source>PIN_NO_ANSWER</source>
        <translation>لم تستجب SIM في الوقت المناسب. حاول مجددًا.</translation>
    </message>
    <message>
        <source>LOG_HOLDS</source>
        <translation>يحتوي هذا السجل على الرموز المرسلة والردود، ومعها رموز PIN وأرقام وأرصدة. احتفظ به لنفسك.</translation>
    </message>
    <message>
        <source>LOG_UNUSABLE</source>
        <translation>لا يمكن استخدام ملف السجل ‎%1‎: %2</translation>
    </message>
    <message>
        <source>LOG_IS_LINK</source>
        <translation>إنه وصلة رمزية.</translation>
    </message>
    <message>
        <source>LOG_NOT_OWN</source>
        <translation>إنه ليس ملفك الخاص أو له اسم ثانٍ.</translation>
    </message>
    <message>
        <source>CLI_MODEM_SCENARIO</source>
        <translation>لا يجتمع ‎--modem‎ مع ‎--demo‎ ولا مع ‎--scenario‎.</translation>
    </message>
    <message>
        <source>CODES_MENU</source>
        <translation>رموز المشغّل…</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_ONE</source>
        <translation>بطاقة SIM هذه من %1. يمكن أخذ رموز الرصيد والتعبئة من قائمة المشغّلين.</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_SEVERAL</source>
        <translation>يمكن أخذ رموز الرصيد والتعبئة من قائمة المشغّلين. يناسب هذه البطاقة أكثر من مشغّل: اختر مشغّلك.</translation>
    </message>
    <message>
        <source>CODES_TAKE</source>
        <translation>أخذها</translation>
    </message>
    <message>
        <source>CODES_CHOOSE</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>CODES_NOT_NOW</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>CODES_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>CODES_CAPTION</source>
        <translation>رموز المشغّل</translation>
    </message>
    <message>
        <source>CODES_QUESTION</source>
        <translation>رموز أي مشغّل تُستخدم مع بطاقة SIM هذه (الشبكة %1)؟</translation>
    </message>
    <message>
        <source>CODES_SHIPPED</source>
        <translation>رموز العرض التجريبي</translation>
    </message>
    <message>
        <source>CODES_OK</source>
        <translation>استخدام</translation>
    </message>
    <message>
        <source>CODES_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>CODES_FAILED</source>
        <translation>لا يمكن استخدام رموز %1: %2</translation>
    </message>
    <message>
        <source>CODES_CHANGED</source>
        <translation>هذه الملفات عُدّلت يدويًا وهي قيد الاستخدام:
‎%1‎

هل تُوضع جانبًا من أجل رموز %2؟ ستبقى محفوظة.</translation>
    </message>
    <message>
        <source>CODES_NO_SIM</source>
        <translation>شبكة بطاقة SIM غير معروفة بعد. حالما يصبح مودم به بطاقة SIM جاهزًا، يمكنك اختيار مشغّلك هنا.</translation>
    </message>
    <message>
        <source>CODES_DEMONSTRATION</source>
        <translation>للعرض التوضيحي رموزه الخاصة. لاختيار مشغّلك، استخدم مودمك.</translation>
    </message>
    <message>
        <source>HISTORY_OWN</source>
        <translation>رمزك</translation>
    </message>
    <message>
        <source>BANNER_SAVED_SHOW</source>
        <translation>عرض في السجل</translation>
    </message>
    <message>
        <source>BANNER_SAVED_TEXT</source>
        <translation>لا يوجد زر شاغر لـ %1: انظر السجل أو المفضلة في الرئيسية.</translation>
    </message>
    <message>
        <source>BANNER_SAVED</source>
        <translation>حُفظت رموزك</translation>
    </message>
    <message>
        <source>EDITOR_HINT</source>
        <translation>اكتب في صف فارغ لإضافة رمز.</translation>
    </message>
    <message>
        <source>EDITOR_CODE_HINT</source>
        <translation>اكتب رمزًا</translation>
    </message>
    <message>
        <source>EDITOR_NAME_HINT</source>
        <translation>اكتب اسمًا</translation>
    </message>
    <message>
        <source>CODES_NO_LIST</source>
        <translation>لا توجد قائمة مشغّلين. ثبّت الحزمة ‎mobile-broadband-provider-info‎.</translation>
    </message>
    <message>
        <source>CODES_CHOSEN_OUTSIDE</source>
        <translation>الإعداد محدد بواسطة ‎USSD_PLUGIN_LIBRARY_PATH‎.</translation>
    </message>
    <message>
        <source>APP_TITLE_DEMONSTRATION</source>
        <translation>عرض توضيحي – لوحة USSD</translation>
    </message>
    <message>
        <source>DEMONSTRATION_NOTE</source>
        <translation>عرض تجريبي: الشبكة مُختلَقة ولا يُرسل شيء.</translation>
    </message>
    <message>
        <source>NETWORK_DEMONSTRATION</source>
        <translation>عرض تجريبي: %1</translation>
    </message>
    <message>
        <source>NETWORK_WEAK_SIGNAL</source>
        <translation>إشارة ضعيفة</translation>
    </message>
    <message>
        <source>NETWORK_POSTPAID</source>
        <translation>آجل الدفع</translation>
    </message>
    <message>
        <source>OPERATOR_NO_MODEM</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>STATE_LOOKING</source>
        <translation>جارٍ البحث عن مودم…</translation>
    </message>
    <message>
        <source>STATE_DENIED</source>
        <translation>لا تقبل الشبكة بطاقة SIM هذه.</translation>
    </message>
    <message>
        <source>STATE_BLOCKED</source>
        <translation>بطاقة SIM أو المودم مقفل.</translation>
    </message>
    <message>
        <source>COMMAND_WAITS_FOR_TURN</source>
        <translation>في انتظار أن يفرغ برنامج آخر من المودم…</translation>
    </message>
    <message>
        <source>FAILURE_ENDED_BY_NETWORK</source>
        <translation>أنهت الشبكة الجلسة.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_SUPPORTED</source>
        <translation>لا تدعم الشبكة أو المودم هذا الرمز.</translation>
    </message>
    <message>
        <source>FAILURE_NETWORK_TIMEOUT</source>
        <translation>انتظرت الشبكة طويلًا فأنهت الجلسة.</translation>
    </message>
    <message>
        <source>FAILURE_NO_ANSWER</source>
        <translation>لم ترد الشبكة في الوقت المحدد.</translation>
    </message>
    <message>
        <source>FAILURE_EMPTY_REPLY</source>
        <translation>أرسلت الشبكة ردًا فارغًا.</translation>
    </message>
    <message>
        <source>FAILURE_UNDECODABLE</source>
        <translation>ردّت الشبكة، لكن المودم لم يستطع فك ترميز الرد.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_ENCODABLE</source>
        <translation>لا يستطيع المودم إرسال أحد أحرف هذا الأمر.</translation>
    </message>
    <message>
        <source>FAILURE_NO_DEVICE</source>
        <translation>لا يوجد مودم يستطيع إرسال الرموز.</translation>
    </message>
    <message>
        <source>FAILURE_DISABLED</source>
        <translation>المودم متوقف.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_REGISTERED</source>
        <translation>المودم غير مسجّل في أي شبكة.</translation>
    </message>
    <message>
        <source>FAILURE_DEVICE_LOST</source>
        <translation>أُزيل المودم، أو توقف ‎ModemManager‎.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_PERMITTED</source>
        <translation>ليس مسموحًا لك بإرسال الرموز عبر هذا المودم.</translation>
    </message>
    <message>
        <source>FAILURE_IN_USE</source>
        <translation>يستخدم برنامج آخر رموزًا على هذا المودم.</translation>
    </message>
    <message>
        <source>FAILURE_ON_LTE</source>
        <translation>المودم يستخدم 4G فقط، والرموز تحتاج هنا إلى 2G أو 3G.</translation>
    </message>
    <message>
        <source>FAILURE_CANCELLED</source>
        <translation>أُلغي الأمر.</translation>
    </message>
    <message>
        <source>FAILURE_REFUSED</source>
        <translation>رفضت الشبكة أو المودم الأمر.</translation>
    </message>
    <message>
        <source>FAILURE_NOT_CARRIED_OUT</source>
        <translation>لم يُنفَّذ الأمر.</translation>
    </message>
    <message>
        <source>FAILURE_MAYBE_CARRIED_OUT</source>
        <translation>ربما نفّذت الشبكة الأمر رغم ذلك.</translation>
    </message>
    <message>
        <source>FAILURE_CLOSING_TEXT</source>
        <translation>آخر رسالة من الشبكة: %1</translation>
    </message>
    <message>
        <source>CHAIN_NO_MENU</source>
        <translation>لم تفتح الشبكة أي قائمة. لم يُرسل شيء آخر.</translation>
    </message>
    <message>
        <source>CHAIN_CHANGED</source>
        <translation>لم تعد القائمة تعرض «%1» على المفتاح %2. لم يُرسل شيء آخر.</translation>
    </message>
    <message>
        <source>CHAIN_SAVE</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>CHAIN_NAME</source>
        <translation>اسم المسار:</translation>
    </message>
    <message>
        <source>CHAIN_KEEP</source>
        <translation>حفظ هذا المسار…</translation>
    </message>
    <message>
        <source>FAVOURITES_DAMAGED</source>
        <translation>كان ملف المفضّلة تالفًا. حُفظ باسم %1 وبُدئ ملف جديد.</translation>
    </message>
    <message>
        <source>FAVOURITES_NOT_STORED</source>
        <translation>تعذّر حفظ المفضّلة في %1. تبقى حتى ينتهي البرنامج.</translation>
    </message>
    <message>
        <source>CHAIN_DELETE</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>CHAIN_RENAME</source>
        <translation>إعادة تسمية…</translation>
    </message>
    <message>
        <source>CHAIN_NAME_IN_USE</source>
        <translation>يوجد مفضّل آخر بهذا الاسم.</translation>
    </message>
    <message>
        <source>CHAIN_PROGRESS</source>
        <translation>%1: الخطوة %2 من %3</translation>
    </message>
    <message>
        <source>CHAIN_STOPPED_AT</source>
        <translation>توقف %1 عند الخطوة %2 من %3</translation>
    </message>
    <message>
        <source>CHAIN_NOT_SENT</source>
        <translation>تعذّر إرسال الخطوة التالية.</translation>
    </message>
    <message>
        <source>CHAIN_ASKED</source>
        <translation>تسأل الشبكة شيئًا من تلقاء نفسها. لم يُرسل شيء آخر.</translation>
    </message>
    <message>
        <source>CHAIN_TYPED</source>
        <translation>لقد كتبت شيئًا بنفسك. لم يُرسل شيء آخر.</translation>
    </message>
    <message>
        <source>CHAIN_REPLACED</source>
        <translation>المفتاح %2 هو الآن «%3» وليس «%1». لم يُرسل شيء آخر.</translation>
    </message>
    <message>
        <source>SHEET_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>SHEET_TOP_UP</source>
        <translation>شحن الرصيد</translation>
    </message>
    <message>
        <source>SHEET_CODES</source>
        <translation>رموز للإرسال</translation>
    </message>
    <message>
        <source>HISTORY_NOT_WRITTEN</source>
        <translation>يتعذر حفظ سجل الرموز: %1</translation>
    </message>
    <message>
        <source>HISTORY_YESTERDAY</source>
        <translation>أمس %1</translation>
    </message>
    <message>
        <source>HISTORY_TODAY</source>
        <translation>اليوم %1</translation>
    </message>
    <message>
        <source>HISTORY_TYPE</source>
        <translation>كتابة الرمز</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER</source>
        <translation>الرقم أو رمز PIN لـ %1:</translation>
    </message>
    <message>
        <source>HISTORY_NUMBER_TITLE</source>
        <translation>الرقم</translation>
    </message>
    <message>
        <source>HISTORY_EMPTY</source>
        <translation>لم يُرسل أي رمز بعد</translation>
    </message>
    <message>
        <source>HISTORY_DELETE</source>
        <translation>حذف السجل</translation>
    </message>
    <message>
        <source>HISTORY_NOT_KEPT</source>
        <translation>لا تُحفظ الأرقام ورموز PIN</translation>
    </message>
    <message>
        <source>CHOICE_MORE_NAME</source>
        <translation>%1 خيارات أخرى</translation>
    </message>
    <message>
        <source>CHOICE_MORE</source>
        <translation>+%1</translation>
    </message>
    <message>
        <source>CHOICE_NAME</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>STRIP_NAME</source>
        <translation>حالة الرموز</translation>
    </message>
    <message>
        <source>STRIP_ONLY_4G</source>
        <translation>العودة إلى 4G فقط</translation>
    </message>
    <message>
        <source>STRIP_ALLOW_OLDER</source>
        <translation>السماح بـ 2G و3G</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FAILED</source>
        <translation>تتعذر الكتابة في %1: %2</translation>
    </message>
    <message>
        <source>STRIP_SAVE_FILTER</source>
        <translation>ملفات نصية</translation>
    </message>
    <message>
        <source>STRIP_FIND_CLOSE</source>
        <translation>إغلاق البحث</translation>
    </message>
    <message>
        <source>STRIP_FIND_PREVIOUS</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>STRIP_FIND_NEXT</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>STRIP_FIND_NONE</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>STRIP_FIND_COUNT</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>STRIP_MORE</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>STRIP_SAVE</source>
        <translation>حفظ النص…</translation>
    </message>
    <message>
        <source>STRIP_FIND</source>
        <translation>البحث في النص</translation>
    </message>
    <message>
        <source>STRIP_COPY</source>
        <translation>نسخ الرد</translation>
    </message>
    <message>
        <source>STRIP_DISMISS</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>STRIP_WHAT_HAPPENED</source>
        <translation>ماذا حدث</translation>
    </message>
    <message>
        <source>STRIP_SEND_AGAIN</source>
        <translation>إرسال مجددًا</translation>
    </message>
    <message>
        <source>STRIP_END</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>STRIP_END_MENU</source>
        <translation>إنهاء القائمة</translation>
    </message>
    <message>
        <source>STRIP_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>STRIP_OWN_WINDOW</source>
        <translation>الرموز في نافذة</translation>
    </message>
    <message>
        <source>STRIP_HISTORY</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>STRIP_UNREADABLE</source>
        <translation>تعذرت قراءة الرد على %1</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY_TEXT</source>
        <translation>ردت الشبكة دون نص.</translation>
    </message>
    <message>
        <source>STRIP_EMPTY_REPLY</source>
        <translation>لا نص في الرد على %1</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_UNSENT_TEXT</source>
        <translation>أوقفت %1. لم يُرسل.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED_TEXT</source>
        <translation>أوقفت %1. ربما نفذته الشبكة مع ذلك.</translation>
    </message>
    <message>
        <source>STRIP_CANCELLED</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT_TEXT</source>
        <translation>المودم ليس جاهزًا.</translation>
    </message>
    <message>
        <source>STRIP_NOT_SENT</source>
        <translation>لم يُرسل %1</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF_TEXT</source>
        <translation>اختفى المودم. لا يُعرف هل نفذته الشبكة.</translation>
    </message>
    <message>
        <source>STRIP_BROKEN_OFF</source>
        <translation>انقطع %1</translation>
    </message>
    <message>
        <source>STRIP_REFUSED_TEXT</source>
        <translation>لا تعرف الشبكة هذا الرمز، أو أنه ليس لعقدك.</translation>
    </message>
    <message>
        <source>STRIP_REFUSED</source>
        <translation>رُفض %1</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY_TEXT</source>
        <translation>لم ترد الشبكة خلال 30 ثانية. ربما نفذت الرمز مع ذلك.</translation>
    </message>
    <message>
        <source>STRIP_NO_REPLY</source>
        <translation>لا رد على %1</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED_TEXT</source>
        <translation>أُبلغت الشبكة بذلك.</translation>
    </message>
    <message>
        <source>STRIP_MENU_ENDED</source>
        <translation>انتهت القائمة</translation>
    </message>
    <message>
        <source>STRIP_MENU_TYPE</source>
        <translation>اكتب ردك أدناه.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE_NARROW</source>
        <translation>اختر أو اكتب أدناه.</translation>
    </message>
    <message>
        <source>STRIP_MENU_CHOOSE</source>
        <translation>اختر ردًا أو اكتبه أدناه.</translation>
    </message>
    <message>
        <source>STRIP_MENU_NARROW</source>
        <translation>القائمة مفتوحة</translation>
    </message>
    <message>
        <source>STRIP_MENU</source>
        <translation>الشبكة تنتظر ردك</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_PROGRAM</source>
        <translation>برنامج آخر يستخدم المودم.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED_WINDOW</source>
        <translation>نافذة أخرى تستعلم الآن.</translation>
    </message>
    <message>
        <source>STRIP_QUEUED</source>
        <translation>في انتظار دوره</translation>
    </message>
    <message>
        <source>STRIP_WAITING_TEXT</source>
        <translation>تصل معظم الردود خلال 10 ثوانٍ. الإلغاء يحرر المودم فورًا.</translation>
    </message>
    <message>
        <source>STRIP_SECONDS</source>
        <translation>%1 من %2 ثانية</translation>
    </message>
    <message>
        <source>STRIP_WAITING</source>
        <translation>في انتظار الرد على %1</translation>
    </message>
    <message>
        <source>STRIP_READY_TEXT</source>
        <translation>أرسل رمزًا أو اختر واحدًا أدناه.</translation>
    </message>
    <message>
        <source>STRIP_READY</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>CLI_ONLY_SEND</source>
        <translation>لا يُستخدم %1 إلا مع ‎--send‎.</translation>
    </message>
    <message>
        <source>SEND_ENABLE_HINT</source>
        <translation>يشغّله الخيار ‎--enable‎.</translation>
    </message>
    <message>
        <source>SEND_END_HINT</source>
        <translation>ينهي ‎--end-foreign-session‎ جلسة البرنامج الآخر، الذي قد يكون بصدد شراء شيء.</translation>
    </message>
    <message>
        <source>SEND_MENU_OPEN</source>
        <translation>كانت الشبكة تنتظر جوابًا عن هذه القائمة. أُنهيت الجلسة.</translation>
    </message>
    <message>
        <source>SEND_NOT_WRITTEN</source>
        <translation>تعذّرت الكتابة إلى الخرج القياسي.</translation>
    </message>
    <message>
        <source>CODES_NONE</source>
        <translation>لا شيء: حقل الرموز وحده</translation>
    </message>
    <message>
        <source>CODES_PROPOSE_NONE</source>
        <translation>لا رموز معدّة لهذه البطاقة. اكتب رمزًا في الحقل أو اختر المشغّل.</translation>
    </message>
    <message>
        <source>DEVICE_READY</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>DEVICE_READY_TEXT</source>
        <translation>أرسل رمزًا أو اختر رمزًا أدناه.</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN</source>
        <translation>رموز مشغّل شبكتك غير معروفة</translation>
    </message>
    <message>
        <source>DEVICE_CODES_UNKNOWN_TEXT</source>
        <translation>اختر مشغّل شبكتك لتظهر هنا رموز الرصيد والشحن. يمكنك كتابة الرموز دون ذلك.</translation>
    </message>
    <message>
        <source>DEVICE_TURN</source>
        <translation>في انتظار الدور</translation>
    </message>
    <message>
        <source>DEVICE_TURN_TEXT</source>
        <translation>برنامج آخر يستخدم المودم. سيُرسل رمزك عندما ينتهي.</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN</source>
        <translation>برنامج آخر يستخدم الرموز</translation>
    </message>
    <message>
        <source>DEVICE_FOREIGN_TEXT</source>
        <translation>يمكن إرسال الرموز عندما ينتهي. قد يكون في أثناء شراء شيء ما.</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING</source>
        <translation>جارٍ البحث عن مودم</translation>
    </message>
    <message>
        <source>DEVICE_LOOKING_TEXT</source>
        <translation>يستغرق هذا لحظة.</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>DEVICE_NO_MODEM_TEXT</source>
        <translation>صِل مودمًا أو شغّله. تعمل هذه الصفحة عندئذ من تلقاء نفسها.</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT</source>
        <translation>%1 غير متصل</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_UNNAMED</source>
        <translation>المودم المختار غير متصل</translation>
    </message>
    <message>
        <source>DEVICE_CHOSEN_ABSENT_TEXT</source>
        <translation>صِله أو اختر مودمًا آخر.</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED</source>
        <translation>أُزيل المودم</translation>
    </message>
    <message>
        <source>DEVICE_REMOVED_TEXT</source>
        <translation>صِله مجددًا. تعمل هذه الصفحة عندئذ من تلقاء نفسها.</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED</source>
        <translation>المودم لا يعمل</translation>
    </message>
    <message>
        <source>DEVICE_MODEM_FAILED_TEXT</source>
        <translation>تخلّى عنه ModemManager. افصله وصِله مجددًا. السبب مذكور في سجل ModemManager.</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS</source>
        <translation>ناقل الرسائل لا يعمل</translation>
    </message>
    <message>
        <source>DEVICE_NO_BUS_TEXT</source>
        <translation>يتعذر الوصول إلى D-Bus الخاص بالنظام، لذا لا يُعثر على أي مودم.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE</source>
        <translation>خدمة المودم لا تعمل</translation>
    </message>
    <message>
        <source>DEVICE_NO_SERVICE_TEXT</source>
        <translation>لم يُثبّت ModemManager أو تم إيقافه.</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT</source>
        <translation>خدمة المودم لا تستجيب</translation>
    </message>
    <message>
        <source>DEVICE_SERVICE_SILENT_TEXT</source>
        <translation>يعمل ModemManager لكنه لا يستجيب. انتظر لحظة أو أعد تشغيله.</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED</source>
        <translation>غير مسموح</translation>
    </message>
    <message>
        <source>DEVICE_NOT_PERMITTED_TEXT</source>
        <translation>لا يسمح لك هذا الحاسوب باستخدام المودم. يمكن لمديره السماح بذلك لحسابك.</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM</source>
        <translation>لا توجد SIM</translation>
    </message>
    <message>
        <source>DEVICE_NO_SIM_TEXT</source>
        <translation>ضع SIM في المودم. يجب إطفاء بعض أجهزة المودم لذلك.</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED</source>
        <translation>بطاقة SIM مقفلة</translation>
    </message>
    <message>
        <source>DEVICE_SIM_LOCKED_TEXT</source>
        <translation>أدخل رقم PIN الخاص بها لاستخدامها.</translation>
    </message>
    <message>
        <source>DEVICE_PUK</source>
        <translation>تحتاج SIM إلى PUK</translation>
    </message>
    <message>
        <source>DEVICE_PUK_TEXT</source>
        <translation>أُدخل PIN خاطئ مرات كثيرة. افتح قفلها في هاتف باستخدام PUK من مشغّل شبكتك ثم أعدها.</translation>
    </message>
    <message>
        <source>DEVICE_OFF</source>
        <translation>المودم مطفأ</translation>
    </message>
    <message>
        <source>DEVICE_OFF_TEXT</source>
        <translation>شغّله لاستخدامه. يحتاج إلى لحظة للعثور على شبكته.</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING</source>
        <translation>جارٍ البحث عن شبكة</translation>
    </message>
    <message>
        <source>DEVICE_SEARCHING_TEXT</source>
        <translation>قد يستغرق هذا دقيقة. يمكن إرسال الرموز فور العثور على الشبكة.</translation>
    </message>
    <message>
        <source>DEVICE_DENIED</source>
        <translation>الشبكة لا تقبل هذه الـSIM</translation>
    </message>
    <message>
        <source>DEVICE_DENIED_TEXT</source>
        <translation>اسأل مشغّل شبكتك هل هي مفعّلة، أو استخدم SIM أخرى.</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD</source>
        <translation>لا يمكن لهذا المودم إرسال الرموز</translation>
    </message>
    <message>
        <source>DEVICE_NO_USSD_TEXT</source>
        <translation>لا يدعم USSD. اختر مودمًا آخر أو استخدم هاتفًا للرموز.</translation>
    </message>
    <message>
        <source>DEVICE_SIMULATED_TEXT</source>
        <translation>هذه الحالة جزء من العرض التوضيحي.</translation>
    </message>
    <message>
        <source>DEVICE_ALLOW</source>
        <translation>ينشئ المدير الملف المذكور في السطر الأول بهذه القاعدة ويضيف حسابك إلى المجموعة netdev. ثم سجّل الدخول مجددًا.</translation>
    </message>
    <message>
        <source>DEVICE_START_SERVICE</source>
        <translation>اكتب هذا في الطرفية بكلمة مرور المدير. إذا لم تكن الخدمة موجودة فثبّت أولًا الحزمة modemmanager.</translation>
    </message>
    <message>
        <source>DEVICE_RUN_COMMAND</source>
        <translation>اكتب هذا في الطرفية بكلمة مرور المدير.</translation>
    </message>
    <message>
        <source>DEVICE_WHAT_IS_PUK</source>
        <translation>رمز PUK رقم من 8 خانات يفتح قفل SIM بعد إدخال PIN خاطئ مرات كثيرة. تجده على البطاقة التي جاءت فيها SIM، ويمكن لمشغّل شبكتك إعطاؤه. بعد عشرة أرقام PUK خاطئة تصبح SIM غير صالحة.</translation>
    </message>
    <message>
        <source>PIN_TRIES_SHORT</source>
        <translation>المحاولات المتبقية: %1</translation>
    </message>
    <message>
        <source>PIN_ONE_TRY_SHORT</source>
        <translation>محاولة واحدة متبقية</translation>
    </message>
    <message>
        <source>REMEDY_ENTER_PIN</source>
        <translation>إدخال PIN</translation>
    </message>
    <message>
        <source>REMEDY_ENABLE</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>REMEDY_LOOK_AGAIN</source>
        <translation>البحث مجددًا</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_MODEM</source>
        <translation>اختيار مودم</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_ALLOW</source>
        <translation>كيفية السماح بذلك</translation>
    </message>
    <message>
        <source>REMEDY_HOW_TO_START</source>
        <translation>كيفية التشغيل</translation>
    </message>
    <message>
        <source>REMEDY_WHAT_IS_PUK</source>
        <translation>ما هو PUK؟</translation>
    </message>
    <message>
        <source>REMEDY_TRY_DEMONSTRATION</source>
        <translation>تجربة العرض التوضيحي</translation>
    </message>
    <message>
        <source>REMEDY_USE_MY_MODEM</source>
        <translation>استخدام المودم الخاص بي</translation>
    </message>
    <message>
        <source>REMEDY_END_FOREIGN_SESSION</source>
        <translation>إنهاؤها</translation>
    </message>
    <message>
        <source>REMEDY_CHOOSE_OPERATOR</source>
        <translation>اختيار المشغّل</translation>
    </message>
    <message>
        <source>REMEDY_TYPE_CODE</source>
        <translation>كتابة رمز</translation>
    </message>
    <message>
        <source>REMEDY_COPY</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>REMEDY_COPIED</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>REMEDY_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>REMEDY_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>REMEDY_END_QUESTION</source>
        <translation>هل تريد إنهاء جلسة البرنامج الآخر؟ قد يكون في أثناء شراء شيء ما.</translation>
    </message>
    <message>
        <source>REMEDY_END_SESSION</source>
        <translation>إنهاء الجلسة</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_KEPT</source>
        <translation>تتعذر الكتابة في %1. ستُفقد الرسائل الجديدة عند انتهاء البرنامج.</translation>
    </message>
    <message>
        <source>MESSAGE_FILE_DAMAGED</source>
        <translation>كان ملف الرسائل تالفًا. اسمه الآن %1.</translation>
    </message>
    <message>
        <source>MESSAGE_NOT_REMOVED</source>
        <translation>يتعذر حذف %1.</translation>
    </message>
    <message>
        <source>MESSAGE_TITLE</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>MESSAGE_MARK_ALL</source>
        <translation>تعليم الكل كمقروء</translation>
    </message>
    <message>
        <source>MESSAGE_SEARCH</source>
        <translation>البحث في الرسائل</translation>
    </message>
    <message>
        <source>MESSAGE_ALL</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_COUNT</source>
        <translation>غير مقروءة %1</translation>
    </message>
    <message>
        <source>MESSAGE_UNREAD_NONE</source>
        <translation>غير مقروءة</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_COUNT</source>
        <translation>منتظرة %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITING_NONE</source>
        <translation>منتظرة</translation>
    </message>
    <message>
        <source>MESSAGE_TODAY</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>MESSAGE_YESTERDAY</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>MESSAGE_WHEN</source>
        <translation>%1، %2 · من الشبكة</translation>
    </message>
    <message>
        <source>MESSAGE_NETWORK</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS</source>
        <translation>تنتظر إجابتك</translation>
    </message>
    <message>
        <source>MESSAGE_IS_UNREAD</source>
        <translation>غير مقروءة</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER</source>
        <translation>أو اكتب إجابة</translation>
    </message>
    <message>
        <source>MESSAGE_ANSWER_ONLY</source>
        <translation>اكتب إجابة</translation>
    </message>
    <message>
        <source>MESSAGE_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>MESSAGE_COSTS</source>
        <translation>قد تكلّف الإجابة مالًا. الإنهاء يخبر الشبكة بأنك لا تريد شيئًا.</translation>
    </message>
    <message>
        <source>MESSAGE_END</source>
        <translation>إنهاء دون إجابة</translation>
    </message>
    <message>
        <source>MESSAGE_COPY</source>
        <translation>نسخ الرسالة</translation>
    </message>
    <message>
        <source>MESSAGE_DELETE</source>
        <translation>حذف الرسالة</translation>
    </message>
    <message>
        <source>MESSAGE_BACK</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY</source>
        <translation>لا توجد رسائل بعد</translation>
    </message>
    <message>
        <source>MESSAGE_EMPTY_TEXT</source>
        <translation>تظهر هنا الرسائل التي ترسلها الشبكة من تلقاء نفسها.</translation>
    </message>
    <message>
        <source>MESSAGE_NONE_FOUND</source>
        <translation>لم يُعثر على رسائل</translation>
    </message>
    <message>
        <source>MESSAGE_CHOOSE</source>
        <translation>اختر رسالة لقراءتها.</translation>
    </message>
    <message>
        <source>MESSAGE_LIST</source>
        <translation>رسائل الشبكة</translation>
    </message>
    <message>
        <source>MESSAGE_TEXT</source>
        <translation>نص الرسالة</translation>
    </message>
    <message>
        <source>MESSAGE_FROM</source>
        <translation>رسالة من %1</translation>
    </message>
    <message>
        <source>MESSAGE_WAITS_SENTENCE</source>
        <translation>تنتظر إجابتك.</translation>
    </message>
    <message>
        <source>MESSAGE_NEW_SENTENCE</source>
        <translation>لديك رسالة جديدة.</translation>
    </message>
    <message>
        <source>MESSAGE_OPEN</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>MESSAGE_UNKNOWN_TEXT</source>
        <translation>لا تزال هناك قائمة مفتوحة في الشبكة، لكن نصها لم يعد معروفًا. أجب عنها أو أنهِها.</translation>
    </message>
    <message>
        <source>MESSAGE_LOW_BALANCE</source>
        <translation>رصيدك %1.</translation>
    </message>
    <message>
        <source>SERVICE_TITLE</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>SERVICE_INTRO</source>
        <translation>باقات وخيارات %1. تُفتح كل خدمة في نافذة الخدمات التي تعرض ما تفعله قبل إرسال أي شيء.</translation>
    </message>
    <message>
        <source>SERVICE_INTRO_UNNAMED</source>
        <translation>باقات وخيارات مشغّل شبكتك. تُفتح كل خدمة في نافذة الخدمات التي تعرض ما تفعله قبل إرسال أي شيء.</translation>
    </message>
    <message>
        <source>SERVICE_BY_CODE</source>
        <translation>بالرمز</translation>
    </message>
    <message>
        <source>SERVICE_BY_TEXT</source>
        <translation>برسالة نصية</translation>
    </message>
    <message>
        <source>SERVICE_TO</source>
        <translation>إلى %1</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_NUMBER</source>
        <translation>تطلب رقمًا</translation>
    </message>
    <message>
        <source>SERVICE_NONE</source>
        <translation>ليس لمشغّل شبكتك خدمات هنا.</translation>
    </message>
    <message>
        <source>QUESTION_TITLE</source>
        <translation>الشبكة تنتظر إجابتك</translation>
    </message>
    <message>
        <source>QUESTION_TEXT</source>
        <translation>اختر أو اكتب الإجابة أدناه.</translation>
    </message>
    <message>
        <source>QUESTION_TYPE</source>
        <translation>اكتب إجابتك أدناه.</translation>
    </message>
    <message>
        <source>QUESTION_LATER</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>PIN_SHOW</source>
        <translation>إظهار PIN</translation>
    </message>
    <message>
        <source>ACCOUNT_DAMAGED</source>
        <translation>كان ملف الأرصدة تالفًا. حُفظ باسم %1 وأُنشئ ملف جديد.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_STORED</source>
        <translation>تعذّر حفظ الأرصدة في %1. تبقى حتى إغلاق البرنامج.</translation>
    </message>
    <message>
        <source>ACCOUNT_LATER_VERSION</source>
        <translation>كتبت نسخة أحدث من البرنامج الملف %1. تبقى الأرصدة حتى إغلاق البرنامج.</translation>
    </message>
    <message>
        <source>NAV_TITLE</source>
        <translation>لوحة USSD</translation>
    </message>
    <message>
        <source>NAV_HOME</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>NAV_CODES</source>
        <translation>الرموز</translation>
    </message>
    <message>
        <source>NAV_SERVICES</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>NAV_MESSAGES</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>NAV_SETTINGS</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>NAV_UNREAD</source>
        <translation>%1 غير مقروءة</translation>
    </message>
    <message>
        <source>HEADER_OPERATOR</source>
        <translation>المشغّل: %1</translation>
    </message>
    <message>
        <source>HEADER_DEMONSTRATION</source>
        <translation>عرض توضيحي</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_STRONG</source>
        <translation>إشارة قوية</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_GOOD</source>
        <translation>إشارة جيدة</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_WEAK</source>
        <translation>إشارة ضعيفة</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NONE</source>
        <translation>لا توجد إشارة</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_PERCENT</source>
        <translation>الإشارة %1 %</translation>
    </message>
    <message>
        <source>HEADER_SIGNAL_NAME</source>
        <translation>%1، %2 %</translation>
    </message>
    <message>
        <source>HEADER_SIM</source>
        <translation>الشريحة %1</translation>
    </message>
    <message>
        <source>HEADER_SIM_ENDING</source>
        <translation>الشريحة ⁦••%1⁩</translation>
    </message>
    <message>
        <source>HEADER_SHOW_NUMBER</source>
        <translation>إظهار رقم الشريحة</translation>
    </message>
    <message>
        <source>HEADER_HIDE_NUMBER</source>
        <translation>إخفاء رقم الشريحة</translation>
    </message>
    <message>
        <source>HEADER_MENU</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>HEADER_UNREAD</source>
        <translation>%1، %2 غير مقروءة</translation>
    </message>
    <message>
        <source>HEADER_MODEM_READY</source>
        <translation>المودم جاهز</translation>
    </message>
    <message>
        <source>HEADER_NO_MODEM_IN_USE</source>
        <translation>لا يُستخدم أي مودم</translation>
    </message>
    <message>
        <source>HEADER_LOOKING_FOR_ONE</source>
        <translation>جارٍ البحث عن مودم</translation>
    </message>
    <message>
        <source>BANNER_DEMONSTRATION</source>
        <translation>كل ما هنا مُختلَق. لا يُستخدم أي مودم ولا شيء يكلّف مالًا.</translation>
    </message>
    <message>
        <source>BANNER_NO_CODES</source>
        <translation>لا توجد رموز المشغّل بعد</translation>
    </message>
    <message>
        <source>BANNER_PROBLEM</source>
        <translation>هناك مشكلة</translation>
    </message>
    <message>
        <source>BANNER_RESTORE</source>
        <translation>يمكن استعادة رموزك</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_LOST</source>
        <translation>اختفى ملفها. توجد نسخة من %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_DAMAGED</source>
        <translation>ملفها غير مكتمل. توجد نسخة من %1.</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_YES</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>BANNER_RESTORE_NO</source>
        <translation>حذف النسخة</translation>
    </message>
    <message>
        <source>MENU_GENERAL</source>
        <translation>ال&amp;رموز في نافذة</translation>
    </message>
    <message>
        <source>MENU_ACCOUNT</source>
        <translation>نافذة ال&amp;حساب</translation>
    </message>
    <message>
        <source>MENU_PREPAID</source>
        <translation>نافذة ال&amp;حساب، مسبق الدفع</translation>
    </message>
    <message>
        <source>MENU_POSTPAID</source>
        <translation>نافذة الحساب، &amp;لاحق الدفع</translation>
    </message>
    <message>
        <source>MENU_EDIT_CODES</source>
        <translation>&amp;تحرير الرموز</translation>
    </message>
    <message>
        <source>MENU_EXPORT</source>
        <translation>&amp;تصدير الأرصدة…</translation>
    </message>
    <message>
        <source>MENU_MODEM</source>
        <translation>ال&amp;مودم</translation>
    </message>
    <message>
        <source>MENU_SETTINGS</source>
        <translation>ال&amp;إعدادات</translation>
    </message>
    <message>
        <source>MENU_ABOUT</source>
        <translation>&amp;حول</translation>
    </message>
    <message>
        <source>MENU_ABOUT_TEXT</source>
        <translation>لوحة USSD %1. ترسل رموز USSD عبر مودم وتعرض الردود.</translation>
    </message>
    <message>
        <source>SETTINGS_TITLE</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>SETTINGS_DEVICE</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>SETTINGS_APPEARANCE</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFICATIONS</source>
        <translation>الإشعارات</translation>
    </message>
    <message>
        <source>SETTINGS_PRIVACY</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>SETTINGS_MODEM</source>
        <translation>المودم</translation>
    </message>
    <message>
        <source>SETTINGS_AUTOMATIC</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>SETTINGS_CHOSEN_MODEM</source>
        <translation>المودم المختار</translation>
    </message>
    <message>
        <source>SETTINGS_CODES</source>
        <translation>رموز المشغّل</translation>
    </message>
    <message>
        <source>SETTINGS_NO_CODES</source>
        <translation>لا شيء: تكتب الرموز بنفسك</translation>
    </message>
    <message>
        <source>SETTINGS_CHANGE</source>
        <translation>تغيير</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT</source>
        <translation>معرفة نوع العقد</translation>
    </message>
    <message>
        <source>SETTINGS_DETECT_TEXT</source>
        <translation>يرسل رمزًا مرة واحدة لكل شريحة. قد يكلّف مالًا.</translation>
    </message>
    <message>
        <source>SETTINGS_LANGUAGE</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>SETTINGS_THEME</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_SYSTEM</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_LIGHT</source>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>SETTINGS_THEME_DARK</source>
        <translation>داكنة</translation>
    </message>
    <message>
        <source>SETTINGS_TEXT_SIZE</source>
        <translation>حجم النص</translation>
    </message>
    <message>
        <source>SETTINGS_AFTER_RESTART</source>
        <translation>بعد إعادة التشغيل</translation>
    </message>
    <message>
        <source>SETTINGS_PERCENT</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION</source>
        <translation>تقليل الحركة</translation>
    </message>
    <message>
        <source>SETTINGS_MOTION_TEXT</source>
        <translation>يتبع النظام</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY</source>
        <translation>رسائل الشبكة</translation>
    </message>
    <message>
        <source>SETTINGS_NOTIFY_TEXT</source>
        <translation>عندما لا تكون النافذة في المقدمة</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT</source>
        <translation>إظهار نصها</translation>
    </message>
    <message>
        <source>SETTINGS_SHOW_TEXT_TEXT</source>
        <translation>قد يقرؤها الآخرون على الشاشة</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE</source>
        <translation>رصيد منخفض</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_TEXT</source>
        <translation>أقل من %1، بعد رد ذكر الرصيد</translation>
    </message>
    <message>
        <source>SETTINGS_LOW_BALANCE_OFF</source>
        <translation>بعد رد ذكر الرصيد</translation>
    </message>
    <message>
        <source>SETTINGS_AMOUNT</source>
        <translation>المبلغ</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE</source>
        <translation>إخفاء رقم الشريحة</translation>
    </message>
    <message>
        <source>SETTINGS_HIDE_TEXT</source>
        <translation>تظهر آخر أربعة أرقام فقط</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP</source>
        <translation>حفظ السجل والأرصدة</translation>
    </message>
    <message>
        <source>SETTINGS_KEEP_TEXT</source>
        <translation>على هذا الحاسوب فقط، لمدة 12 شهرًا</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL</source>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_BUTTON</source>
        <translation>حذف الكل…</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_TEXT</source>
        <translation>الأرصدة والرسائل والرموز المرسلة والمفضلة</translation>
    </message>
    <message>
        <source>SETTINGS_DELETE_ALL_QUESTION</source>
        <translation>هل تُحذف كل الأرصدة والرسائل والرموز المرسلة والمفضلة؟ لا يمكن استعادتها.</translation>
    </message>
    <message>
        <source>FIRST_TITLE</source>
        <translation>مرحبًا</translation>
    </message>
    <message>
        <source>FIRST_INTRO</source>
        <translation>ثلاث خطوات، ثم ترى رصيدك وترسل الرموز وتشتري الباقات من هنا.</translation>
    </message>
    <message>
        <source>FIRST_MODEM_FOUND</source>
        <translation>عُثر على المودم</translation>
    </message>
    <message>
        <source>FIRST_SIM_READY</source>
        <translation>الشريحة جاهزة</translation>
    </message>
    <message>
        <source>FIRST_SIM_TEXT</source>
        <translation>الشريحة المنتهية بـ %1 مسجّلة في شبكة.</translation>
    </message>
    <message>
        <source>FIRST_SIM_LATER</source>
        <translation>ثم الشريحة</translation>
    </message>
    <message>
        <source>FIRST_CHOICE</source>
        <translation>رموز أي مشغّل تُستخدم؟</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_LATER</source>
        <translation>تختار ذلك عندما تجهز الشريحة.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_ONE</source>
        <translation>تطابق شريحتك مشغّلًا واحدًا في القائمة. يمكنك تغيير ذلك في أي وقت من الإعدادات.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_SEVERAL</source>
        <translation>تطابق شريحتك %1 من المشغّلين في القائمة. يمكنك تغيير ذلك في أي وقت من الإعدادات.</translation>
    </message>
    <message>
        <source>FIRST_CHOICE_NONE</source>
        <translation>لا يطابق أي مشغّل في القائمة شريحتك. يمكنك كتابة الرموز بنفسك.</translation>
    </message>
    <message>
        <source>FIRST_OPTION</source>
        <translation>الرموز: %1</translation>
    </message>
    <message>
        <source>FIRST_BALANCE</source>
        <translation>الرصيد</translation>
    </message>
    <message>
        <source>FIRST_TOP_UP</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>FIRST_NUMBER</source>
        <translation>الرقم الخاص</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT</source>
        <translation>من دون رموز المشغّل</translation>
    </message>
    <message>
        <source>FIRST_WITHOUT_TEXT</source>
        <translation>تكتب الرموز بنفسك، ولا شيء معدّ مسبقًا</translation>
    </message>
    <message>
        <source>FIRST_USE</source>
        <translation>استخدام %1</translation>
    </message>
    <message>
        <source>FIRST_USE_NOBODY</source>
        <translation>استخدام</translation>
    </message>
    <message>
        <source>FIRST_GO_ON</source>
        <translation>المتابعة من دونها</translation>
    </message>
    <message>
        <source>FIRST_NOT_NOW</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>FIRST_DEMONSTRATION</source>
        <translation>تجربة العرض التوضيحي بدلًا من ذلك</translation>
    </message>
    <message>
        <source>FIRST_COSTS</source>
        <translation>لا يُرسل شيء إلى الشبكة حتى تضغط زرًا. قد تكلّف الرموز مالًا.</translation>
    </message>
    <message>
        <source>CLI_DEVICE_STAYS</source>
        <translation>اللوحة تعمل بالفعل. نافذتها الآن في المقدمة وتحتفظ بجهازها.</translation>
    </message>
    <message>
        <source>CLI_OPTIONS_STAY</source>
        <translation>اللوحة تعمل بالفعل. نافذتها الآن في المقدمة وتحتفظ بلغتها وسجلها.</translation>
    </message>
    <message>
        <source>SERVICE_ASKS_TEXT</source>
        <translation>تطلب نصًا</translation>
    </message>
    <message>
        <source>SERVICE_END_MENU</source>
        <translation>أنهِ القائمة أولًا.</translation>
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
        <translation>اليوم %1</translation>
    </message>
    <message>
        <source>HOME_YESTERDAY</source>
        <translation>أمس %1</translation>
    </message>
    <message>
        <source>HOME_LAST_DAY</source>
        <translation>اليوم الأخير</translation>
    </message>
    <message>
        <source>HOME_DAY_LEFT</source>
        <translation>بقي يوم واحد</translation>
    </message>
    <message>
        <source>HOME_DAYS_LEFT</source>
        <translation>الأيام المتبقية: %1</translation>
    </message>
    <message>
        <source>HOME_VALID_UNTIL</source>
        <translation>صالح حتى %1، %2</translation>
    </message>
    <message>
        <source>HOME_ENDED</source>
        <translation>انتهى في %1</translation>
    </message>
    <message>
        <source>HOME_HAS_ENDED</source>
        <translation>انتهى</translation>
    </message>
    <message>
        <source>HOME_BALANCE</source>
        <translation>الرصيد</translation>
    </message>
    <message>
        <source>HOME_BALANCE_INVENTED</source>
        <translation>الرصيد (وهمي)</translation>
    </message>
    <message>
        <source>HOME_ASKED</source>
        <translation>آخر استعلام %1</translation>
    </message>
    <message>
        <source>HOME_DAYS_OLD</source>
        <translation>منذ %1 أيام</translation>
    </message>
    <message>
        <source>HOME_LOW</source>
        <translation>رصيد منخفض</translation>
    </message>
    <message>
        <source>HOME_OUTDATED</source>
        <translation>ربما تغيّر منذ ذلك الحين</translation>
    </message>
    <message>
        <source>HOME_NOT_ASKED</source>
        <translation>لم يُستعلم بعد</translation>
    </message>
    <message>
        <source>HOME_TOP_UP</source>
        <translation>شحن الرصيد</translation>
    </message>
    <message>
        <source>HOME_ASK_AGAIN</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>HOME_ASK_NOW</source>
        <translation>استعلام الآن</translation>
    </message>
    <message>
        <source>HOME_ASKING</source>
        <translation>جارٍ الاستعلام… %1 ث</translation>
    </message>
    <message>
        <source>HOME_END_MENU_FIRST</source>
        <translation>أنهِ القائمة أولًا.</translation>
    </message>
    <message>
        <source>HOME_SHOW_REPLY</source>
        <translation>عرض الرد</translation>
    </message>
    <message>
        <source>HOME_REPLY_TO</source>
        <translation>الرد على %1</translation>
    </message>
    <message>
        <source>HOME_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>HOME_CHART</source>
        <translation>الرصيد عبر الزمن</translation>
    </message>
    <message>
        <source>HOME_CHART_PERIOD</source>
        <translation>آخر %1 يومًا</translation>
    </message>
    <message>
        <source>HOME_CHART_EMPTY</source>
        <translation>استعلم في يوم آخر لترى خطًا هنا.</translation>
    </message>
    <message>
        <source>HOME_CHART_TODAY</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>HOME_CHART_SUMS</source>
        <translation>أُنفق %1 وشُحن %2</translation>
    </message>
    <message>
        <source>HOME_CHART_SENTENCE</source>
        <translation>من %1 إلى %2 خلال %3 يومًا، الأدنى %4</translation>
    </message>
    <message>
        <source>HOME_NUMBER</source>
        <translation>رقمي</translation>
    </message>
    <message>
        <source>HOME_COPY_NUMBER</source>
        <translation>نسخ الرقم</translation>
    </message>
    <message>
        <source>HOME_VALIDITY</source>
        <translation>صالح حتى</translation>
    </message>
    <message>
        <source>HOME_DATA</source>
        <translation>البيانات المتبقية</translation>
    </message>
    <message>
        <source>HOME_DATA_OF</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>HOME_OF</source>
        <translation>من %1</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES</source>
        <translation>المفضلة</translation>
    </message>
    <message>
        <source>HOME_FAVOURITES_HINT</source>
        <translation>اختر حتى %1 رموز ورتّبها.</translation>
    </message>
    <message>
        <source>HOME_EDIT</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>HOME_ADD_FAVOURITE</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>HOME_MOVE_UP</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>HOME_MOVE_DOWN</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>HOME_SAVE</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>HOME_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>HOME_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>HOME_NUMBER_FOR</source>
        <translation>الرقم الخاص بـ %1</translation>
    </message>
    <message>
        <source>HOME_ANSWER</source>
        <translation>الرد</translation>
    </message>
    <message>
        <source>HOME_READ</source>
        <translation>قراءة</translation>
    </message>
    <message>
        <source>HOME_LAST_KNOWN</source>
        <translation>آخر رصيد معروف: %1</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED_SIM</source>
        <translation>%1، آخر استعلام %2. ربما تغيّر منذ ذلك الحين.</translation>
    </message>
    <message>
        <source>HOME_LAST_ASKED</source>
        <translation>آخر استعلام %1. ربما تغيّر منذ ذلك الحين.</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT</source>
        <translation>تصدير الأرصدة</translation>
    </message>
    <message>
        <source>ACCOUNT_EXPORT_NAME</source>
        <translation>%1: يجب أن ينتهي الاسم بـ .csv أو .json.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_READ</source>
        <translation>تعذّرت قراءة %1.</translation>
    </message>
    <message>
        <source>ACCOUNT_NOT_EXPORTED</source>
        <translation>تعذّرت كتابة %1: %2</translation>
    </message>
    <message>
        <source>MODES_NOT_CHANGED</source>
        <translation>لم يقبل المودم الشبكات الأخرى.</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY</source>
        <translation>طلب الرصيد مرة في اليوم</translation>
    </message>
    <message>
        <source>SETTINGS_ASK_DAILY_TEXT</source>
        <translation>يرسل رمز الرصيد من تلقاء نفسه، لكن ليس أثناء التجوال. قد يتقاضى المشغل رسومًا.</translation>
    </message>
</context>
</TS>
