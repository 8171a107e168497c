#ifndef PROFILETABLEWIDGET_H
#define PROFILETABLEWIDGET_H

#include <QTableWidget>

/**
 * The table of the profile editor, which handles typing and double-clicks differently from
 * QTableWidget.
 */
class ProfileTableWidget : public QTableWidget
{
    Q_OBJECT
public:
    explicit ProfileTableWidget(QWidget *parent = nullptr);
    ProfileTableWidget(int rows, int columns, QWidget *parent = nullptr);

    /// Does nothing. By default, typing a letter would select the next row that starts with this
    /// letter.
    void keyboardSearch(const QString &search) override;

protected:
    /// Opens the current cell for editing unless it is read-only. By default, empty cells cannot be
    /// opened.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};

#endif
