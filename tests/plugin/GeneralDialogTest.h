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

/// Counts the key events that no child widget accepts.
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
 * The base class of tests of the general dialog: input fields, sending, answers and transcript.
 */
class GeneralDialogTest : public DialogTest
{
    Q_OBJECT

protected:
    void setUp() override;

protected:
    /// Presses Clear, and then the button of the confirmation box whose text key is `buttonKey`, or
    /// Escape if the key is null. Returns the text of the box, or a null string if no box was
    /// opened.
    QString clearAndAnswer(const char *buttonKey);
    /// Returns the index of the first log line that contains `part`, or -1.
    int lineOf(const char *part);
    void activateWindow(); ///< required because a widget has the focus only in an active window
    void changeConfig(const char *from, const char *to);
    void activate(const char *signal, int index);
};

#endif
