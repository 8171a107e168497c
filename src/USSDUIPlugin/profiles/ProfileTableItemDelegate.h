#ifndef PROFILETABLEITEMDELEGATE_H
#define PROFILETABLEITEMDELEGATE_H

#include <QItemDelegate>

/**
 * Edits a cell of the profile table with the host's line edit. The line edit accepts 40 characters,
 * or as many as the cell already contains.
 */
class ProfileTableItemDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ProfileTableItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Stores the edited text without the blanks around it. A text that was not edited stays
    /// unchanged.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    /// Draws a code from left to right, even in a right-to-left table.
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;
};

#endif
