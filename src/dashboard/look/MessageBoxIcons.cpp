#include "MessageBoxIcons.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include "Icons.h"
#include "Look.h"

namespace Dashboard
{

namespace
{

const int SIZE = 32; // in pixels at 100 % text size

struct BoxIcon {
    const char *name;
    Token token;
};

BoxIcon iconFor(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Critical:
        return {"warning", Token::Danger};
    case QMessageBox::Warning:
        return {"warning", Token::Warn};
    case QMessageBox::Question:
        return {"list", Token::AccentText};
    default:
        return {"info", Token::AccentText};
    }
}

} // namespace

MessageBoxIcons::MessageBoxIcons(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool MessageBoxIcons::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Polish)
        return false;
    QMessageBox *box = qobject_cast<QMessageBox *>(watched);
    if (!box || box->icon() == QMessageBox::NoIcon)
        return false;
    const BoxIcon own = iconFor(box->icon());
    box->setIconPixmap(iconPixmap(own.name, own.token, px(SIZE), box));
    return false;
}

} // namespace Dashboard
