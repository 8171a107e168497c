#ifndef QUESTIONDIALOG_H
#define QUESTIONDIALOG_H

#include <QDialog>

class QLabel;
class QPushButton;

namespace Dashboard
{

class AnswerBox;
class CommandMonitor;

/**
 * Shows an open menu of the network above a modal window of the plug-in, which blocks the Codes
 * page. The dialog opens when the network requests an answer while such a window is open. It
 * closes when the answer has been sent, the menu has ended or the window has been closed. The user
 * can postpone the answer. All functions must be called from the GUI thread.
 */
class QuestionDialog : public QDialog
{
    Q_OBJECT
public:
    /// The monitor must outlive the dialog.
    QuestionDialog(CommandMonitor *monitor, QWidget *mainWindow);

    AnswerBox *answerBox() const { return m_answers; }

public slots:
    /// Shows the dialog if a menu is open that a window of the plug-in blocks, or hides the dialog.
    /// Must be called when a window of the plug-in was opened or closed.
    void look();
    void retranslate();

protected:
    void reject() override;

private:
    void layOut();
    void showQuestion();
    bool isWanted() const;

    CommandMonitor *const m_monitor;
    QLabel *m_title;
    QLabel *m_hint;
    QLabel *m_text;
    AnswerBox *m_answers;
    QPushButton *m_later;
    bool m_isPutOff = false; // true if the user has closed the dialog for the current menu
    QString m_menu;          // the menu that is shown or postponed
};

} // namespace Dashboard

#endif
