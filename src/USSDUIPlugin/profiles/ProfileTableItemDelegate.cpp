#include "ProfileTableItemDelegate.h"

#include <QLineEdit>
#include <QModelIndex>

#include "ExtendLineEdit.h"
#include "ProfileRows.h"
#include "UssdCode.h"

using namespace Formats;

namespace
{

const int MAX_CELL_TEXT = 40;

QString textOf(const QModelIndex &index)
{
    return index.data(Qt::EditRole).toString();
}

} // namespace

ProfileTableItemDelegate::ProfileTableItemDelegate(QObject *parent) : QItemDelegate(parent) {}

QWidget *ProfileTableItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    Q_UNUSED(option);
    ExtendLineEdit *edit = new ExtendLineEdit(parent);
    // Text from a file may be longer than the limit and must not be truncated.
    edit->setMaxLength(qMax(MAX_CELL_TEXT, int(textOf(index).length())));
    edit->setFrame(false); // the rows are not high enough for a frame
    if (index.column() == ProfileRows::CodeColumn)
        edit->setLayoutDirection(Qt::LeftToRight);
    return edit;
}

void ProfileTableItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                            const QModelIndex &index) const
{
    const QLineEdit *edit = qobject_cast<QLineEdit *>(editor);
    if (edit && edit->text() != textOf(index))
        model->setData(index, edit->text().trimmed());
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
