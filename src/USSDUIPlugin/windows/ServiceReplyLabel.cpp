#include "ServiceReplyLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

namespace
{

// LEFT-TO-RIGHT EMBEDDING and POP DIRECTIONAL FORMATTING. Qt 4 does not support directional
// isolates.
const ushort EMBED = 0x202A;
const ushort POP = 0x202C;

/// The maximum number of characters to lay out at each repaint. The label is too small to show
/// more.
const int MOST_LETTERS = 2000;

/// Returns true if a code may contain this character in any position except the first.
bool continuesCode(QChar unit)
{
    return unit == QLatin1Char('*') || unit == QLatin1Char('#') ||
           (unit >= QLatin1Char('0') && unit <= QLatin1Char('9'));
}

/// Returns the end of the code or number, such as *100# or +4930, that starts at `start`. Returns
/// `start` if there is none.
int codeEnd(const QString &text, int start)
{
    const QChar first = text.at(start);
    if (first != QLatin1Char('*') && first != QLatin1Char('#') && first != QLatin1Char('+'))
        return start;
    int end = start + 1;
    while (end < text.length() && continuesCode(text.at(end)))
        ++end;
    return end > start + 1 ? end : start;
}

QTextOption textOption(const QLabel &label, bool rightToLeft)
{
    QTextOption option(QStyle::visualAlignment(label.layoutDirection(), label.alignment()) |
                       Qt::AlignAbsolute);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// Breaks the text into lines until the label is full.
void layOut(QTextLayout &layout, const QSize &space)
{
    qreal bottom = 0;
    layout.beginLayout();
    while (bottom < space.height()) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(space.width());
        line.setPosition(QPointF(0, bottom));
        bottom += line.height();
    }
    layout.endLayout();
}

} // namespace

ServiceReplyLabel::ServiceReplyLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QSize ServiceReplyLabel::sizeHint() const
{
    return QSize(0, 0);
}

QSize ServiceReplyLabel::minimumSizeHint() const
{
    return QSize(0, 0);
}

QString ServiceReplyLabel::withCodesMarked(const QString &text)
{
    QString marked;
    for (int i = 0; i < text.length(); ++i) {
        const int end = codeEnd(text, i);
        if (end == i) {
            marked += text.at(i);
            continue;
        }
        marked += QChar(EMBED) + text.mid(i, end - i) + QChar(POP);
        i = end - 1;
    }
    return marked;
}

void ServiceReplyLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(palette().color(foregroundRole()));
    QString shown = withCodesMarked(text().left(MOST_LETTERS));
    shown.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(shown, font(), this);
    layout.setTextOption(textOption(*this, text().isRightToLeft()));
    layOut(layout, contentsRect().size());
    layout.draw(&painter, contentsRect().topLeft());
}
