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
        <translation>أُرسل: &#x200e;</translation>
    </message>
    <message>
        <source>IDS_USSD_RECEIVED</source>
        <translation>استُلم: &#x200e;</translation>
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
        <translation>لم يُنفَّذ الأمر.</translation>
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
        <translation>انقر نقرًا مزدوجًا فوق خلية لتغييرها؛ الصفوف الملونة ثابتة. يشير &#x200e;%s&#x200e; في الرمز إلى الرقم المُدخل.</translation>
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
        <translation>يحوّل رصيدًا، ثم تطلب الشبكة الرقم.</translation>
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
</TS>
