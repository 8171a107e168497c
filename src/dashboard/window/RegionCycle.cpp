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

/// Returns the first widget in the region that takes the focus, in the order of the Tab key.
QWidget *firstIn(QWidget *region)
{
    QWidget *widget = region;
    do {
        if ((widget == region || region->isAncestorOf(widget)) && takesFocus(widget))
            return widget;
        widget = widget->nextInFocusChain();
    } while (widget && widget != region);
    return nullptr;
}

} // namespace

/// Returns the index of the smallest region that contains the focus, or -1.
int RegionCycle::current() const
{
    QWidget *const focus = QApplication::focusWidget();
    int found = -1;
    for (int i = 0; focus && i < m_regions.size(); ++i) {
        const QWidget *region = m_regions.at(i)();
        const bool contains = region && (region == focus || region->isAncestorOf(focus));
        if (contains && (found < 0 || m_regions.at(found)()->isAncestorOf(region)))
            found = i;
    }
    return found;
}

void RegionCycle::move(int step) const
{
    const int count = int(m_regions.size());
    const int start = current();
    for (int i = 1; i <= count; ++i) {
        const int index =
            start < 0 && step < 0 ? count - i : (start + i * step + i * count) % count;
        QWidget *region = m_regions.at((index + count) % count)();
        QWidget *first = region && region->isVisible() ? firstIn(region) : nullptr;
        if (first) {
            first->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

} // namespace Dashboard
