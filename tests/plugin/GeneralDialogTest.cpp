#include "GeneralDialogTest.h"

void GeneralDialogTest::setUp()
{
    DialogTest::setUp();
    writeSystemProfiles(
        profileFile(profileItem("Balance", "*100#", "true", "true", "", "IDS_BUTTON_SEND") +
                    profileItem("Number", "*101#", "true", "true", "", "IDC_GENERAL_CLOSE") +
                    profileItem("Top up", "*102*%s#", "true", "true") +
                    profileItem("Give", "*103*%s#", "true", "true")));
}

void GeneralDialogTest::changeConfig(const char *from, const char *to)
{
    const QByteArray xml = completeConfig();
    if (!xml.contains(from))
        qFatal("no %s in the configuration", from);
    writeConfig(QByteArray(xml).replace(from, to));
}

QString GeneralDialogTest::clearAndAnswer(const char *buttonKey)
{
    QString question;
    QTimer::singleShot(0, this, [&] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        question = box->text();
        if (!buttonKey) {
            QTest::keyClick(box, Qt::Key_Escape);
            return;
        }
        for (QAbstractButton *button : box->buttons()) {
            if (button->text() == text(buttonKey))
                button->click();
        }
    });
    click(clearButton());
    drainEvents();
    return question;
}

int GeneralDialogTest::lineOf(const char *part)
{
    const QStringList lines = logLines();
    for (int i = 0; i < lines.count(); ++i) {
        if (lines.at(i).contains(latin1(part)))
            return i;
    }
    return -1;
}

void GeneralDialogTest::activateWindow()
{
    QApplication::setActiveWindow(dialog()->window());
    QVERIFY(QTest::qWaitForWindowActive(dialog()->window()));
}

/// Emits the signal of the combo box with the argument `index`.
void GeneralDialogTest::activate(const char *signal, int index)
{
    QVERIFY(QMetaObject::invokeMethod(combo(), signal, Q_ARG(int, index)));
}
