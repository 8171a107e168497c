#ifndef PROFILETABLEWIDGET_H
#define PROFILETABLEWIDGET_H

#include <QTableWidget>

/** The table of the profile editor, with its own rules for typing and double-clicking. */
class ProfileTableWidget : public QTableWidget
{
    Q_OBJECT
public:
    explicit ProfileTableWidget(QWidget *parent = nullptr);
    ProfileTableWidget(int rows, int columns, QWidget *parent = nullptr);

    /// Does nothing, so that typing does not jump to a row that begins with the letter.
    void keyboardSearch(const QString &search) override;

protected:
    /// Opens the current cell for editing, even if it is empty, unless it is read-only.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif
