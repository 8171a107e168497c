#include "ProfileLineEdit.h"

#include <QKeyEvent>

ProfileLineEdit::ProfileLineEdit(QWidget *parent) : ExtendLineEdit(parent) {}

void ProfileLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Up && event->key() != Qt::Key_Down) {
        ExtendLineEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent sideways(QEvent::KeyPress, event->key() == Qt::Key_Up ? Qt::Key_Left : Qt::Key_Right,
                       event->modifiers());
    ExtendLineEdit::keyPressEvent(&sideways);
    event->accept();
}
