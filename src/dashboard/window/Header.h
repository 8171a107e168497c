#ifndef HEADER_H
#define HEADER_H

#include <QFrame>
#include <QTimer>

#include "look/Controls.h"
#include "pages/Page.h"

class QGridLayout;

namespace Dashboard
{

class SignalBars;
class StatusDot;
struct DeviceStatus;

/** The content of the header. */
struct HeaderContent {
    QString title; // the operator, or the title of the situation
    QString chip;  // the type of contract or "Demonstration"; may be empty
    bool isDemonstration = false;
    int signalPercent = -1;
    QString simNumber; // empty if unknown
    Tone tone = Tone::Ok;
};

/**
 * The header of the main window: operator, type of contract, signal and SIM, and the buttons for
 * the messages and the menu.
 */
class Header : public QFrame
{
    Q_OBJECT
public:
    explicit Header(QWidget *parent = nullptr);

    void showContent(const HeaderContent &content);
    void setForm(Form form);
    /// Sets whether only the last four digits of the SIM's number are shown.
    void setHidesNumber(bool hides);
    /// Sets the number of unread messages.
    void setUnread(int count);
    /// Updates the strings after a language change.
    void retranslate();

    QPushButton *menuButton() const { return m_menu; }
    /// Returns true if the header has space for the description of the SIM. Otherwise, the menu
    /// should contain this description.
    bool hasRoomForSim() const;
    /// Returns the description of the SIM, for example "SIM ending 6789".
    QString simText() const;

public slots:
    /// Shows the SIM's number for 10 seconds, or hides it again.
    void toggleNumber();

signals:
    void messagesRequested();
    void menuRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeWidgets();
    void layOut();
    void placeWide();
    void placeNarrow();
    void showSim();
    void placeDot();

    QGridLayout *m_grid;
    ElidedLabel *m_operator;
    Chip *m_chip;
    QLabel *m_kind; // replaces the chip in the narrow form
    SignalBars *m_bars;
    QLabel *m_signal;
    IconView *m_simIcon;
    QLabel *m_sim;
    QPushButton *m_eye;
    QPushButton *m_bell;
    QPushButton *m_menu;
    StatusDot *m_dot;
    QTimer m_numberTimer; // active while the number is shown
    HeaderContent m_content;
    Form m_form = Form::Wide;
    bool m_hidesNumber = true;
    int m_unread = 0;
};

} // namespace Dashboard

#endif
