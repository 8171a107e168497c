#ifndef PINDIALOG_H
#define PINDIALOG_H

#include <QDialog>
#include <QTimer>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Dashboard
{

class Chip;
class DeviceWatcher;

/**
 * The dialog in which the user enters the PIN of a locked SIM. It stays open after a wrong PIN and
 * closes when the SIM no longer requires a PIN. The PIN is not stored. When the dialog has sent the
 * PIN and when it closes, it clears the input field and overwrites the memory that contained the
 * PIN. All functions must be called from the GUI thread.
 */
class PinDialog : public QDialog
{
    Q_OBJECT
public:
    /// The watcher must outlive the dialog.
    PinDialog(const DeviceWatcher *device, QWidget *parent);
    ~PinDialog() override;

    /// The time limit for checking the PIN, in milliseconds.
    static const int ANSWER_LIMIT = 30000;

public slots:
    /// Updates the strings after a language change.
    void retranslate();
    void done(int result) override;

private slots:
    void send();
    void onDeviceChanged();
    void onNoAnswer();
    void onEdited();

private:
    void makeWidgets();
    void layOut();
    void say(const char *key);
    void showPin(bool isShown);
    void showTries();
    void setWaiting(bool waiting);
    QString takePin();

    const DeviceWatcher *const m_device;
    QTimer m_answerLimit; // runs while the result of the PIN check is pending
    const char *m_messageKey = nullptr;
    QLabel *m_label;
    QLabel *m_question;
    QLineEdit *m_edit;
    QPushButton *m_eye;
    Chip *m_chip;
    QLabel *m_tries;
    QLabel *m_message;
    QPushButton *m_ok;
    QPushButton *m_cancel;
};

} // namespace Dashboard

#endif
