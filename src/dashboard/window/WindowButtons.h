#ifndef WINDOWBUTTONS_H
#define WINDOWBUTTONS_H

#include <QList>
#include <QWidget>

class QPushButton;

namespace Dashboard
{

/** A row with a button for each window of the plug-in. */
class WindowButtons : public QWidget
{
    Q_OBJECT
public:
    explicit WindowButtons(QWidget *parent = nullptr);

    /// Updates the strings after a language change.
    void retranslate();
    /// Shows the buttons for `windows`, a combination of SimWindow flags, and hides the other
    /// buttons.
    void offer(int windows);
    /// Sets whether the general window is shown in the page. Does not emit a signal.
    void setPageShown(bool shown);

signals:
    /// Emitted when the user requests that the general window be shown in the page or hidden.
    void pageToggled(bool shown);
    /// Emitted when the user requests that a window (a PAID_TYPE) be opened in a separate frame.
    void frameRequested(int paidType);

private slots:
    void onClicked();

private:
    QList<QPushButton *> m_buttons; // in the same order as in the table of windows
};

} // namespace Dashboard

#endif
