#ifndef DIALOGTEST_H
#define DIALOGTEST_H

#include "PluginTest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "markup/TranscriptView.h"
#include "windows/USSDGeneralDlg.h"

/**
 * The base class for tests that operate the general dialog as a user would, with the fake SDK. The
 * network does not reply unless a test sends a reply.
 */
class DialogTest : public PluginTest
{
    Q_OBJECT

protected:
    void tearDown() override;

    /// Deletes the existing dialog, if any, and shows a new one. An embedded dialog is a child of
    /// page().
    void open(WINDOW_MODEL model = WINDOW_MODEL_EMBEDDED);
    USSDGeneralDlg *dialog() { return m_dialog; }
    QWidget *page() { return m_page.data(); }

    // ---- widgets of the dialog
    template <typename Widget>
    Widget *part(const char *role)
    {
        Widget *found = m_dialog->findChild<Widget *>(USSDGeneralDlg::objectNameOf(role));
        return found ? found : missing<Widget>(role);
    }
    QPushButton *sendButton() { return part<QPushButton>("SendButton"); }
    QPushButton *clearButton() { return part<QPushButton>("ClearButton"); }
    QPushButton *closeButton() { return part<QPushButton>("CloseButton"); }
    QLineEdit *commandEdit() { return part<QLineEdit>("USSDCmdEdit"); }
    QLineEdit *paymentEdit() { return part<QLineEdit>("PaymentEdit"); }
    QComboBox *combo() { return part<QComboBox>("ProfilesCombo"); }
    TranscriptView *history() { return part<TranscriptView>("History"); }
    QLabel *promptLabel();
    QLabel *descriptionLabel();
    QList<QPushButton *> presetButtons(); ///< in the order of creation

    // ---- user actions
    static void click(QPushButton *button);
    void send(const QString &command); ///< types the command and presses Send

    // ---- network actions
    void networkSays(const QString &text);
    static QStringList requests(); ///< the commands of all requests so far

    // ---- visible state
    QStringList shownLines(); ///< the paragraphs of the transcript, including the captions
    /// Returns true if the waiting prompt is visible and all controls that can send are disabled.
    bool isWaiting();
    /// Returns true if the waiting prompt is hidden, the fields are enabled and empty, and Send is
    /// disabled.
    bool isIdle();
    static QString text(const char *key);
    static QString sentLine(const QString &command);
    static QString receivedLine(const QString &reply);

private:
    template <typename Widget>
    static Widget *missing(const char *role)
    {
        qFatal("the dialog has no %s", role);
        return nullptr;
    }
    QList<QLabel *> namelessLabels();

    QPointer<USSDGeneralDlg> m_dialog;
    QScopedPointer<QWidget> m_page;
};

#endif
