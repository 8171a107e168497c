#ifndef SERVICEREPLYLABEL_H
#define SERVICEREPLYLABEL_H

#include <QLabel>

/**
 * A label for network replies, which are shown as plain text. The text direction depends on the
 * letters of the reply, but codes are always displayed from left to right. Words that are too long
 * for a line can be broken anywhere. text() returns the reply unchanged. The size hint does not
 * depend on the reply. All functions must be called from the GUI thread.
 */
class ServiceReplyLabel : public QLabel
{
public:
    explicit ServiceReplyLabel(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Returns `text` with directional formatting characters around each code, such as *111#, and
    /// around each number with a plus sign. Otherwise, right-to-left letters next to a code would
    /// reverse it.
    static QString withCodesMarked(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
