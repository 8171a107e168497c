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
 * A line in the main window with a notice and buttons to respond to the notice. The line is visible
 * only while it has a text, and does not take the focus.
 */
class NoticeBar : public QFrame
{
    Q_OBJECT
public:
    explicit NoticeBar(const char *objectName, QWidget *parent = nullptr);

    /// Shows the text as plain text. An empty string hides the line.
    void setText(const QString &text);
    QString text() const;
    /// Makes the line as low as its content allows.
    void setCompact();
    /// Adds a button after the text. The bar owns the button, which is hidden until setButtonText()
    /// sets its text.
    QPushButton *addButton(const char *objectName);
    /// Sets the text and shows the button. An empty string hides the button.
    static void setButtonText(QPushButton *button, const QString &text);

private:
    QLabel *m_label;
    QHBoxLayout *m_row;
};

} // namespace Dashboard

#endif
