#ifndef WINDOWBUTTONS_H
#define WINDOWBUTTONS_H

#include <QList>
#include <QWidget>

class QPushButton;

/** A button for each window of the plug-in. */
class WindowButtons : public QWidget
{
    Q_OBJECT
public:
    explicit WindowButtons(QWidget *parent = nullptr);

    /// Reads the texts again.
    void retranslate();
    /// Shows the buttons of these windows, a set of SimWindow, and hides the others.
    void offer(int windows);
    /// Says whether the general window is in the page; emits nothing.
    void setPageShown(bool shown);

signals:
    /// The user wants the general window in the page, or out of it.
    void pageToggled(bool shown);
    /// The user wants that window, a PAID_TYPE, in a frame of its own.
    void frameRequested(int paidType);

private slots:
    void onClicked();

private:
    QList<QPushButton *> m_buttons; // in the order of the table of windows
};

#endif
