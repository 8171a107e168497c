#ifndef KEYBOARDHELPER_H
#define KEYBOARDHELPER_H

#include <QObject>

class QLineEdit;

namespace Dashboard
{

/**
 * Makes the plug-in's general window usable with the keyboard alone, embedded or in a frame. Return
 * in the command edit presses Send. The command edit receives the focus when the window appears,
 * and when an answer enables the edit again. The event filter covers the whole application, because
 * the plug-in may create its windows at any time. Must be used on the GUI thread.
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

} // namespace Dashboard

#endif
