#ifndef GENERALDIALOGTEST_H
#define GENERALDIALOGTEST_H

#include "DialogTest.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTimer>

#include "fake_tksv.h"
#include "Languages.h"
#include "requests/USSDLogic.h"

/// Counts the key events that its child widgets do not accept.
class KeyCounter : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        Q_UNUSED(event)
        ++keys;
    }
};

inline QGridLayout *gridOf(QWidget *widget)
{
    return qobject_cast<QGridLayout *>(widget->layout());
}

/**
 * The base class for tests of the general dialog: its fields, sending, replies and the transcript.
 */
class GeneralDialogTest : public DialogTest
{
    Q_OBJECT

protected:
    void setUp() override;

protected:
    /// Presses Clear. In the message box that opens, presses the button whose text key is
    /// `buttonKey`, or Escape if `buttonKey` is null. Returns the text of the message box, or a
    /// null string if no message box has opened.
    QString clearAndAnswer(const char *buttonKey);
    /// Returns the index of the first log line that contains `part`, or -1 if there is none.
    int lineOf(const char *part);
    void activateWindow(); ///< needed because only a widget in an active window can have the focus
    void changeConfig(const char *from, const char *to);
    void activate(const char *signal, int index);
};

#endif
