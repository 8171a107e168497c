#ifndef KEYBOARDHELPER_H
#define KEYBOARDHELPER_H

#include <QObject>

class QLineEdit;

namespace Dashboard
{

/**
 * Makes the plug-in's general window usable with the keyboard alone, both embedded and in a
 * separate frame. Pressing Return in the command field clicks the Send button. The command field
 * receives the focus when the window appears, and when a reply enables the field again. The event
 * filter is installed on the application, because the plug-in may create its windows at any time.
 * All functions must be called from the GUI thread.
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
