#ifndef REGIONCYCLE_H
#define REGIONCYCLE_H

#include <QList>

#include <functional>

class QWidget;

namespace Dashboard
{

/**
 * Moves the focus between the regions of a window, as F6 does. A region that cannot take the focus
 * is skipped.
 */
class RegionCycle
{
public:
    /// A function that returns the current widget of the region, or null.
    using Region = std::function<QWidget *()>;

    void add(const Region &region) { m_regions << region; }
    /// Moves the focus to the next region, or to the previous one if `step` is -1.
    void move(int step) const;

private:
    int current() const;

    QList<Region> m_regions;
};

} // namespace Dashboard

#endif
