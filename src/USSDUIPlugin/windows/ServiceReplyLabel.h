#ifndef SERVICEREPLYLABEL_H
#define SERVICEREPLYLABEL_H

#include <QLabel>

/**
 * A label that shows replies of the network as plain text. The letters of a reply determine its
 * text direction, but codes are always displayed from left to right. A word that is too long for a
 * line can be broken anywhere. text() returns the reply unchanged. The reply does not affect the
 * size hint. All functions must be called from the GUI thread.
 */
class ServiceReplyLabel : public QLabel
{
public:
    explicit ServiceReplyLabel(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Returns `text` with direction marks around each code, such as *111#, and around each number
    /// that starts with a plus sign. Without these marks, adjacent right-to-left letters would
    /// reverse a code.
    static QString withCodesMarked(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
