#ifndef SOAKHOST_H
#define SOAKHOST_H

#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include "IUSSD.h"
#include "plugin/PluginContainer.h"
#include "sim/NotificationService.h"

/** How much one round does. */
struct SoakLoad {
    int pageCommands;     // typed into the general window, and sent by its button
    int pipelineCommands; // handed to the pipeline one after the other
    int queuedCommands;   // handed to it at once
};

/**
 * A host that uses the plug-in as its users do in months: languages, windows, codes, codes without
 * an answer, devices that go away, other SIM cards. Everything runs in this process; only the time
 * is SoakClock's. GUI thread.
 */
class SoakHost : public QObject
{
    Q_OBJECT
public:
    explicit SoakHost(const SoakLoad &load);
    ~SoakHost() override;

    /// Whether the plug-in's files could be laid out and the network be started.
    bool isReady() const { return m_isReady; }
    /// Does everything once. Rounds differ by language, network, and what is begun anew; after
    /// cycle() of them all combinations have been there.
    void round(int number);
    static int cycle();

    qint64 commands() const { return m_commands; }
    qint64 openings() const { return m_openings; }
    /// Commands whose outcome has been announced.
    qint64 answers() const { return m_answers; }
    /// What went otherwise than it must, for people; empty when nothing did.
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
    PluginContainer m_container;
    NotificationService m_notifications;
    QWidget m_window; // the host's main window
    QTimer m_pulse;
    bool m_isReady;
    qint64 m_commands = 0;
    qint64 m_openings = 0;
    qint64 m_answers = 0;
    int m_quietPulses = 0; // in a row, at which no answer was awaited
    QStringList m_troubles;
};

#endif
