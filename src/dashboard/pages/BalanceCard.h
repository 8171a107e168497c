#ifndef BALANCECARD_H
#define BALANCECARD_H

#include <QFrame>

#include "account/AccountEntry.h"

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace Dashboard
{

class Chip;

/** The content of the balance card. */
struct BalanceView {
    AccountEntry entry; // the most recent reply to the balance code; null if there is none
    QDate validity;     // invalid if unknown
    QDateTime now;
    bool isOutdated = false; // true if the balance may have changed since it was queried
    bool isInvented = false; // true during a demonstration
    bool isLow = false;
    bool canAsk = false;
    bool canTopUp = false;
    bool isMenuOpen = false; // true if an open menu prevents codes from being sent
    int askingSeconds = -1;  // the time since the code was sent; -1 if no reply is pending
};

/** The card that shows the balance, its age and its validity. */
class BalanceCard : public QFrame
{
    Q_OBJECT
public:
    explicit BalanceCard(QWidget *parent = nullptr);

    void show(const BalanceView &view);
    void setNarrow(bool isNarrow);
    QPushButton *topUpButton() const { return m_topUp; }
    QPushButton *askButton() const { return m_ask; }

signals:
    void topUpRequested();
    void askRequested();
    void replyRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QLayout *makeHead();
    QLayout *makeAmount();
    void makeChips();
    QLayout *makeValidity();
    QWidget *makeButtons();
    int rowWidth() const;
    void limitHeight();
    void arrangeHead();
    void showIcons(bool areShown);
    void arrangeButtons();
    void showAmount();
    void showAge();
    void showButtons();
    void describe();

    BalanceView m_view;
    bool m_isNarrow = false;
    QVBoxLayout *m_layout;
    QBoxLayout *m_head = nullptr;
    QLabel *m_title;
    QLabel *m_asked;
    QWidget *m_chips;
    QBoxLayout *m_chipRow;
    Chip *m_age;
    Chip *m_low;
    Chip *m_outdated;
    QLabel *m_amount;
    QLabel *m_unit;
    QLabel *m_reply;
    QLabel *m_validity;
    QWidget *m_buttons;
    QBoxLayout *m_buttonRow;
    QHBoxLayout *m_validityRow;
    QPushButton *m_topUp;
    QPushButton *m_ask;
    QPushButton *m_show;
};

} // namespace Dashboard

#endif
