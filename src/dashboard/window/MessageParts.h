#ifndef MESSAGEPARTS_H
#define MESSAGEPARTS_H

#include <QObject>

#include "messages/DesktopNotifier.h"
#include "messages/MessageCenter.h"
#include "messages/MessageStore.h"

namespace Dashboard
{

class AppController;
class QuestionDialog;

/** Creates and connects the objects that receive, store and announce network-initiated messages. */
class MessageParts : public QObject
{
    Q_OBJECT
public:
    /// Both arguments must outlive this object.
    MessageParts(AppController *controller, QWidget *window);

    MessageStore &store() { return m_store; }
    MessageCenter &center() { return m_center; }
    DesktopNotifier &notifier() { return m_notifier; }

public slots:
    /// Updates the strings after a language change.
    void retranslate();

private:
    void showQuestion();

    AppController *const m_controller;
    QWidget *const m_window;
    MessageStore m_store;
    DesktopNotifier m_notifier;
    MessageCenter m_center;
    QuestionDialog *m_question = nullptr; // null until a frame or a menu has been opened
};

} // namespace Dashboard

#endif
