#ifndef PROFILETABLEWIDGET_H
#define PROFILETABLEWIDGET_H

#include <QTableWidget>

/** The profile editor's table. */
class ProfileTableWidget : public QTableWidget
{
    Q_OBJECT
public:
    explicit ProfileTableWidget(QWidget *parent = nullptr);
    ProfileTableWidget(int rows, int columns, QWidget *parent = nullptr);

    /// Does nothing, so that typing does not jump to a row that begins with the letter.
    void keyboardSearch(const QString &search) override;

protected:
    /// Edits the current cell, also one that is empty so far, unless it is read-only.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif
