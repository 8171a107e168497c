#ifndef PINDIALOG_H
#define PINDIALOG_H

#include <QDialog>
#include <QTimer>

class DeviceWatcher;
class QLabel;
class QLineEdit;
class QPushButton;

/**
 * Takes the PIN of a locked SIM. It stays open while the PIN is wrong, and closes by itself when
 * the SIM waits for none any more. The PIN is not kept: the field is emptied and its text written
 * over as soon as it was sent, and whenever the dialog closes. GUI thread.
 */
class PinDialog : public QDialog
{
    Q_OBJECT
public:
    /// The watcher outlives the dialog.
    PinDialog(const DeviceWatcher *device, QWidget *parent);
    ~PinDialog() override;

    /// How long the SIM may take to say whether it was the right one, in milliseconds.
    static const int ANSWER_LIMIT = 30000;

public slots:
    /// Reads the texts again.
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
    void showTries();
    void setWaiting(bool waiting);
    QString takePin();

    const DeviceWatcher *const m_device;
    QTimer m_answerLimit; // runs while an answer is awaited
    const char *m_saidKey = nullptr;
    QLabel *m_question;
    QLabel *m_label;
    QLineEdit *m_edit;
    QLabel *m_tries;
    QLabel *m_message;
    QPushButton *m_ok;
    QPushButton *m_cancel;
};

#endif
