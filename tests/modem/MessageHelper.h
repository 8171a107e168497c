#ifndef MODEM_MESSAGEHELPER_H
#define MODEM_MESSAGEHELPER_H

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>

/**
 * Records the text of each message box that opens, and closes the box by pressing its first button.
 * The helper is active for as long as it exists.
 */
class MessageHelper : public QObject
{
public:
    MessageHelper() { qApp->installEventFilter(this); }

    /// Returns the texts of all message boxes that have opened so far.
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
