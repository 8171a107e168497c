#include "Navigation.h"

#include <QBoxLayout>
#include <QButtonGroup>

#include "base/DashboardText.h"
#include "DeviceLine.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size.
const int SIDE_WIDTH = 216;
const int RAIL_WIDTH = 72;
const int BAR_HEIGHT = 64;
const int LOGO = 32;
const int MOST_UNREAD = 99; // larger numbers are shown as "99+"

struct Entry {
    PageId page;
    const char *icon;
    const char *textKey;
    const char *objectName;
};

const Entry ENTRIES[] = {
    {PageId::Home, "home", "NAV_HOME", "Dashboard_NavHome"},
    {PageId::Codes, "codes", "NAV_CODES", "Dashboard_NavCodes"},
    {PageId::Services, "services", "NAV_SERVICES", "Dashboard_NavServices"},
    {PageId::Messages, "messages", "NAV_MESSAGES", "Dashboard_NavMessages"},
    {PageId::Settings, "settings", "NAV_SETTINGS", "Dashboard_NavSettings"},
};

LabelledButton::Arrangement arrangementOf(Form form)
{
    switch (form) {
    case Form::Wide:
        return LabelledButton::Beside;
    case Form::Medium:
        return LabelledButton::IconOnly;
    case Form::Narrow:
        break;
    }
    return LabelledButton::Below;
}

} // namespace

NavigationButton::NavigationButton(const char *icon, const char *objectName, QWidget *parent)
    : LabelledButton("nav", parent)
{
    setObjectName(QLatin1String(objectName));
    setCheckable(true);
    setIcon(icon, Token::Text2, Token::AccentText);
}

Navigation::Navigation(QWidget *parent)
    : QFrame(parent), m_logo(makeLabel("logo", this)), m_title(makeLabel("h3", this)),
      m_line(makeLine(this)), m_buttons(new QButtonGroup(this))
{
    setObjectName(QLatin1String("Dashboard_Navigation"));
    for (const Entry &each : ENTRIES) {
        NavigationButton *button = new NavigationButton(each.icon, each.objectName, this);
        m_buttons->addButton(button, int(each.page));
        connect(button, &QPushButton::clicked, this, [this, &each] { emit chosen(each.page); });
    }
    m_device = new DeviceLine(this); // after the buttons, so that Tab reaches them first
    makeBrand();
    retranslate();
    setCurrent(PageId::Home);
    layOut();
    connect(&Look::instance(), &Look::changed, this, &Navigation::layOut);
}

void Navigation::makeBrand()
{
    m_logo->setText(QLatin1String("*#"));
    m_logo->setAlignment(Qt::AlignCenter);
    m_logo->setLayoutDirection(Qt::LeftToRight);
}

NavigationButton *Navigation::entry(PageId page) const
{
    return static_cast<NavigationButton *>(m_buttons->button(int(page)));
}

QPushButton *Navigation::button(PageId page) const
{
    return entry(page);
}

void Navigation::setForm(Form form)
{
    if (form == m_form)
        return;
    m_form = form;
    layOut();
}

// Arranges the existing buttons for the current form. The buttons are not created again, so that
// the focus is preserved.
void Navigation::layOut()
{
    delete m_box;
    const bool isWide = m_form == Form::Wide;
    const bool isNarrow = m_form == Form::Narrow;
    setBox(this, isNarrow ? "tabbar" : "side");
    for (const Entry &each : ENTRIES)
        entry(each.page)->setArrangement(arrangementOf(m_form));
    m_logo->setFixedSize(px(LOGO), px(LOGO));
    setShown(m_logo, !isNarrow);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_title, m_line, m_device})
        setShown(widget, isWide);
    setShown(entry(PageId::Settings), !isNarrow);
    if (isNarrow)
        layOutBar();
    else
        layOutColumn();
}

void Navigation::layOutBar()
{
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    setFixedHeight(px(BAR_HEIGHT));
    m_box = new QHBoxLayout(this);
    setMargins(m_box, 4, 4, 4, 4);
    setSpacing(m_box, 0);
    for (const Entry &each : ENTRIES)
        m_box->addWidget(entry(each.page), 1);
}

void Navigation::layOutColumn()
{
    const bool isWide = m_form == Form::Wide;
    setMinimumHeight(0);
    setMaximumHeight(QWIDGETSIZE_MAX);
    setFixedWidth(px(isWide ? SIDE_WIDTH : RAIL_WIDTH));
    m_box = new QVBoxLayout(this);
    setMargins(m_box, 12, isWide ? 16 : 12, 12, 12);
    setSpacing(m_box, 4);
    QHBoxLayout *brand = new QHBoxLayout;
    m_box->addLayout(brand);
    setMargins(brand, isWide ? 4 : 7, 0, 0, isWide ? 12 : 8);
    setSpacing(brand, 10);
    brand->addWidget(m_logo);
    brand->addWidget(m_title, 1);
    brand->addStretch(isWide ? 0 : 1);
    for (const Entry &each : ENTRIES) {
        if (each.page == PageId::Settings)
            m_box->addStretch();
        m_box->addWidget(entry(each.page));
    }
    m_box->addWidget(m_line);
    m_box->addWidget(m_device);
}

void Navigation::setCurrent(PageId page)
{
    entry(page)->setChecked(true);
}

PageId Navigation::current() const
{
    return PageId(m_buttons->checkedId());
}

void Navigation::setUnread(int count)
{
    m_unread = count;
    NavigationButton *messages = entry(PageId::Messages);
    if (count <= 0)
        messages->setBadge(QString());
    else if (count > MOST_UNREAD)
        messages->setBadge(QString::number(MOST_UNREAD) + QLatin1Char('+'));
    else
        messages->setBadge(QString::number(count));
    messages->setAccessibleDescription(count > 0 ? dashboardText("NAV_UNREAD").arg(count)
                                                 : QString());
}

void Navigation::retranslate()
{
    m_title->setText(dashboardText("NAV_TITLE"));
    for (const Entry &each : ENTRIES) {
        entry(each.page)->setText(dashboardText(each.textKey));
        entry(each.page)->setAccessibleName(dashboardText(each.textKey));
    }
    setUnread(m_unread);
}

} // namespace Dashboard
