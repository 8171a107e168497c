#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include "Controls.h"

namespace Dashboard
{

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString &text)
{
    QLabel::setText(text);
    setAccessibleName(text);
    updateToolTip();
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int letters = 4;
    const int width = fontMetrics().averageCharWidth() * letters;
    return QSize(qMin(width, QLabel::sizeHint().width()), QLabel::sizeHint().height());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    const int flags = int(QStyle::visualAlignment(layoutDirection(), alignment()));
    style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), shown,
                          foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    updateToolTip();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateToolTip();
}

void ElidedLabel::updateToolTip()
{
    const bool isElided = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    const QString plain = Qt::mightBeRichText(text()) ? text().toHtmlEscaped() : text();
    setToolTip(isElided ? plain : QString());
}

} // namespace Dashboard
