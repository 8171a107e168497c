#ifndef PROFILETABLEITEMDELEGATE_H
#define PROFILETABLEITEMDELEGATE_H

#include <QItemDelegate>

/**
 * Lets the user edit a cell of the profile table in the host's line edit. The line edit accepts 40
 * characters, or the current length of the cell text if this is longer.
 */
class ProfileTableItemDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ProfileTableItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Stores the edited text without leading and trailing blanks. Text that was not edited remains
    /// unchanged.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    /// Draws a code from left to right, even in a right-to-left table.
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;
};

#endif
