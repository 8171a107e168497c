#ifndef PROFILETABLEITEMDELEGATE_H
#define PROFILETABLEITEMDELEGATE_H

#include <QItemDelegate>

/**
 * Edits the cells of the profile table with the host's line edit. The maximum length is 40
 * characters, or the current length of the text if the text is longer.
 */
class ProfileTableItemDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ProfileTableItemDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// Stores the text without leading and trailing blanks. Text that was not edited is stored
    /// unchanged.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    /// Draws codes from left to right, even if the table is laid out from right to left.
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;
};

#endif
