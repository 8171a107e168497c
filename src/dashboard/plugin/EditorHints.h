#ifndef EDITORHINTS_H
#define EDITORHINTS_H

#include <QObject>

class QLabel;
class QTableWidget;

namespace Dashboard
{

/**
 * Shows in the profile editor where a new code can be typed: a hint in each empty cell of the first
 * row that is not complete. The object is a child of the table, and the hints are deleted with it.
 */
class EditorHints : public QObject
{
    Q_OBJECT
public:
    /// Adds the hints to the table of the profile editor, unless the window has no such table or
    /// the table already has hints.
    static void addTo(const QWidget *window);

    /// Returns the text that is shown in the cell, or an empty string.
    static QString hintAt(const QTableWidget *table, int row, int column);

private slots:
    void place();

private:
    explicit EditorHints(QTableWidget *table);

    QTableWidget *const m_table;
    QLabel *m_name;
    QLabel *m_code;
};

} // namespace Dashboard

#endif
