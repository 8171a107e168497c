#ifndef REPLYLABEL_H
#define REPLYLABEL_H

#include <QLabel>

/**
 * A label for what the network says: plain text in the direction of its own letters. Words that are
 * too long for a line are broken anywhere, and codes in the text read from left to right. The text
 * itself stays as it was set, and has no say in the label's size. GUI thread only.
 */
class ReplyLabel : public QLabel
{
public:
    explicit ReplyLabel(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The text with marks around each code, such as *111#, and each number with a plus: letters of
    /// a right-to-left language beside it would turn it round.
    static QString withCodesMarked(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
