#ifndef LOGICLISTENER_H
#define LOGICLISTENER_H

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVariant>

class USSDLogic;

/**
 * Collects the logic's signals as a dialog gets them: queued, on the thread that made it. (A signal
 * spy of QtTest would be written to by the device SDK's threads.)
 */
class LogicListener : public QObject
{
    Q_OBJECT
public:
    explicit LogicListener(USSDLogic *logic);

    typedef QPair<int, QString> Answer;

    /// Waits for the next answer and takes it; (-1, "no answer") after ten seconds.
    Answer nextAnswer();

    QList<Answer> answers;
    QList<QList<QVariant>> smsResults;
    QList<bool> readiness;
    QThread *thread = nullptr; ///< of the newest answer

private slots:
    void takeAnswer(int component, QString text);
    void takeSmsResult(bool ok, QString number, QString text);
    void takeReadiness(bool can);
};

#endif
