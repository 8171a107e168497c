#ifndef NOTICEBAR_H
#define NOTICEBAR_H

#include <QFrame>
#include <QList>

class QHBoxLayout;
class QLabel;
class QPushButton;

/** A line in the main window that tells something, with buttons to do something about it. It is
 * there only while it has a text, and takes no focus. */
class NoticeBar : public QFrame
{
    Q_OBJECT
public:
    explicit NoticeBar(const char *objectName, QWidget *parent = nullptr);

    /// Plain text; an empty one hides the line.
    void setText(const QString &text);
    QString text() const;
    /// A button behind the text; the bar's. Hidden and without a text until it is given one.
    QPushButton *addButton(const char *objectName);
    /// A button without a text is not shown.
    static void setButtonText(QPushButton *button, const QString &text);

private:
    QLabel *m_label;
    QHBoxLayout *m_row;
};

#endif
