#include "ServicesPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ActionCard.h"
#include "AppActions.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "CommonUtils.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "PageColumn.h"
#include "StateCard.h"

namespace Dashboard
{

namespace
{

const int WIDEST = 1040; // in pixels at 100 % text size
const int CARD_WIDTH = 240;
const int MOST_COLUMNS = 3;
const int GAP = 12;

QLabel *makeText(const char *type, const char *name, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

/// Returns the second line of the service's card: the recipient, the required input, or the code.
QString lineOf(const Service &service)
{
    if (!service.isByCode)
        return dashboardText("SERVICE_TO").arg(isolated(service.number));
    switch (service.input) {
    case Service::Input::Number:
        return dashboardText("SERVICE_ASKS_NUMBER");
    case Service::Input::Text:
        return dashboardText("SERVICE_ASKS_TEXT");
    case Service::Input::None:
        break;
    }
    return isolated(service.code);
}

QList<Service> servicesOfKind(const QList<Service> &services, bool isByCode)
{
    QList<Service> result;
    for (const Service &service : services) {
        if (service.isByCode == isByCode)
            result << service;
    }
    return result;
}

} // namespace

// ---- a group ------------------------------------------------------------------------------------

ServiceGroup::ServiceGroup(QWidget *parent)
    : QWidget(parent), m_title(makeLabel("section", this)), m_grid(new QGridLayout)
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    setSpacing(column, 8);
    column->addWidget(m_title);
    column->addLayout(m_grid);
    setSpacing(m_grid, GAP);
}

void ServiceGroup::setTitle(const QString &title)
{
    m_title->setText(title);
}

void ServiceGroup::setServices(const QList<Service> &services)
{
    for (ActionCard *card : m_cards) {
        card->hide();
        card->deleteLater();
    }
    m_cards.clear();
    for (const Service &service : services)
        addCard(service);
    arrange(columnsFor(width()));
    setVisible(!services.isEmpty());
}

void ServiceGroup::addCard(const Service &service)
{
    ActionCard *card = new ActionCard(this);
    card->setObjectName(QString::fromLatin1("Dashboard_Service_%1").arg(service.row));
    card->setIconName(service.icon);
    card->setTexts(service.name, lineOf(service));
    const int row = service.row;
    connect(card, &ActionCard::clicked, this, [this, row] { emit chosen(row); });
    m_cards << card;
}

int ServiceGroup::columnsFor(int width) const
{
    const int card = px(CARD_WIDTH) + m_grid->spacing();
    return qBound(1, (width + m_grid->spacing()) / card, MOST_COLUMNS);
}

void ServiceGroup::arrange(int columns)
{
    m_columns = columns;
    for (ActionCard *card : m_cards)
        m_grid->removeWidget(card);
    for (int i = 0; i < m_cards.size(); ++i)
        m_grid->addWidget(m_cards.at(i), i / columns, i % columns);
    for (int column = 0; column < MOST_COLUMNS; ++column)
        m_grid->setColumnStretch(column, column < columns ? 1 : 0);
}

void ServiceGroup::resizeEvent(QResizeEvent *event)
{
    const int columns = columnsFor(width());
    if (columns != m_columns)
        arrange(columns);
    QWidget::resizeEvent(event);
}

/// Returns the width of a single card, so that the page can become narrower than the current
/// columns.
QSize ServiceGroup::minimumSizeHint() const
{
    int width = 0;
    for (const ActionCard *card : m_cards)
        width = qMax(width, card->minimumSizeHint().width());
    return QSize(width, layout()->minimumSize().height());
}

// ---- the page -----------------------------------------------------------------------------------

ServicesPage::ServicesPage(AppActions *actions, QWidget *parent)
    : Page("Dashboard_ServicesPage", parent), m_actions(actions),
      m_column(new PageColumn(WIDEST, this)),
      m_title(makeText("h1", "Dashboard_ServicesTitle", this)),
      m_intro(makeText("muted", "Dashboard_ServicesIntro", this)), m_notice(makeCard(this)),
      m_noticeIcon(new IconDisc(m_notice)),
      m_noticeTitle(makeText("h3", "Dashboard_ServicesNoticeTitle", m_notice)),
      m_noticeText(makeText("small", "Dashboard_ServicesNoticeText", m_notice)),
      m_noticeButtons(new RemedyButtons(Qt::AlignLeft, m_notice)),
      m_none(makeText("muted", "Dashboard_ServicesNone", this)), m_byCode(new ServiceGroup(this)),
      m_byText(new ServiceGroup(this))
{
    QVBoxLayout *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(m_column);
    makeNotice();
    QVBoxLayout *column = m_column->column();
    setSpacing(column, 16);
    for (QWidget *part : {static_cast<QWidget *>(m_title), static_cast<QWidget *>(m_notice),
                          static_cast<QWidget *>(m_intro), static_cast<QWidget *>(m_none),
                          static_cast<QWidget *>(m_byCode), static_cast<QWidget *>(m_byText)})
        column->addWidget(part);
    column->addStretch();
    for (ServiceGroup *group : {m_byCode, m_byText})
        connect(group, &ServiceGroup::chosen, this,
                [this](int row) { m_actions->openServicesWindow(row); });
    m_situation.canSend = true;
    retranslate();
}

void ServicesPage::makeNotice()
{
    m_notice->setObjectName(QLatin1String("Dashboard_ServicesNotice"));
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 4);
    texts->addWidget(m_noticeTitle);
    texts->addWidget(m_noticeText);
    texts->addSpacing(px(4));
    texts->addWidget(m_noticeButtons);
    QHBoxLayout *row = new QHBoxLayout(m_notice);
    setMargins(row, 18, 16, 18, 16);
    setSpacing(row, 14);
    row->addWidget(m_noticeIcon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    connect(m_noticeButtons, &RemedyButtons::chosen, this,
            [this](Remedy remedy) { m_actions->perform(remedy); });
}

/// Returns the services of the services window, or an empty list if this window is not available.
QList<Service> ServicesPage::services() const
{
    return m_isOffered ? Dashboard::readServices(CommonUtils::GetPluginLibraryPath())
                       : QList<Service>();
}

void ServicesPage::readServices()
{
    const QList<Service> services = this->services();
    if (services == m_services)
        return;
    m_services = services;
    showServices();
}

void ServicesPage::setOffered(bool isOffered)
{
    m_isOffered = isOffered;
    readServices();
}

void ServicesPage::setOperatorName(const QString &name)
{
    m_operatorName = name;
    m_intro->setText(name.isEmpty() ? dashboardText("SERVICE_INTRO_UNNAMED")
                                    : dashboardText("SERVICE_INTRO").arg(name));
}

void ServicesPage::setSituation(const Situation &situation)
{
    m_situation = situation;
    update();
}

void ServicesPage::setMenuOpen(bool isOpen)
{
    m_isMenuOpen = isOpen;
    update();
}

void ServicesPage::showServices()
{
    m_byCode->setServices(servicesOfKind(m_services, true));
    m_byText->setServices(servicesOfKind(m_services, false));
    update();
}

bool ServicesPage::isUsable() const
{
    return m_situation.canSend && !m_isMenuOpen;
}

/// Updates the notice, and enables the cards if the services can be used. The notice is shown if
/// the services cannot be used or if the operator is unknown.
void ServicesPage::update()
{
    const bool isUnknown = m_situation.kind == Situation::Kind::CodesUnknown;
    const bool isMenu = m_situation.canSend && m_isMenuOpen;
    m_noticeIcon->setIcon(isMenu || !m_situation.icon ? "list" : m_situation.icon,
                          isMenu ? Tone::Accent : m_situation.tone);
    m_noticeTitle->setText(isMenu ? dashboardText("QUESTION_TITLE") : m_situation.title);
    m_noticeText->setText(isMenu ? dashboardText("SERVICE_END_MENU") : m_situation.text);
    m_noticeButtons->setRemedies(isMenu ? QList<Remedy>() : m_situation.remedies.mid(0, 1));
    m_notice->setVisible(!isUsable() || isUnknown);
    m_none->setVisible(m_services.isEmpty() && m_situation.canSend && !isUnknown);
    m_intro->setVisible(!m_services.isEmpty());
    m_byCode->setEnabled(isUsable());
    m_byText->setEnabled(isUsable());
}

void ServicesPage::retranslate()
{
    m_title->setText(dashboardText("SERVICE_TITLE"));
    m_none->setText(dashboardText("SERVICE_NONE"));
    m_byCode->setTitle(dashboardText("SERVICE_BY_CODE"));
    m_byText->setTitle(dashboardText("SERVICE_BY_TEXT"));
    setOperatorName(m_operatorName);
    m_services = services();
    showServices();
}

void ServicesPage::setForm(Form form)
{
    m_column->setForm(form);
}

QWidget *ServicesPage::firstFocus() const
{
    if (m_notice->isVisible() && m_noticeButtons->firstButton())
        return m_noticeButtons->firstButton();
    return m_byCode->firstCard() ? m_byCode->firstCard() : m_byText->firstCard();
}

} // namespace Dashboard
