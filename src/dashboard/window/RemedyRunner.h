#ifndef REMEDYRUNNER_H
#define REMEDYRUNNER_H

#include <QObject>
#include <QPointer>

#include "device/Situation.h"

class QMessageBox;
class QWidget;

namespace Dashboard
{

class AppController;
class PinDialog;

/**
 * Executes the remedies of a situation. Remedies that other parts of the main window implement are
 * emitted as signals. All functions return immediately.
 */
class RemedyRunner : public QObject
{
    Q_OBJECT
public:
    /// `window` is the parent of the dialogs. Both arguments must outlive the runner.
    RemedyRunner(AppController *controller, QWidget *window);

public slots:
    void perform(Dashboard::Remedy remedy);
    /// Updates the strings of the PIN dialog after a language change.
    void retranslate();

signals:
    /// Emitted to request that the main window open the Modem menu.
    void modemMenuRequested();
    void operatorRequested();
    /// Emitted to request that the main window open the Codes page with the focus in the command
    /// field.
    void typingRequested();
    /// Emitted with the error message if a device cannot be used.
    void deviceFailed(const QString &error);

private:
    void askForPin();
    void tryDemonstration();
    void useMyModem();
    void askToEndForeignSession();
    void explain(Remedy remedy);

    AppController *const m_controller;
    QWidget *const m_window;
    QPointer<PinDialog> m_pinDialog;
    QPointer<QMessageBox> m_question;
};

} // namespace Dashboard

#endif
