#ifndef TOUREDITOR_H
#define TOUREDITOR_H

#include <QObject>

#include "TourAlbum.h"

class QTableWidget;
class TourGuide;

/** Opens the editor of the user's own codes from the page, and walks through it while it is open.
 */
class TourEditor : public QObject
{
    Q_OBJECT
public:
    typedef bool (*Walk)(TourGuide &guide, QTableWidget *table, const TourStop &stop);

    /// `guide` outlives the object.
    explicit TourEditor(TourGuide *guide);

    /// Returns when the editor is closed; whether the walk went well.
    bool visit(Walk walk, const TourStop &stop);

private slots:
    void onEditor();

private:
    TourGuide *const m_guide;
    Walk m_walk = nullptr;
    TourStop m_stop = {nullptr, nullptr};
    bool m_walked = false;
};

#endif
