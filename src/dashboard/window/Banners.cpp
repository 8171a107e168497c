#include "Banners.h"

#include <QAccessible>
#include <QGridLayout>

#include "look/Icons.h"
#include "look/Look.h"

namespace Dashboard
{

namespace
{

// In pixels at 100 % text size. A banner whose text wraps is taller.
const int HEIGHT = 60;
const int TWO_ROWS = 104;

struct Appearance {
    const char *box;
    const char *icon;
    Token token;
    const char *titleType;
};

// Indexed by Banners::Kind.
const Appearance APPEARANCES[] = {
    {"banner_info", "check", Token::AccentText, "strong"},
    {"banner_info", "tag", Token::AccentText, "strong"},
    {"banner_warn", "warning", Token::Warn, "strong"},
    {"banner_info", "info", Token::AccentText, "strong"},
    {"banner_warn", "flask", Token::Warn, "strong"},
};

} // namespace

Banners::Banners(QWidget *parent)
    : QFrame(parent), m_grid(new QGridLayout(this)), m_icon(new IconView(this)),
      m_title(new ElidedLabel(this)), m_text(makeLabel("small", this)),
      m_action(makeButton("", this)), m_close(makeButton("ghost", this))
{
    setObjectName(QLatin1String("Dashboard_Banner"));
    setLabelType(m_title, "strong");
    m_text->setWordWrap(true);
    m_title->setObjectName(QLatin1String("Dashboard_BannerTitle"));
    m_text->setObjectName(QLatin1String("Dashboard_BannerText"));
    m_action->setObjectName(QLatin1String("Dashboard_BannerAction"));
    m_close->setObjectName(QLatin1String("Dashboard_BannerClose"));
    setButtonIcon(m_action, "modem", Token::Text);
    connect(m_action, &QPushButton::clicked, this, [this] { emit actionRequested(Kind(shown())); });
    connect(m_close, &QPushButton::clicked, this, [this] { emit closeRequested(Kind(shown())); });
    connect(&Look::instance(), &Look::changed, this, &Banners::layOut);
    layOut();
    refresh();
}

int Banners::shown() const
{
    for (int kind = Saved; kind <= Demonstration; ++kind) {
        if (!m_banners[kind].title.isEmpty())
            return kind;
    }
    return -1;
}

void Banners::setBanner(Kind kind, const Banner &banner)
{
    m_banners[kind] = banner;
    refresh();
}

void Banners::setForm(Form form)
{
    if (form == m_form)
        return;
    m_form = form;
    layOut();
}

void Banners::setSuppressed(bool isSuppressed)
{
    m_isSuppressed = isSuppressed;
    refresh();
}

// Arranges the widgets. In the narrow form, the buttons are below the text, because they do not fit
// next to it.
void Banners::layOut()
{
    for (QWidget *widget : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        m_grid->removeWidget(widget);
    const bool isNarrow = m_form == Form::Narrow;
    const bool hasTwoRows = isNarrow && !(m_close->isHidden() && m_action->isHidden());
    const int columns = hasTwoRows ? 3 : 1;
    m_grid->addWidget(m_icon, 0, 0, 2, 1);
    m_grid->addWidget(m_title, 0, 1, 1, columns, Qt::AlignBottom);
    m_grid->addWidget(m_text, 1, 1, 1, columns, Qt::AlignTop);
    if (hasTwoRows)
        m_grid->addWidget(m_action, 2, 0, 1, 3, Qt::AlignRight);
    else
        m_grid->addWidget(m_action, 0, 2, 2, 1);
    m_grid->addWidget(m_close, hasTwoRows ? 2 : 0, 3, hasTwoRows ? 1 : 2, 1);
    m_grid->setColumnStretch(1, 1);
    setMargins(m_grid, isNarrow ? 16 : 24, 8, 16, 8);
    m_grid->setHorizontalSpacing(px(isNarrow ? 8 : 12));
    m_grid->setVerticalSpacing(0);
    setMinimumHeight(px(hasTwoRows ? TWO_ROWS : HEIGHT));
}

void Banners::refresh()
{
    const int kind = shown();
    setVisible(kind >= 0 && !m_isSuppressed);
    if (kind < 0)
        return;
    const Banner &banner = m_banners[kind];
    const Appearance &appearance = APPEARANCES[kind];
    const bool isNew = m_title->text() != banner.title;
    setBox(this, appearance.box);
    m_icon->setIcon(appearance.icon, appearance.token);
    m_title->setText(banner.title);
    m_text->setText(banner.text);
    m_action->setText(banner.action);
    m_action->setIcon(kind == Demonstration ? icon("modem", Token::Text) : QIcon());
    m_action->setVisible(!banner.action.isEmpty());
    m_close->setText(banner.close);
    m_close->setVisible(!banner.close.isEmpty());
    setAccessibleName(banner.title);
    setAccessibleDescription(banner.text);
    layOut();
    if (isNew) {
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace Dashboard
