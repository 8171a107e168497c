#ifndef FAVOURITEGRID_H
#define FAVOURITEGRID_H

#include <QAbstractButton>

#include "account/AccountCodes.h"

class QGridLayout;

namespace Dashboard
{

/**
 * A card for a favourite, with an icon, a name and a code. It can also be the card with which the
 * user adds a favourite.
 */
class FavouriteButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit FavouriteButton(QWidget *parent = nullptr);

    void setCode(const NamedCode &code);
    /// Makes this the card with which the user adds a favourite.
    void setAdds(const QString &text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    void paintCard(QPainter *painter);
    void paintCode(QPainter *painter);
    void paintAdd(QPainter *painter);
    QFont textFont(int size, bool isBold) const;

    NamedCode m_code;
    bool m_adds = false;
};

/** A grid of favourites. The arrow keys move the focus within the grid. */
class FavouriteGrid : public QWidget
{
    Q_OBJECT
public:
    explicit FavouriteGrid(QWidget *parent = nullptr);

    /// Shows the favourites. If `mayAdd` is true, also shows the card for adding a favourite.
    void show(const QList<NamedCode> &codes, bool mayAdd);
    void setColumns(int columns);

signals:
    void chosen(const Dashboard::NamedCode &code);
    void addRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void arrange();
    bool moveFocus(FavouriteButton *from, int key);

    QGridLayout *m_grid;
    QList<FavouriteButton *> m_buttons;
    int m_columns = 3;
};

} // namespace Dashboard

#endif
