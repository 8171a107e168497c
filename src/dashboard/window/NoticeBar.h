#ifndef NOTICEBAR_H
#define NOTICEBAR_H

#include <QFrame>
#include <QList>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace Dashboard
{

/**
 * A line in the main window with a notice, and with buttons to respond to the notice. The line is
 * visible only while it contains a notice. It does not take the focus.
 */
class NoticeBar : public QFrame
{
    Q_OBJECT
public:
    explicit NoticeBar(const char *objectName, QWidget *parent = nullptr);

    /// Sets the notice, which is shown as plain text. An empty string hides the line.
    void setText(const QString &text);
    QString text() const;
    /// Reduces the height of the line to the minimum that its content requires.
    void setCompact();
    /// Adds a button after the notice. The bar owns the button, which is hidden until
    /// setButtonText() sets its label.
    QPushButton *addButton(const char *objectName);
    /// Sets the label of the button and shows the button. An empty string hides the button.
    static void setButtonText(QPushButton *button, const QString &text);

private:
    QLabel *m_label;
    QHBoxLayout *m_row;
};

} // namespace Dashboard

#endif
