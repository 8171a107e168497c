#include "SettingsPage.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpressionValidator>

#include "base/DashboardText.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "PageColumn.h"
#include "SettingsRow.h"
#include "sim/OperatorCodes.h"

namespace Dashboard
{

namespace
{

const int WIDEST = 720; // in pixels at 100 % text size
const int AMOUNT_WIDTH = 88;
const char FIRST_AMOUNT[] = "5.00"; // the initial limit for low-balance notifications

const char *const THEMES[] = {"system", "light", "dark"};
const ThemeChoice CHOICES[] = {ThemeChoice::System, ThemeChoice::Light, ThemeChoice::Dark};
const int TEXT_SIZES[] = {100, 125, 150, 200}; // per cent

template <typename T, int N>
int indexOf(const T (&values)[N], const T &value)
{
    for (int i = 0; i < N; ++i) {
        if (values[i] == value)
            return i;
    }
    return 0;
}

int themeIndex(const QString &word)
{
    for (int i = 0; i < 3; ++i) {
        if (word == QLatin1String(THEMES[i]))
            return i;
    }
    return 0;
}

template <typename T>
T *named(T *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

SettingsPage::SettingsPage(const SettingsParts &parts, QWidget *parent)
    : Page("Dashboard_SettingsPage", parent), m_parts(parts),
      m_column(new PageColumn(WIDEST, this)), m_title(makeLabel("h1", this))
{
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(m_column);
    setSpacing(m_column->column(), 12);
    m_column->column()->addWidget(m_title);
    makeDevice();
    makeAppearance();
    makeNotifications();
    makePrivacy();
    m_column->column()->addStretch();
    connect(parts.device, &DeviceWatcher::changed, this, &SettingsPage::showDevice);
    connect(&Look::instance(), &Look::changed, this, &SettingsPage::showValues);
    retranslate();
}

QVBoxLayout *SettingsPage::addSection(const char *textKey)
{
    QLabel *heading = makeLabel("section", this);
    m_sections << Section{heading, textKey};
    QFrame *card = makeCard(this);
    QVBoxLayout *rows = new QVBoxLayout(card);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->setSpacing(0);
    m_column->column()->addWidget(heading);
    m_column->column()->addWidget(card);
    return rows;
}

SettingsRow *SettingsPage::addRow(QVBoxLayout *card, const char *icon, const char *titleKey,
                                  const char *textKey, QWidget *control, bool isControlWide)
{
    if (card->count() > 0)
        card->addWidget(makeLine(this));
    SettingsRow *row = new SettingsRow(icon, control, isControlWide, this);
    card->addWidget(row);
    m_rows << Row{row, titleKey, textKey};
    return row;
}

Switch *SettingsPage::makeSwitch(const char *objectName, bool isOn,
                                 void (SettingsPage::*chosen)(bool))
{
    Switch *made = named(new Switch(this), objectName);
    made->setChecked(isOn);
    connect(made, &Switch::toggled, this, chosen);
    return made;
}

void SettingsPage::makeDevice()
{
    QVBoxLayout *card = addSection("SETTINGS_DEVICE");
    m_modem = named(new MenuButton(this), "Dashboard_SettingsModem");
    m_modem->setMenu(m_parts.deviceMenu);
    m_codes = named(makeButton("", this), "Dashboard_SettingsCodes");
    m_detection = named(new Switch(this), "Dashboard_SettingsDetection");
    connect(m_codes, &QPushButton::clicked, this, &SettingsPage::operatorRequested);
    connect(m_detection, &Switch::toggled, this, &SettingsPage::detectionChosen);
    m_modemRow = addRow(card, "modem", "SETTINGS_MODEM", nullptr, m_modem, true);
    m_codesRow = addRow(card, "tag", "SETTINGS_CODES", nullptr, m_codes);
    addRow(card, "sim", "SETTINGS_DETECT", "SETTINGS_DETECT_TEXT", m_detection);
}

void SettingsPage::makeAppearance()
{
    QVBoxLayout *card = addSection("SETTINGS_APPEARANCE");
    const DashboardSettings *settings = m_parts.settings;
    m_language = named(new MenuButton(this), "Dashboard_SettingsLanguage");
    m_language->setMenu(m_parts.languageMenu);
    m_theme = named(new Segments(this), "Dashboard_SettingsTheme");
    m_textSize = named(new Segments(this), "Dashboard_SettingsTextSize");
    Switch *motion = makeSwitch("Dashboard_SettingsMotion", settings && settings->reducesMotion(),
                                &SettingsPage::setReducesMotion);
    connect(m_theme, &Segments::chosen, this, &SettingsPage::chooseTheme);
    connect(m_textSize, &Segments::chosen, this, &SettingsPage::chooseTextSize);
    addRow(card, "globe", "SETTINGS_LANGUAGE", nullptr, m_language, true);
    addRow(card, "moon", "SETTINGS_THEME", nullptr, m_theme, true);
    addRow(card, "search", "SETTINGS_TEXT_SIZE", "SETTINGS_AFTER_RESTART", m_textSize, true);
    addRow(card, "eye", "SETTINGS_MOTION", "SETTINGS_MOTION_TEXT", motion);
}

void SettingsPage::makeNotifications()
{
    QVBoxLayout *card = addSection("SETTINGS_NOTIFICATIONS");
    const DashboardSettings *settings = m_parts.settings;
    m_notifies = makeSwitch("Dashboard_SettingsNotify", !settings || settings->notifiesMessages(),
                            &SettingsPage::setNotifies);
    m_showsText =
        makeSwitch("Dashboard_SettingsNotifyText", settings && settings->showsTextInNotifications(),
                   &SettingsPage::setShowsText);
    QWidget *low = new QWidget(this);
    QHBoxLayout *line = new QHBoxLayout(low);
    line->setContentsMargins(0, 0, 0, 0);
    m_amount = named(new QLineEdit(low), "Dashboard_SettingsAmount");
    m_amount->setLayoutDirection(Qt::LeftToRight);
    m_amount->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QLatin1String("[0-9]{1,7}([.][0-9]{1,2})?")), m_amount));
    m_lowBalance =
        makeSwitch("Dashboard_SettingsLowBalance", settings && !settings->lowBalance().isEmpty(),
                   &SettingsPage::setLowBalanceOn);
    connect(m_amount, &QLineEdit::editingFinished, this, &SettingsPage::setLowBalanceAmount);
    line->addWidget(m_amount);
    line->addWidget(m_lowBalance);
    low->setFocusProxy(m_lowBalance);
    addRow(card, "bell", "SETTINGS_NOTIFY", "SETTINGS_NOTIFY_TEXT", m_notifies);
    addRow(card, "messages", "SETTINGS_SHOW_TEXT", "SETTINGS_SHOW_TEXT_TEXT", m_showsText);
    m_lowBalanceRow = addRow(card, "topup", "SETTINGS_LOW_BALANCE", nullptr, low, true);
    Switch *daily = makeSwitch("Dashboard_SettingsAskDaily", settings && settings->asksDaily(),
                               &SettingsPage::setAsksDaily);
    addRow(card, "refresh", "SETTINGS_ASK_DAILY", "SETTINGS_ASK_DAILY_TEXT", daily);
}

void SettingsPage::makePrivacy()
{
    QVBoxLayout *card = addSection("SETTINGS_PRIVACY");
    const DashboardSettings *settings = m_parts.settings;
    Switch *hides = makeSwitch("Dashboard_SettingsHide", !settings || settings->hidesSimNumber(),
                               &SettingsPage::setHides);
    Switch *keeps = makeSwitch("Dashboard_SettingsKeep", !settings || settings->keepsHistory(),
                               &SettingsPage::setKeeps);
    m_deleteAll = named(makeButton("danger", this), "Dashboard_SettingsDeleteAll");
    connect(m_deleteAll, &QPushButton::clicked, this, &SettingsPage::askToDeleteAll);
    addRow(card, "sim", "SETTINGS_HIDE", "SETTINGS_HIDE_TEXT", hides);
    addRow(card, "clock", "SETTINGS_KEEP", "SETTINGS_KEEP_TEXT", keeps);
    addRow(card, "trash", "SETTINGS_DELETE_ALL", "SETTINGS_DELETE_ALL_TEXT", m_deleteAll);
}

void SettingsPage::retranslate()
{
    m_title->setText(dashboardText("SETTINGS_TITLE"));
    for (const Section &section : m_sections)
        section.heading->setText(dashboardText(section.textKey));
    for (const Row &row : m_rows)
        row.row->setTexts(dashboardText(row.titleKey),
                          row.textKey ? dashboardText(row.textKey) : QString());
    m_codes->setText(dashboardText("SETTINGS_CHANGE"));
    m_deleteAll->setText(dashboardText("SETTINGS_DELETE_ALL_BUTTON"));
    m_language->setValue(HostCore::Languages::nativeName(HostCore::Languages::current()));
    m_theme->setItems({dashboardText("SETTINGS_THEME_SYSTEM"),
                       dashboardText("SETTINGS_THEME_LIGHT"),
                       dashboardText("SETTINGS_THEME_DARK")});
    nameTextSizes();
    m_amount->setAccessibleName(dashboardText("SETTINGS_AMOUNT"));
    showValues();
    showLowBalance();
    showDevice();
}

// Sets the texts for the text sizes, without the percent sign in the narrow form, where there is
// not enough space.
void SettingsPage::nameTextSizes()
{
    const QString word = dashboardText("SETTINGS_PERCENT");
    QStringList sizes;
    for (const int percent : TEXT_SIZES)
        sizes << (m_form == Form::Narrow ? QString::number(percent) : word.arg(percent));
    m_textSize->setItems(sizes);
}

void SettingsPage::showValues()
{
    const DashboardSettings *settings = m_parts.settings;
    m_amount->setFixedWidth(px(AMOUNT_WIDTH));
    m_theme->setCurrent(settings ? themeIndex(settings->theme())
                                 : indexOf(CHOICES, Look::instance().theme()));
    m_textSize->setCurrent(indexOf(TEXT_SIZES, settings ? settings->textSize() : TEXT_SIZES[0]));
    m_showsText->setEnabled(m_notifies->isChecked());
}

void SettingsPage::showLowBalance()
{
    const QString amount = m_parts.settings ? m_parts.settings->lowBalance() : QString();
    if (!amount.isEmpty())
        m_amount->setText(amount);
    m_amount->setVisible(m_lowBalance->isChecked());
    m_lowBalanceRow->setTexts(dashboardText("SETTINGS_LOW_BALANCE"),
                              amount.isEmpty()
                                  ? dashboardText("SETTINGS_LOW_BALANCE_OFF")
                                  : dashboardText("SETTINGS_LOW_BALANCE_TEXT").arg(amount));
}

void SettingsPage::showDevice()
{
    const QString name = m_parts.codes->operatorInUse();
    m_modemRow->setTexts(dashboardText("SETTINGS_MODEM"), m_parts.device->status().sourceText());
    m_codesRow->setTexts(
        dashboardText("SETTINGS_CODES"),
        name.isEmpty()
            ? dashboardText(m_parts.codes->areSample() ? "CODES_SHIPPED" : "SETTINGS_NO_CODES")
            : name);
}

void SettingsPage::setDeviceChoice(const QString &text)
{
    m_modem->setValue(text);
    showDevice();
}

void SettingsPage::setDetection(bool isOn)
{
    m_detection->setChecked(isOn);
}

void SettingsPage::setForm(Form form)
{
    m_form = form;
    m_column->setForm(form);
    nameTextSizes();
    for (const Row &row : m_rows)
        row.row->setForm(form);
}

QWidget *SettingsPage::firstFocus() const
{
    return m_modem;
}

void SettingsPage::chooseTheme(int index)
{
    if (m_parts.settings)
        m_parts.settings->setTheme(QLatin1String(THEMES[index]));
    Look::instance().setTheme(CHOICES[index]);
}

void SettingsPage::chooseTextSize(int index)
{
    if (m_parts.settings)
        m_parts.settings->setTextSize(TEXT_SIZES[index]);
}

void SettingsPage::setReducesMotion(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setReducesMotion(isOn);
    Look::instance().setReducesMotion(isOn);
}

void SettingsPage::setNotifies(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setNotifiesMessages(isOn);
    showValues();
    emit changed();
}

void SettingsPage::setShowsText(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setShowsTextInNotifications(isOn);
    emit changed();
}

void SettingsPage::setLowBalanceOn(bool isOn)
{
    if (isOn && !m_amount->hasAcceptableInput())
        m_amount->setText(QLatin1String(FIRST_AMOUNT));
    if (m_parts.settings)
        m_parts.settings->setLowBalance(isOn ? m_amount->text() : QString());
    showLowBalance();
    emit changed();
}

void SettingsPage::setLowBalanceAmount()
{
    if (m_lowBalance->isChecked())
        setLowBalanceOn(true);
}

void SettingsPage::setAsksDaily(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setAsksDaily(isOn);
    emit changed();
}

void SettingsPage::setHides(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setHidesSimNumber(isOn);
    emit hidingChanged(isOn);
}

void SettingsPage::setKeeps(bool isOn)
{
    if (m_parts.settings)
        m_parts.settings->setKeepsHistory(isOn);
    emit keepingChanged(isOn);
}

void SettingsPage::askToDeleteAll()
{
    QMessageBox *box = named(new QMessageBox(window()), "Dashboard_DeleteAllQuestion");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(dashboardText("SETTINGS_DELETE_ALL"));
    box->setText(dashboardText("SETTINGS_DELETE_ALL_QUESTION"));
    QPushButton *yes =
        box->addButton(dashboardText("SETTINGS_DELETE_ALL"), QMessageBox::AcceptRole);
    QPushButton *no = box->addButton(dashboardText("CODES_CANCEL"), QMessageBox::RejectRole);
    setButtonKind(yes, "danger");
    box->setDefaultButton(no);
    box->setEscapeButton(no);
    connect(yes, &QPushButton::clicked, this, &SettingsPage::deleteAllRequested);
    box->open();
}

} // namespace Dashboard
