#include "PresetButtonsTest.h"

#include <QTimer>

QByteArray PresetButtonsTest::nameOf(int index)
{
    return "Name " + QByteArray::number(index);
}

QByteArray PresetButtonsTest::codeOf(int index)
{
    return "*" + QByteArray::number(100 + index) + "#";
}

void PresetButtonsTest::writeProfiles(const QByteArray &mask)
{
    QByteArray items;
    for (int i = 0; i < mask.size(); ++i)
        items += profileItem(nameOf(i), codeOf(i), "true", mask.at(i) == '1' ? "true" : "false");
    writeSystemProfiles(profileFile(items));
}

void PresetButtonsTest::writeNames(const QList<QByteArray> &names)
{
    QByteArray items;
    for (int i = 0; i < names.count(); ++i)
        items += profileItem(names.at(i), codeOf(i), "true", "true");
    writeSystemProfiles(profileFile(items));
}

QStringList PresetButtonsTest::labels()
{
    QStringList texts;
    for (QPushButton *button : presetButtons())
        texts << (button->isHidden() ? latin1("(hidden)") : button->text());
    return texts;
}

void PresetButtonsTest::editAndPress(const char *button)
{
    bool pressed = false;
    QTimer::singleShot(0, this, [&] {
        // The editor's window is a child of the widget that contains the dialog.
        QPushButton *found = page()->findChild<QPushButton *>(
            latin1("USSDUIPlugin_ProfileDialog_") + latin1(button));
        if (!found)
            return;
        pressed = true;
        found->click();
    });
    click(part<QPushButton>("EditButton"));
    QVERIFY(pressed);
    drainEvents();
}
