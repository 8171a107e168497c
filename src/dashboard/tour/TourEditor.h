#ifndef TOUREDITOR_H
#define TOUREDITOR_H

#include <QObject>

#include "TourAlbum.h"

class QTableWidget;

namespace Dashboard
{

class TourGuide;

/**
 * Opens the profile editor and runs a function, called the walk, while the editor is open.
 */
class TourEditor : public QObject
{
    Q_OBJECT
public:
    typedef bool (*Walk)(TourGuide &guide, QTableWidget *table, const TourStop &stop);

    /// `guide` must outlive this object.
    explicit TourEditor(TourGuide *guide);

    /// Opens the editor and returns when it has been closed. Returns true if the walk succeeded.
    bool visit(Walk walk, const TourStop &stop);

private slots:
    void onEditor();

private:
    TourGuide *const m_guide;
    Walk m_walk = nullptr;
    TourStop m_stop = {nullptr, nullptr};
    bool m_walked = false;
};

} // namespace Dashboard

#endif
