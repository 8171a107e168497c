#include "MessageParts.h"

#include <QWidget>

#include "AppController.h"
#include "messages/MessageDatabase.h"

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
    : QObject(window), m_store(messageFile(controller)), m_notifier(QDBusConnection::sessionBus()),
      m_center(&m_store, &controller->device(), controller->settings(), &m_notifier),
      m_question(&controller->monitor(), window)
{
    m_center.setInFront([window] { return window->isActiveWindow(); });
    connect(controller, &AppController::textReceived, &m_center, &MessageCenter::add);
    connect(controller, &AppController::commandEnded, this, [this, controller] {
        if (controller->monitor().state().kind != CommandState::Kind::MenuOpen)
            m_store.endWaiting();
    });
    connect(controller, &AppController::frameOpened, &m_question, &QuestionDialog::look);
    connect(controller, &AppController::frameClosed, &m_question, &QuestionDialog::look);
    connect(&m_store, &MessageStore::problem, controller, &AppController::problem);
}

void MessageParts::retranslate()
{
    m_question.retranslate();
}

} // namespace Dashboard
