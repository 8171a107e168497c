#include "ProfileTableItemDelegate.h"

#include <QModelIndex>

#include "CodeText.h"
#include "ExtendLineEdit.h"
#include "ProfileRows.h"

namespace
{

const int kMaxCellText = 40;

} // namespace

ProfileTableItemDelegate::ProfileTableItemDelegate(QObject *parent) : QItemDelegate(parent) {}

QWidget *ProfileTableItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    Q_UNUSED(option);
    ExtendLineEdit *edit = new ExtendLineEdit(parent);
    edit->setMaxLength(kMaxCellText);
    edit->setFrame(false); // the rows are low
    if (index.column() == ProfileRows::CodeColumn)
        edit->setLayoutDirection(Qt::LeftToRight);
    return edit;
}

void ProfileTableItemDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                           const QRect &rect, const QString &text) const
{
    QStyleOptionViewItem leftToRight(option);
    if (option.direction == Qt::RightToLeft && isCodeLike(text)) {
        leftToRight.direction = Qt::LeftToRight;
        leftToRight.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
    QItemDelegate::drawDisplay(painter, leftToRight, rect, text);
}
