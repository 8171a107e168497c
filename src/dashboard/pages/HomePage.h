#ifndef HOMEPAGE_H
#define HOMEPAGE_H

#include <QPointer>

#include "account/AccountCodes.h"
#include "account/AccountEntry.h"
#include "device/Situation.h"
#include "Page.h"

class QBoxLayout;
class QFrame;
class QLabel;
class QPushButton;

namespace Dashboard
{

class AccountRecorder;
class AccountStore;
class AccountTile;
class AppActions;
class BalanceCard;
class BalanceChart;
class CommandMonitor;
class FavouriteGrid;
class Favourites;
class PageColumn;
class StateCard;

/** The newest network-initiated message, as the last row of the page shows it. */
struct HomeMessage {
    qint64 id = 0; // the row is hidden if the value is 0
    QString title;
    QString note; // for example, "13:05, waits for your answer"
    bool waitsForAnswer = false;
};

/**
 * The Home page, with the balance, its chart, the tiles, the favourites and the newest message. The
 * page sends codes only if the user clicks a button.
 */
class HomePage : public Page
{
    Q_OBJECT
public:
    /** The objects that the page uses. All of them must outlive the page. */
    struct Parts {
        AccountStore *store = nullptr;
        AccountRecorder *recorder = nullptr;
        Favourites *favourites = nullptr;
        CommandMonitor *monitor = nullptr; // null in some tests
        AppActions *actions = nullptr;
    };

    explicit HomePage(const Parts &parts, QWidget *parent = nullptr);

    void setCodes(const AccountCodes &codes);
    void setSituation(const Situation &situation);
    /// Sets the description of the SIM, such as "SIM ending 6789", or an empty string to hide it.
    void setSimText(const QString &text);
    void setMessage(const HomeMessage &message);

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

public slots:
    /// Queries the balance if a code can be sent now.
    void askAgain();
    void topUp();
    /// Updates the page with the current values.
    void look();

signals:
    /// Emitted when the user clicks the message in the last row in order to read or answer it.
    void messageChosen(qint64 id);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    enum class Ask { Balance, Validity, Data };

    void makeAccount();
    void arrangeCards();
    static int rowWidth(const QList<QWidget *> &widgets);
    void makeTiles();
    void makeFavourites();
    void makeMessage();
    void lookSoon();
    void lookAtAccount();
    void keepFocus(QWidget *focus);
    void lookAtBalance();
    void lookAtTiles();
    void lookAtNumber();
    void lookAtValidity();
    void lookAtData();
    void lookAtFavourites();
    void lookAtSituation();
    bool isNormal() const;
    bool canSend() const;
    int askingSeconds(const QString &code) const;
    AccountEntry validityEntry() const;
    void send(const QString &code);
    void showReply();
    void copyNumber();
    void choose(const NamedCode &code);
    void editFavourites();
    int favouriteColumns() const;
    int favouriteCount() const;

    const Parts m_parts;
    AccountCodes m_codes;
    Situation m_situation;
    QString m_simText;
    HomeMessage m_message;
    Form m_form = Form::Wide;
    bool m_isLooking = false;
    QPointer<QWidget> m_disabledFocus; // had the focus until the page disabled it
    QPointer<QWidget> m_refuge;        // has received this focus
    PageColumn *m_column;
    StateCard *m_state;
    QWidget *m_account;
    QBoxLayout *m_accountRow;
    BalanceCard *m_balance;
    BalanceChart *m_chart;
    QFrame *m_tiles;
    QBoxLayout *m_tileRow;
    AccountTile *m_number;
    AccountTile *m_validity;
    AccountTile *m_data;
    QFrame *m_tileLine;
    QWidget *m_favourites;
    QLabel *m_favouritesTitle;
    QPushButton *m_edit;
    FavouriteGrid *m_grid;
    QFrame *m_messageRow;
    QLabel *m_messageTitle;
    QLabel *m_messageNote;
    QPushButton *m_messageButton;
};

} // namespace Dashboard

#endif
