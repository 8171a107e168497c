#include "AccessibleRoles.h"

#include <QAccessibleWidget>

#include "Banners.h"
#include "Navigation.h"
#include "pages/AccountTile.h"
#include "pages/BalanceCard.h"
#include "pages/BalanceChart.h"
#include "SignalBars.h"

namespace Dashboard
{

namespace
{

/** The accessible interface of a page tab, which supports the press action. */
class PageTab : public QAccessibleWidget
{
public:
    explicit PageTab(NavigationButton *button)
        : QAccessibleWidget(button, QAccessible::PageTab), m_button(button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_button->isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            m_button->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    NavigationButton *m_button;
};

/// Returns true for the dashboard's own frames, such as cards. By default, Qt gives them an
/// unsuitable role.
bool isGroup(const QString &className, const QObject *object)
{
    return className.startsWith(QLatin1String("Dashboard::")) &&
           className == QLatin1String(object->metaObject()->className()) &&
           object->inherits("QFrame") && !object->inherits("QLabel") &&
           !object->inherits("QAbstractScrollArea");
}

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (NavigationButton *button = qobject_cast<NavigationButton *>(object))
        return new PageTab(button);
    if (SignalBars *bars = qobject_cast<SignalBars *>(object))
        return new QAccessibleWidget(bars, QAccessible::Graphic);
    if (Banners *banners = qobject_cast<Banners *>(object))
        return new QAccessibleWidget(banners, QAccessible::AlertMessage);
    if (isGroup(className, object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    if (ChartView *chart = qobject_cast<ChartView *>(object))
        return new QAccessibleWidget(chart, QAccessible::Graphic);
    if (qobject_cast<BalanceCard *>(object) || qobject_cast<AccountTile *>(object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    QAccessible::removeFactory(makeInterface);
    QAccessible::installFactory(makeInterface);
}

} // namespace Dashboard
