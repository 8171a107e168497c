#ifndef REGIONCYCLE_H
#define REGIONCYCLE_H

#include <QList>

#include <functional>

class QWidget;

namespace Dashboard
{

/**
 * Moves the focus between the regions of a window, for the keys F6 and Shift+F6. Regions that do
 * not accept the focus are skipped.
 */
class RegionCycle
{
public:
    /// A function that returns the widget of the region, or null if the region does not exist at
    /// present.
    using Region = std::function<QWidget *()>;

    void add(const Region &region) { m_regions << region; }
    /// Moves the focus to the next region, or to the previous one if `step` is -1.
    void move(int step) const;

private:
    int regionOf(const QWidget *widget) const;
    QWidget *firstIn(int index) const;

    QList<Region> m_regions;
};

} // namespace Dashboard

#endif
