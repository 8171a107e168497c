#ifndef PAGECOLUMN_H
#define PAGECOLUMN_H

#include <QScrollArea>

#include "Page.h"

class QHBoxLayout;
class QVBoxLayout;

namespace Dashboard
{

/**
 * The content of a page: a centred column that scrolls vertically. The column never scrolls
 * horizontally, so its widgets must fit into the smallest window.
 */
class PageColumn : public QScrollArea
{
    Q_OBJECT
public:
    /// `widest` is the largest width of the column in pixels at 100 %.
    explicit PageColumn(int widest, QWidget *parent = nullptr);

    QVBoxLayout *column() const { return m_column; }
    void setForm(Form form);

private:
    void limitWidth();

    const int m_widest;
    QWidget *m_content;
    QHBoxLayout *m_row;
    QVBoxLayout *m_column;
};

} // namespace Dashboard

#endif
