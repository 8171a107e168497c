#ifndef GENERALWINDOW_H
#define GENERALWINDOW_H

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QTextEdit>

/// Puts the text into the entry field as a user's typing would, in place of what is there.
void typeInto(QLineEdit *edit, const QString &text);

/**
 * The plug-in's general window as a host can reach it: by the object names of its widgets. The
 * widgets are the plug-in's and may go at any time. GUI thread.
 */
class GeneralWindow
{
public:
    static const char *const COMMAND_EDIT;
    static const char *const SEND_BUTTON;

    GeneralWindow() = default;
    /// Looks below `root`, which may be null.
    explicit GeneralWindow(const QWidget *root);
    /// The one that the plug-in shows in a frame of its own; incomplete when none is shown.
    static GeneralWindow framed();

    bool isComplete() const;
    QLineEdit *commandEdit() const { return m_commandEdit; }
    QPushButton *sendButton() const { return m_sendButton; }
    /// These two may be null: whether there is one is for the plug-in's configuration to say.
    QPushButton *clearButton() const { return m_clearButton; }
    QPushButton *closeButton() const { return m_closeButton; }

    /// Whether an answer is awaited.
    bool isWaiting() const;
    /// Types the text and presses Send. False when the window does not take it.
    bool send(const QString &text) const;

    /// The transcript as plain text.
    QString transcript() const;
    /// The newest reply in the transcript, without its caption; the transcript's markup may have
    /// changed its blanks. Empty when there is none.
    QString lastReceived() const;

private:
    QPointer<QLineEdit> m_commandEdit;
    QPointer<QPushButton> m_sendButton;
    QPointer<QPushButton> m_clearButton;
    QPointer<QPushButton> m_closeButton;
    QPointer<QTextEdit> m_history;
};

#endif
