#ifndef PROFILETABLEWIDGET_H
#define PROFILETABLEWIDGET_H

#include <QTableWidget>

/** The table of the profile editor, with special handling of typing and double-clicks. */
class ProfileTableWidget : public QTableWidget
{
    Q_OBJECT
public:
    explicit ProfileTableWidget(QWidget *parent = nullptr);
    ProfileTableWidget(int rows, int columns, QWidget *parent = nullptr);

    /// Does nothing, so that typing a letter does not jump to a row that begins with this letter.
    void keyboardSearch(const QString &search) override;

protected:
    /// Opens the current cell for editing, even if it is empty, unless the cell is read-only.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif
