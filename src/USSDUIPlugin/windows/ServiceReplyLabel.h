#ifndef SERVICEREPLYLABEL_H
#define SERVICEREPLYLABEL_H

#include <QLabel>

/**
 * A label for the network's replies. It shows plain text in the direction of the text's own
 * letters. A word that is too long for a line can be broken anywhere, and codes in the text are
 * read from left to right. text() returns the reply unchanged, and the reply does not affect the
 * size hint. Must be used on the GUI thread.
 */
class ServiceReplyLabel : public QLabel
{
public:
    explicit ServiceReplyLabel(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Returns `text` with direction marks around each code, such as *111#, and around each number
    /// with a plus sign. Without the marks, right-to-left letters next to a code would reverse it.
    static QString withCodesMarked(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
