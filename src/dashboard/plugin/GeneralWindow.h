#ifndef GENERALWINDOW_H
#define GENERALWINDOW_H

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QTextEdit>

namespace Dashboard
{

/// Returns true if the plug-in has disabled the command field because the window is waiting for a
/// reply.
bool isWaitingEdit(const QLineEdit *edit);

/// Replaces the text of the input field as if the user had typed the new text.
void typeInto(QLineEdit *edit, const QString &text);

/**
 * Provides access to the plug-in's general window through the object names of its widgets. The
 * plug-in owns the widgets and may delete them at any time. All functions must be called from the
 * GUI thread.
 */
class GeneralWindow
{
public:
    static const char *const COMMAND_EDIT;
    static const char *const SEND_BUTTON;

    GeneralWindow() = default;
    /// Searches the descendants of `root`, which may be null.
    explicit GeneralWindow(const QWidget *root);
    /// Returns the general window that the plug-in shows in a separate frame. If there is no such
    /// window, isComplete() returns false for the result.
    static GeneralWindow framed();

    bool isComplete() const;
    QLineEdit *commandEdit() const { return m_commandEdit; }
    QPushButton *sendButton() const { return m_sendButton; }
    QTextEdit *history() const { return m_history; }
    /// The following two buttons are null if the plug-in's configuration hides them.
    QPushButton *clearButton() const { return m_clearButton; }
    QPushButton *closeButton() const { return m_closeButton; }

    /// If there are no preset buttons, which send configured codes, hides the field for their
    /// numbers and enlarges the transcript to use their space.
    void hideUnusedPresets() const;

    /// Returns true if the window is waiting for a reply. The result does not change if the
    /// dashboard disables the complete window.
    bool isWaiting() const;
    /// Enters the text into the command field and clicks Send. Returns false if the window does not
    /// accept the text.
    bool send(const QString &text) const;

    /// Returns true if the plug-in shows this string instead of a reply after a time-out.
    /// isFailureText() also returns true for the string that the plug-in shows after any other
    /// failure.
    static bool isTimeOutText(const QString &text);
    static bool isFailureText(const QString &text);

    /// Returns the transcript as plain text.
    QString transcript() const;
    /// Returns the most recent reply in the transcript without its caption, or an empty string if
    /// there is no reply. The transcript's markup may have changed the white space of the reply.
    QString lastReceived() const;
    /// Returns the most recent command in the transcript without its caption, or an empty string if
    /// there is no command.
    QString lastSent() const;

    /// Enlarges the transcript to use the space that the buttons do not need.
    void widenHistory() const;

private:
    QString lastEntry(const char *captionKey) const;

    QPointer<QLineEdit> m_commandEdit;
    QPointer<QPushButton> m_sendButton;
    QPointer<QPushButton> m_clearButton;
    QPointer<QPushButton> m_closeButton;
    QPointer<QTextEdit> m_history;
    QPointer<QPushButton> m_presetButton; // the first preset button
    QPointer<QLineEdit> m_numberEdit;
    QPointer<QLabel> m_numberLabel;
};

} // namespace Dashboard

#endif
