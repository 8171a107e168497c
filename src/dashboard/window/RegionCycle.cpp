#include "RegionCycle.h"

#include <QApplication>
#include <QWidget>

namespace Dashboard
{

namespace
{

bool takesFocus(const QWidget *widget)
{
    return widget->isEnabled() && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus);
}

} // namespace

/// Returns the index of the smallest region that contains the widget, or -1.
int RegionCycle::regionOf(const QWidget *widget) const
{
    int found = -1;
    for (int i = 0; widget && i < m_regions.size(); ++i) {
        const QWidget *region = m_regions.at(i)();
        const bool contains = region && (region == widget || region->isAncestorOf(widget));
        if (contains && (found < 0 || m_regions.at(found)()->isAncestorOf(region)))
            found = i;
    }
    return found;
}

/// Returns the first widget of the region that accepts the focus, in the tab order. Widgets of
/// smaller regions inside the region are skipped.
QWidget *RegionCycle::firstIn(int index) const
{
    QWidget *const region = m_regions.at(index)();
    QWidget *widget = region;
    while (widget) {
        if (takesFocus(widget) && regionOf(widget) == index)
            return widget;
        widget = widget->nextInFocusChain();
        if (widget == region)
            break;
    }
    return nullptr;
}

void RegionCycle::move(int step) const
{
    const int count = int(m_regions.size());
    const int start = regionOf(QApplication::focusWidget());
    for (int i = 1; i <= count; ++i) {
        const int index =
            start < 0 && step < 0 ? count - i : (start + i * step + i * count) % count;
        if (QWidget *first = firstIn((index + count) % count)) {
            first->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

} // namespace Dashboard
