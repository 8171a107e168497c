#ifndef PAGECOLUMN_H
#define PAGECOLUMN_H

#include <QScrollArea>

#include "Page.h"

class QHBoxLayout;
class QVBoxLayout;

namespace Dashboard
{

/**
 * A scroll area for the content of a page, which is a centred column. The column does not scroll
 * horizontally, so its widgets must fit into the smallest window.
 */
class PageColumn : public QScrollArea
{
    Q_OBJECT
public:
    /// `widest` is the maximum width of the column in pixels at 100 % text size.
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
