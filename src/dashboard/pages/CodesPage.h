#ifndef CODESPAGE_H
#define CODESPAGE_H

#include <functional>

#include "Page.h"
#include "StateStrip.h"

class QAction;
class QBoxLayout;
class QFrame;
class QPushButton;

namespace Dashboard
{

class ChainRunner;
class CodeHistory;
class Favourites;
class FindBar;
class GeneralArea;
class HistoryPopup;
class LoadedPlugin;
class ModeChoice;
class WalkWatcher;

/** The objects that CodesPage uses. All of them must outlive the page. */
struct CodesParts {
    LoadedPlugin *plugin;
    CommandMonitor *commands;
    CodeHistory *history;
    std::function<QList<CodeName>()> names; // the codes of the operator and of the user
    ModeChoice *modes = nullptr;            // the network modes of the modem; may be null
    ChainRunner *chains = nullptr;
    WalkWatcher *walks = nullptr;
    Favourites *favourites = nullptr; // may be null in tests; chains are then not offered
};

/**
 * The Codes page, with the plug-in's general window and a strip with the state of the current
 * command.
 */
class CodesPage : public Page
{
    Q_OBJECT
public:
    explicit CodesPage(const CodesParts &parts, QWidget *parent = nullptr);

    void retranslate() override;
    void setForm(Form form) override;
    QWidget *firstFocus() const override;

    /// Shows or hides the general window.
    void showWindow(bool isShown);
    /// Shows a message instead of the general window, for example that the plug-in is missing.
    void showText(const QString &text);
    /// Shows the situation of the device. While codes cannot be sent, the general window is
    /// disabled unless a command is in flight.
    void setSituation(const Situation &situation);
    /// Returns true if the general window has a button with this name.
    bool hasPreset(const QString &name) const;
    /// Returns true if the plug-in can be restarted to make buttons for new codes.
    bool canMakePresets() const;
    /// Updates the names of the recently sent codes in the strip.
    void refreshNames();

    GeneralWindow general() const;
    GeneralArea *area() const { return m_area; }
    StateStrip *strip() const { return m_strip; }
    /// Returns the actions of the page. The main window activates their shortcuts. The actions
    /// focus the code field, select a menu item, cancel a command or end a menu, open the history,
    /// and copy the reply.
    QList<QAction *> shortcuts() const { return m_shortcuts; }

public slots:
    /// Sends the code. If the code contains hidden digits, it is not sent. Instead, the user enters
    /// these digits in a dialog, and the complete code is entered into the command field.
    void useCode(const QString &code);
    /// Enters the code into the command field without sending it.
    void typeCode(const QString &code);
    /// Runs the chain with this name. Does nothing if no code can be sent now.
    void runChain(const QString &name);
    /// Cancels the command in flight, or ends the open menu.
    void stop();
    void answerNumber(int position);
    void openHistory();
    /// Opens the list of codes with this code selected.
    void openHistoryAt(const QString &code);
    void copyReply();
    /// Opens the bar in which the user can search the transcript.
    void find();
    /// Saves the transcript as plain text in a file that the user selects.
    void saveTranscript();

signals:
    /// Emitted when the user has pressed one of the page's shortcuts. The page must then be shown.
    void wanted();
    void ownWindowRequested();
    void remedyChosen(Dashboard::Remedy remedy);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeLayout();
    void makeNarrowButtons();
    void placeNarrowButtons();
    void makeShortcuts();
    QAction *addShortcut(const char *name, const QKeySequence &key,
                         const std::function<void()> &action);
    void followStrip();
    void followModes();
    void onCommandChanged();
    void updateWindow();
    void updateRecent();
    void watchTranscript();
    void updateReply();
    void saveTo(const QString &file);
    void followChains();
    void updateKeep();
    void keepWalk();
    void showStop(const ChainState &chain);
    QList<CodeName> chainNames() const;
    void showDetails();
    void focusField();
    void showCodesSheet();
    void showTopUpSheet();
    QList<QPushButton *> presets() const;
    QString askForNumbers(const QString &code);

    const CodesParts m_parts;
    StateStrip *m_strip;
    GeneralArea *m_area;
    FindBar *m_find;
    HistoryPopup *m_historyPopup;
    QFrame *m_card;
    QWidget *m_narrowButtons;
    QPushButton *m_codesButton;
    QPushButton *m_topUpButton;
    QBoxLayout *m_narrowRow;
    QBoxLayout *m_column;
    QList<QAction *> m_shortcuts;
    Situation m_situation;
    Form m_form = Form::Wide;
};

} // namespace Dashboard

#endif
