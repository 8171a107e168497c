#include "LogicListener.h"

#include <QThread>
#include <QtTest>

#include "requests/USSDLogic.h"

LogicListener::LogicListener(USSDLogic *logic)
{
    connect(logic, SIGNAL(responseReceived(int, QString)), SLOT(takeAnswer(int, QString)));
    connect(logic, SIGNAL(SmsSendResult(bool, QString, QString)),
            SLOT(takeSmsResult(bool, QString, QString)));
    connect(logic, SIGNAL(CanSendSMS(bool)), SLOT(takeReadiness(bool)));
}

LogicListener::Answer LogicListener::nextAnswer()
{
    if (!QTest::qWaitFor([this] { return !answers.isEmpty(); }, 10000))
        return Answer(-1, QStringLiteral("no answer"));
    return answers.takeFirst();
}

void LogicListener::takeAnswer(int component, QString text)
{
    thread = QThread::currentThread();
    answers << Answer(component, text);
}

void LogicListener::takeSmsResult(bool ok, QString number, QString text)
{
    smsResults << (QList<QVariant>() << ok << number << text);
}

void LogicListener::takeReadiness(bool can)
{
    readiness << can;
}
