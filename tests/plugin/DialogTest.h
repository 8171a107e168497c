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
 * A test of the general dialog, driven as a user does, on the misbehaving device SDK. The network
 * is silent until a test lets it speak.
 */
class DialogTest : public PluginTest
{
    Q_OBJECT

protected:
    void tearDown() override;

    /// Makes the dialog and shows it; an earlier one is deleted. Embedded, it stands in page().
    void open(WINDOW_MODEL model = WINDOW_MODEL_EMBEDDED);
    USSDGeneralDlg *dialog() { return m_dialog; }
    QWidget *page() { return m_page.data(); }

    // ---- parts of the dialog
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
    QList<QPushButton *> presetButtons(); ///< in the order in which they were made

    // ---- what a user does
    static void click(QPushButton *button);
    void send(const QString &command); ///< types it and presses Send

    // ---- what the network does
    void networkSays(const QString &text);
    static QStringList requests(); ///< the texts of all requests so far

    // ---- what can be seen
    QStringList shownLines(); ///< the transcript's paragraphs, with their captions
    bool isWaiting();         ///< prompt shown, everything that sends disabled
    bool isIdle();            ///< no prompt, fields enabled and empty, Send disabled
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
