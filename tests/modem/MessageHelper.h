#ifndef MODEM_MESSAGEHELPER_H
#define MODEM_MESSAGEHELPER_H

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

/**
 * As long as the helper exists, it records the text of each message box and closes the box with the
 * first button of the box.
 */
class MessageHelper : public QObject
{
public:
    MessageHelper() { qApp->installEventFilter(this); }

    /// Returns the texts of all message boxes so far.
    QStringList texts() const { return m_texts; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        QMessageBox *box =
            event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
        if (box) {
            m_texts << box->text();
            QTimer::singleShot(0, box, [box] { box->buttons().first()->click(); });
        }
        return false;
    }

private:
    QStringList m_texts;
};

#endif
