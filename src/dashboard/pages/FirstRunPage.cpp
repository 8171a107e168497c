#include "FirstRunPage.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "device/DashboardSettings.h"
#include "device/DeviceWatcher.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "OperatorOption.h"
#include "PageColumn.h"
#include "ProviderChoice.h"
#include "sim/OperatorCodes.h"
#include "tksv_device.h"

using namespace Provisioning;

namespace Dashboard
{

namespace
{

const int WIDEST = 640; // in pixels at 100 % text size
const int SHOWN_DIGITS = 4;
const int COSTS_ICON = 16;
const int COSTS_GAP = 8;

bool isAboutModem(Situation::Kind kind)
{
    switch (kind) {
    case Situation::Kind::LookingForModem:
    case Situation::Kind::NoModem:
    case Situation::Kind::ChosenAbsent:
    case Situation::Kind::ModemRemoved:
    case Situation::Kind::ModemFailed:
    case Situation::Kind::NoBus:
    case Situation::Kind::NoService:
    case Situation::Kind::ServiceSilent:
    case Situation::Kind::NotPermitted:
    case Situation::Kind::NoUssd:
        return true;
    default:
        return false;
    }
}

bool isAboutSim(Situation::Kind kind)
{
    switch (kind) {
    case Situation::Kind::NoSim:
    case Situation::Kind::SimLocked:
    case Situation::Kind::PukNeeded:
    case Situation::Kind::Off:
    case Situation::Kind::Searching:
    case Situation::Kind::RegistrationDenied:
        return true;
    default:
        return false;
    }
}

/// Returns a description of the operator's codes, for example "Codes: balance, top-up".
QString codesOf(const Provider &provider)
{
    const struct {
        const QList<ProviderCode> &codes;
        const char *textKey;
    } kinds[] = {{provider.balance, "FIRST_BALANCE"},
                 {provider.topUp, "FIRST_TOP_UP"},
                 {provider.ownNumber, "FIRST_NUMBER"}};
    QStringList names;
    for (const auto &kind : kinds) {
        if (!kind.codes.isEmpty())
            names << dashboardText(kind.textKey);
    }
    return dashboardText("FIRST_OPTION").arg(names.join(QLatin1String(", ")));
}

} // namespace

FirstRunStep::FirstRunStep(const char *objectName, QWidget *parent)
    : QWidget(parent), m_icon(new IconDisc(this)), m_title(makeLabel("strong", this)),
      m_text(makeLabel("small", this)), m_button(makeButton("", this))
{
    setObjectName(QLatin1String(objectName));
    m_title->setObjectName(QLatin1String(objectName) + QLatin1String("Title"));
    m_title->setWordWrap(true);
    m_text->setWordWrap(true);
    QGridLayout *grid = new QGridLayout(this);
    setMargins(grid, 0, 12, 0, 12);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_title, 0, 1);
    grid->addWidget(m_text, 1, 1);
    grid->addWidget(m_button, 2, 1, Qt::AlignLeading);
    grid->setColumnStretch(1, 1);
    connect(m_button, &QPushButton::clicked, this, [this] { emit chosen(m_remedy); });
    setRemedy(Remedy::None);
}

void FirstRunStep::setDone(const char *icon, bool isDone)
{
    m_icon->setIcon(isDone ? "check" : icon, isDone ? Tone::Ok : Tone::Accent);
}

void FirstRunStep::setTexts(const QString &title, const QString &text)
{
    m_title->setText(title);
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

void FirstRunStep::setRemedy(Remedy remedy)
{
    m_remedy = remedy;
    m_button->setVisible(remedy != Remedy::None);
    m_button->setText(remedy == Remedy::None ? QString() : remedyText(remedy));
}

bool isFirstRunDue(const DashboardSettings *settings, const DeviceWatcher &device,
                   const OperatorCodes &codes)
{
    return settings && !settings->isFirstRunDone() && !device.status().isSimulated &&
           codes.isFree() && !codes.isDecided();
}

FirstRunPage::FirstRunPage(DashboardSettings *settings, const DeviceWatcher *device,
                           const OperatorCodes *codes, QMenu *languageMenu, QWidget *parent)
    : Page("Dashboard_FirstRunPage", parent), m_settings(settings), m_device(device),
      m_codes(codes), m_column(new PageColumn(WIDEST, this)), m_language(new MenuButton(this)),
      m_card(Dashboard::makeCard(this)), m_title(makeLabel("h1", this)),
      m_intro(makeLabel("muted", this)), m_modem(new FirstRunStep("Dashboard_FirstRunModem", this)),
      m_sim(new FirstRunStep("Dashboard_FirstRunSim", this)),
      m_choice(new FirstRunStep("Dashboard_FirstRunChoice", this)), m_list(new QVBoxLayout),
      m_group(new QButtonGroup(this)), m_demonstration(makeButton("ghost", this)),
      m_notNow(makeButton("", this)), m_use(makeButton("primary", this)),
      m_costsIcon(new IconView(this)), m_costs(makeLabel("cap", this))
{
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(m_column);
    m_intro->setWordWrap(true);
    m_card->installEventFilter(this);
    makeCard();
    m_language->setObjectName(QLatin1String("Dashboard_FirstRunLanguage"));
    m_language->setMenu(languageMenu);
    m_column->column()->addWidget(m_language, 0, Qt::AlignTrailing);
    m_column->column()->addStretch(1);
    m_column->column()->addWidget(m_card);
    m_column->column()->addLayout(makeCosts());
    m_column->column()->addStretch(1);
    connect(m_group, &QButtonGroup::idClicked, this, &FirstRunPage::showChoice);
    for (const FirstRunStep *step : {m_modem, m_sim, m_choice})
        connect(step, &FirstRunStep::chosen, this, &FirstRunPage::chosen);
    retranslate();
}

QLayout *FirstRunPage::makeCosts()
{
    m_costsIcon->setIcon("lock", Token::Text3, COSTS_ICON);
    m_costsIcon->setObjectName(QLatin1String("Dashboard_FirstRunCostsIcon"));
    m_costs->setWordWrap(true);
    m_costs->setObjectName(QLatin1String("Dashboard_FirstRunCosts"));
    QHBoxLayout *row = new QHBoxLayout;
    setSpacing(row, COSTS_GAP);
    row->addStretch(1);
    row->addWidget(m_costsIcon, 0, Qt::AlignTop);
    row->addWidget(m_costs);
    row->addStretch(1);
    return row;
}

/// Keeps the note in one line if there is space, because a label that wraps its text prefers two.
void FirstRunPage::limitCosts()
{
    m_costs->ensurePolished();
    const int room = m_card->width() - m_costsIcon->sizeHint().width() - 3 * px(COSTS_GAP);
    if (room > 0)
        m_costs->setFixedWidth(
            qMin(m_costs->fontMetrics().horizontalAdvance(m_costs->text()) + 2, room));
}

void FirstRunPage::makeCard()
{
    QVBoxLayout *card = new QVBoxLayout(m_card);
    setMargins(card, 32, 24, 32, 24);
    setSpacing(card, 0);
    card->addWidget(m_title);
    card->addSpacing(4);
    card->addWidget(m_intro);
    card->addSpacing(12);
    for (FirstRunStep *step : {m_modem, m_sim, m_choice}) {
        card->addWidget(makeLine(m_card));
        card->addWidget(step);
    }
    card->addLayout(m_list);
    setMargins(m_list, 54, 0, 0, 20);
    setSpacing(m_list, 6);
    makeButtons(card);
}

void FirstRunPage::makeButtons(QVBoxLayout *card)
{
    m_demonstration->setObjectName(QLatin1String("Dashboard_FirstRunDemonstration"));
    m_notNow->setObjectName(QLatin1String("Dashboard_FirstRunNotNow"));
    m_use->setObjectName(QLatin1String("Dashboard_FirstRunUse"));
    setButtonIcon(m_demonstration, "flask", Token::AccentText);
    QWidget *row = new QWidget(m_card);
    row->setMinimumWidth(1); // instead of the width of all buttons; see arrangeButtons()
    m_buttons = new QHBoxLayout(row);
    m_buttons->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_buttons, 8);
    m_buttons->addWidget(m_demonstration);
    m_buttons->addStretch();
    m_buttons->addWidget(m_notNow);
    m_buttons->addWidget(m_use);
    card->addWidget(row);
    connect(m_demonstration, &QPushButton::clicked, this,
            [this] { emit chosen(Remedy::TryDemonstration); });
    connect(m_notNow, &QPushButton::clicked, this, &FirstRunPage::finish);
    connect(m_use, &QPushButton::clicked, this, &FirstRunPage::useChosen);
}

bool FirstRunPage::hasModem() const
{
    return !isAboutModem(m_situation.kind);
}

bool FirstRunPage::hasSim() const
{
    return hasModem() && !isAboutSim(m_situation.kind);
}

void FirstRunPage::showSituation(const Situation &situation)
{
    m_situation = situation;
    listOperators();
    showSteps();
}

void FirstRunPage::showSteps()
{
    const DeviceStatus &status = m_device->status();
    m_modem->setDone(m_situation.icon ? m_situation.icon : "modem", hasModem());
    m_sim->setDone(hasModem() && m_situation.icon ? m_situation.icon : "sim", hasSim());
    showRemedies();
    if (hasModem())
        m_modem->setTexts(dashboardText("FIRST_MODEM_FOUND"), status.source);
    else
        m_modem->setTexts(m_situation.title, m_situation.text);
    if (hasSim())
        m_sim->setTexts(
            dashboardText("FIRST_SIM_READY"),
            dashboardText("FIRST_SIM_TEXT").arg(isolated(status.imsi.right(SHOWN_DIGITS))));
    else if (hasModem())
        m_sim->setTexts(m_situation.title, m_situation.text);
    else
        m_sim->setTexts(dashboardText("FIRST_SIM_LATER"), QString());
    showChoice();
}

/// Shows the button of the step that is not completed. If the button of a completed step had the
/// focus, the page keeps the focus until passFocusOn() finds the next step. Otherwise, the next key
/// could start the demonstration.
void FirstRunPage::showRemedies()
{
    const QWidget *const focus = window()->focusWidget();
    const Remedy remedy = m_situation.remedies.value(0, Remedy::None);
    m_modem->setRemedy(hasModem() ? Remedy::None : remedy);
    m_sim->setRemedy(hasModem() && !hasSim() ? remedy : Remedy::None);
    if (focus && (focus == m_modem->button() || focus == m_sim->button()) && focus->isHidden())
        setFocus();
    passFocusOn();
}

void FirstRunPage::passFocusOn()
{
    if (window()->focusWidget() != this)
        return;
    for (FirstRunStep *step : {m_modem, m_sim}) {
        if (!step->button()->isHidden())
            return step->button()->setFocus();
    }
    if (!m_options.isEmpty())
        m_options.first()->setFocus();
}

/// Returns the text of the third step, which depends on the operators that match the SIM.
QString FirstRunPage::choiceText() const
{
    if (!hasSim() || m_listedNetwork.isEmpty())
        return dashboardText("FIRST_CHOICE_LATER");
    if (m_providers.isEmpty())
        return dashboardText("FIRST_CHOICE_NONE");
    return m_providers.size() == 1 ? dashboardText("FIRST_CHOICE_ONE")
                                   : dashboardText("FIRST_CHOICE_SEVERAL").arg(m_providers.size());
}

void FirstRunPage::listOperators()
{
    const QString network = hasSim() ? m_codes->network() : QString();
    if (network == m_listedNetwork && (network.isEmpty() || !m_options.isEmpty()))
        return;
    m_listedNetwork = network;
    clearOptions();
    m_providers.clear();
    if (network.isEmpty())
        return;
    m_providers = m_codes->candidates();
    for (const Provider &provider : m_providers)
        addOption(provider.name(), QString());
    addOption(QString(), QString());
    const bool isCertain = m_codes->choice().state == ProviderChoice::Chosen;
    if (isCertain && m_providers.size() == 1)
        m_options.first()->setChecked(true);
    retranslate();
    passFocusOn();
}

void FirstRunPage::addOption(const QString &title, const QString &text)
{
    OperatorOption *option = new OperatorOption(title, text, m_card);
    m_group->addButton(option, int(m_options.size()));
    m_list->addWidget(option);
    m_options << option;
}

void FirstRunPage::clearOptions()
{
    qDeleteAll(m_options);
    m_options.clear();
}

void FirstRunPage::showChoice()
{
    const int index = m_group->checkedId();
    const bool isOperator = index >= 0 && index < m_providers.size();
    m_choice->setDone("shield", false);
    m_choice->setTexts(dashboardText("FIRST_CHOICE"), choiceText());
    m_use->setEnabled(index >= 0);
    m_use->setText(isOperator ? dashboardText("FIRST_USE").arg(m_providers.at(index).name())
                              : dashboardText(index >= 0 ? "FIRST_GO_ON" : "FIRST_USE_NOBODY"));
    arrangeButtons();
}

void FirstRunPage::useChosen()
{
    const int index = m_group->checkedId();
    if (index < 0)
        return;
    if (index < m_providers.size())
        emit providerChosen(m_providers.at(index));
    else
        emit declined();
    if (m_codes->isDecided())
        finish();
}

void FirstRunPage::finish()
{
    if (m_settings)
        m_settings->setFirstRunDone(true);
    emit finished();
}

void FirstRunPage::retranslate()
{
    m_language->setTitle(dashboardText("SETTINGS_LANGUAGE"));
    m_language->setValue(HostCore::Languages::nativeName(HostCore::Languages::current()));
    m_title->setText(dashboardText("FIRST_TITLE"));
    m_intro->setText(dashboardText("FIRST_INTRO"));
    m_costs->setText(dashboardText("FIRST_COSTS"));
    limitCosts();
    m_demonstration->setText(dashboardText("FIRST_DEMONSTRATION"));
    m_notNow->setText(dashboardText("FIRST_NOT_NOW"));
    for (int i = 0; i < m_options.size(); ++i) {
        if (i < m_providers.size())
            m_options.at(i)->setTexts(m_providers.at(i).name(), codesOf(m_providers.at(i)));
        else
            m_options.at(i)->setTexts(dashboardText("FIRST_WITHOUT"),
                                      dashboardText("FIRST_WITHOUT_TEXT"));
    }
    showSteps();
}

void FirstRunPage::setForm(Form form)
{
    m_column->setForm(form);
    const bool isNarrow = form == Form::Narrow;
    setMargins(m_card->layout(), isNarrow ? 16 : 32, 20, isNarrow ? 16 : 32, 20);
    setMargins(m_list, isNarrow ? 0 : 54, 0, 0, 20);
}

// Arranges the buttons again when the card is resized, or when the style sheet changes the size of
// the buttons. The event filter is necessary, because the card is resized after the page.
bool FirstRunPage::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_card && (type == QEvent::Resize || type == QEvent::LayoutRequest)) {
        arrangeButtons();
        limitCosts();
    }
    return Page::eventFilter(watched, event);
}

/// Shortens the text of the button if the card is too narrow for it.
void FirstRunPage::nameDemonstration(int room)
{
    m_demonstration->ensurePolished();
    const QFontMetrics metrics = m_demonstration->fontMetrics();
    const QString text = dashboardText("FIRST_DEMONSTRATION");
    const int wanted = m_demonstration->sizeHint().width() + metrics.horizontalAdvance(text) -
                       metrics.horizontalAdvance(m_demonstration->text());
    m_demonstration->setText(wanted <= room ? text : remedyText(Remedy::TryDemonstration));
}

/// Arranges the buttons vertically if they are too wide for a single row.
void FirstRunPage::arrangeButtons()
{
    const QMargins margins = m_card->layout()->contentsMargins();
    const int room = m_card->width() - margins.left() - margins.right();
    nameDemonstration(room);
    int wanted = 2 * m_buttons->spacing();
    for (QPushButton *button : {m_demonstration, m_notNow, m_use}) {
        button->ensurePolished();
        wanted += button->sizeHint().width();
    }
    m_buttons->setDirection(wanted > room ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight);
}

QWidget *FirstRunPage::firstFocus() const
{
    return m_notNow;
}

} // namespace Dashboard
