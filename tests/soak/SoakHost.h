#ifndef SOAKHOST_H
#define SOAKHOST_H

#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include "IUSSD.h"
#include "plugin/PluginContainer.h"
#include "sim/NotificationService.h"

/** The number of commands of each kind in a round. */
struct SoakLoad {
    int pageCommands;     // sent with the general window's Send button
    int pipelineCommands; // sent through the pipeline one by one
    int queuedCommands;   // sent through the pipeline at once
};

/**
 * A host that uses the plug-in like a user over many months: it changes languages, opens windows,
 * sends codes with and without replies, removes devices and changes SIM cards. Everything runs in
 * this process and uses SoakClock as its clock. All functions must be called from the GUI thread.
 */
class SoakHost : public QObject
{
    Q_OBJECT
public:
    explicit SoakHost(const SoakLoad &load);
    ~SoakHost() override;

    /// Returns true if the plug-in's files have been copied and the network has been started.
    bool isReady() const { return m_isReady; }
    /// Uses each function of the plug-in once. The language, the network and the restarts vary
    /// between rounds. After cycle() rounds, all combinations have been used.
    void round(int number);
    static int cycle();

    qint64 commands() const { return m_commands; }
    qint64 openings() const { return m_openings; }
    /// Returns the number of commands with a reported outcome.
    qint64 answers() const { return m_answers; }
    /// Returns the descriptions of all failures.
    QStringList troubles() const { return m_troubles; }

private slots:
    void countAnswer();
    void pulse();

private:
    bool layOutFiles();
    void startPlugin();
    void stopPlugin();
    void speak(int number);
    void useNetwork(int number);
    void usePage();
    void openFrame(PAID_TYPE type);
    void openEditor(QWidget *page);
    void runPipeline();
    void loseDevice();

    bool hand(const char *code);
    void sendAndWait(const char *code);
    void waitForAnswer(qint64 before);
    void waitUntilIdle();
    void letTimeRunOut();
    void passReplyLimit();
    void settle();
    void trouble(const QString &text);

    const SoakLoad m_load;
    QTemporaryDir m_folder;
    Dashboard::PluginContainer m_container;
    Dashboard::NotificationService m_notifications;
    QWidget m_window; // the host's main window
    QTimer m_pulse;
    bool m_isReady;
    qint64 m_commands = 0;
    qint64 m_openings = 0;
    qint64 m_answers = 0;
    int m_quietPulses = 0; // consecutive pulses without a pending answer
    QStringList m_troubles;
};

#endif
