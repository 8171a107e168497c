#ifndef PROFILETABLEITEMDELEGATE_H
#define PROFILETABLEITEMDELEGATE_H

#include <QItemDelegate>

/**
 * Edits a cell of the profile table with the host's line edit, which takes 40 characters, or as
 * many as the cell has already.
 */
class ProfileTableItemDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ProfileTableItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Takes what was typed without the blanks around it; leaves a text that was not changed alone.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    /// A code reads from left to right, also where the table does not.
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;
};

#endif
