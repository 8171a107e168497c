#ifndef KEYBOARDHELPER_H
#define KEYBOARDHELPER_H

#include <QObject>

class QLineEdit;

/**
 * Makes the keyboard enough for the plug-in's general window, embedded or framed: Return in the
 * command edit presses Send, and the edit gets the focus when the window appears and whenever it
 * is enabled again after an answer. Watches the whole application, as the plug-in makes its windows
 * when it likes. GUI thread.
 */
class KeyboardHelper : public QObject
{
    Q_OBJECT
public:
    explicit KeyboardHelper(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static bool pressSend(const QLineEdit *edit);
};

#endif
