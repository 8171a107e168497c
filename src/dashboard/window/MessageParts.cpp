#include "MessageParts.h"

#include <QWidget>

#include "AppController.h"
#include "messages/MessageDatabase.h"
#include "QuestionDialog.h"

namespace Dashboard
{

namespace
{

QString messageFile(const AppController *controller)
{
    return controller->settings() ? MessageDatabase::userFile() : QString();
}

} // namespace

MessageParts::MessageParts(AppController *controller, QWidget *window)
    : QObject(window), m_controller(controller), m_window(window), m_store(messageFile(controller)),
      m_notifier(QDBusConnection::sessionBus()),
      m_center(&m_store, &controller->device(), controller->settings(), &m_notifier)
{
    m_center.setInFront([window] { return window->isActiveWindow(); });
    connect(controller, &AppController::textReceived, &m_center, &MessageCenter::add);
    connect(controller, &AppController::commandEnded, this, [this, controller] {
        if (controller->monitor().state().kind != CommandState::Kind::MenuOpen)
            m_store.endWaiting();
    });
    connect(&controller->monitor(), &CommandMonitor::changed, this, [this] {
        if (!m_question && m_controller->monitor().state().kind == CommandState::Kind::MenuOpen)
            showQuestion();
    });
    connect(controller, &AppController::frameOpened, this, &MessageParts::showQuestion);
    connect(controller, &AppController::frameClosed, this, &MessageParts::showQuestion);
    connect(&m_store, &MessageStore::problem, controller, &AppController::problem);
}

void MessageParts::retranslate()
{
    if (m_question)
        m_question->retranslate();
}

/// Shows or hides the open menu of the network above a window of the plug-in that has its own
/// frame.
void MessageParts::showQuestion()
{
    if (!m_question)
        m_question = new QuestionDialog(&m_controller->monitor(), m_window);
    m_question->look();
}

} // namespace Dashboard
