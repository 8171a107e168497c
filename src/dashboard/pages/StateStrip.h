#ifndef STATESTRIP_H
#define STATESTRIP_H

#include <QFrame>

#include "device/Situation.h"
#include "Page.h"
#include "plugin/ChainRunner.h"
#include "plugin/CommandMonitor.h"

class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;

namespace Dashboard
{

class ElidedLabel;
class IconDisc;
class SecondsRing;

/** A code and the name that the operator or the user has given it. */
struct CodeName {
    QString code;       // without numbers and PINs; see codeWithoutNumbers()
    QString name;       // may be empty
    bool isOwn = false; // true if this is one of the user's own codes
};

/**
 * The strip above the general window. The first row shows the state of the current command with an
 * icon, a title and a text. The second row contains buttons for the possible actions. The height is
 * the same in every state, so that the widgets below the strip do not move.
 */
class StateStrip : public QFrame
{
    Q_OBJECT
public:
    explicit StateStrip(QWidget *parent = nullptr);

    /// Shows the state of the current command, unless the situation of the device prevents codes
    /// from being sent.
    void setCommand(const CommandState &state);
    void setSituation(const Situation &situation);
    /// Shows the progress of a chain, or the reason why it has stopped.
    void setChain(const ChainState &chain);
    /// Sets whether there is a button that stores the user's most recent menu choices as a chain.
    void setKeepOffered(bool isOffered);
    /// Sets the codes that are offered while no command is pending, starting with the newest one.
    void setRecent(const QList<CodeName> &codes);
    void setForm(Form form);
    /// Sets whether there is a button that opens the general window in a separate frame.
    void setOwnWindowOffered(bool isOffered);
    void setSeconds(int seconds);
    /// Sets whether there is a reply that can be copied.
    void setReplyThere(bool isThere);
    /// Sets whether the strip offers to allow 2G and 3G after a failure on 4G, and whether it
    /// offers to restore the modem's former setting.
    void setModes(bool canAllowOlder, bool canRestore);
    void retranslate();

    /// Returns true if the strip shows the situation of the device.
    bool isBlocked() const;
    QString title() const;
    QString text() const;

signals:
    void cancelled();
    void menuEnded();
    void dismissed();
    void sentAgain();
    void detailsRequested();
    void historyRequested();
    void ownWindowRequested();
    void copyRequested();
    void olderModesRequested();
    void formerModesRequested();
    void findRequested();
    void saveRequested();
    void answered(const QString &key);
    void codeChosen(const QString &code);
    void keepRequested();
    void chainDismissed();
    void remedyChosen(Dashboard::Remedy remedy);
    /// Emitted with the text of each alert that is sent to screen readers.
    void announced(const QString &words);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeRows();
    void makeEndButtons();
    QPushButton *addEndButton(const char *kind, const char *name);
    QPushButton *addIconButton(const char *iconName, const char *name);
    void showMore();
    void showWords(const QString &title, const QString &text);
    void update();
    void updateEndButtons();
    void updateIcon();
    void updateHeight();
    void announce();
    void alert(const QString &words);
    void announceSeconds(int seconds);
    void fillRow();
    void orderTabStops();
    void clearRow();
    void addNote(const QString &text);
    QPushButton *addButton(const char *kind, const QString &text);
    void addChoices();
    void addChoice(const MenuChoice &choice, int room);
    void addMore(const QList<MenuChoice> &rest);
    void addKeep();
    void addReason();
    void addRecent();
    bool showsStoppedChain() const;
    void addFailureButtons();
    void addAllowOlder();
    void addOnly4G();
    void addRemedies();
    int roomLeft() const;

    CommandState m_state;
    ChainState m_chain;
    bool m_isKeepOffered = false;
    Situation m_situation;
    QList<CodeName> m_recent;
    Form m_form = Form::Wide;
    bool m_isOwnWindowOffered = true;
    bool m_canAllowOlder = false;
    bool m_canRestoreModes = false;
    QString m_announced;
    QStackedWidget *m_sign; // shows the icon or the ring
    IconDisc *m_icon;
    SecondsRing *m_ring;
    ElidedLabel *m_title;
    ElidedLabel *m_text;
    QPushButton *m_history;
    QPushButton *m_copy;
    QPushButton *m_ownWindow;
    QPushButton *m_cancel;
    QPushButton *m_end;
    QPushButton *m_dismiss;
    QPushButton *m_more;
    QWidget *m_row;
    QHBoxLayout *m_rowLayout;
    int m_rowWidth = -1; // the width of the row when its content was created
};

} // namespace Dashboard

#endif
