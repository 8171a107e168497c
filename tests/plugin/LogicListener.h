#ifndef LOGICLISTENER_H
#define LOGICLISTENER_H

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVariant>

class USSDLogic;

/**
 * Collects the signals of USSDLogic as a dialog does: through queued connections to the thread that
 * constructed the listener. QSignalSpy cannot be used, because the SDK's threads would write to it.
 */
class LogicListener : public QObject
{
    Q_OBJECT
public:
    explicit LogicListener(USSDLogic *logic);

    typedef QPair<int, QString> Answer;

    /// Waits for the next answer and removes it from the list. Returns (-1, "no answer") after ten
    /// seconds.
    Answer nextAnswer();

    QList<Answer> answers;
    QList<QList<QVariant>> smsResults;
    QList<bool> readiness;
    QThread *thread = nullptr; ///< the thread that received the most recent answer

private slots:
    void takeAnswer(int component, QString text);
    void takeSmsResult(bool ok, QString number, QString text);
    void takeReadiness(bool can);
};

#endif
