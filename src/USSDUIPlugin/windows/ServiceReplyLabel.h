#ifndef SERVICEREPLYLABEL_H
#define SERVICEREPLYLABEL_H

#include <QLabel>

/**
 * A label for the network's replies. It shows plain text in the direction of the letters in the
 * text. A word that is too long for a line can be broken anywhere, and codes in the text are read
 * from left to right. text() returns the reply unchanged. The reply does not affect the size hint.
 * All functions must be called from the GUI thread.
 */
class ServiceReplyLabel : public QLabel
{
public:
    explicit ServiceReplyLabel(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Returns `text` with direction marks around each code, such as *111#, and around each number
    /// with a plus sign. Without the marks, adjacent right-to-left letters would reverse a code.
    static QString withCodesMarked(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
