#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include "plugin/GeneralWindow.h"
#include "plugin/PrivatePluginFolder.h"
#include "TourEditor.h"
#include "TourGuide.h"
#include "TourParts.h"
#include "window/MainWindow.h"

namespace Dashboard
{

namespace
{

const char TABLE[] = "USSDUIPlugin_ProfileTable";
const char SAVE[] = "USSDUIPlugin_ProfileDialog_SaveButton";
const char CANCEL[] = "USSDUIPlugin_ProfileDialog_CancelButton";
const char EDIT[] = "USSDUIPlugin_AdvancedDialog_EditButton";
const char SYSTEM_FILE[] = "ussdsysprofile.xml";
const char EMPTY_FILE[] = "<tksvdoc type=\"USSDProfile\"/>\n";
const char ROW[] = "<item><name>My code %1</name><value>*%2#</value><readonly>false</readonly>"
                   "<showButton>true</showButton><langID/><desLangID/></item>\n";
const int NAME = 0;
const int CODE = 1;
const int FIRST_OWN_CODE = 700;

const TourStop READ_ONLY = {"read-only",
                            "the codes that come with the plug-in; shaded rows are read-only"};
const TourStop DUPLICATE = {"duplicate", "a code that is there already is refused"};
const TourStop QUESTION = {"save", "whether the changed names are to be saved"};
const TourStop SAVED = {"saved", "the buttons have the new names"};
const TourStop EMPTY = {"empty", "no codes at all"};
const TourStop FULL = {"full", "the last of a hundred codes"};

QByteArray manyCodes(int count)
{
    QString text = QLatin1String("<tksvdoc type=\"USSDProfile\">\n");
    for (int i = 1; i <= count; ++i)
        text += QString::fromLatin1(ROW).arg(i).arg(FIRST_OWN_CODE + i);
    return (text + QLatin1String("</tksvdoc>\n")).toUtf8();
}

QWidget *named(const char *name)
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String(name))
            return widget;
    }
    return nullptr;
}

bool press(const char *name)
{
    QPushButton *button = qobject_cast<QPushButton *>(named(name));
    if (button)
        button->click();
    return button;
}

void pressReturn(QWidget *widget)
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

QTableWidgetItem *itemAt(QTableWidget *table, int row, int column)
{
    if (!table->item(row, column))
        table->setItem(row, column, new QTableWidgetItem);
    return table->item(row, column);
}

int firstFreeRow(const QTableWidget *table)
{
    int row = 0;
    while (row + 1 < table->rowCount() && table->item(row, CODE) &&
           !table->item(row, CODE)->text().isEmpty())
        ++row;
    return row;
}

/// Enters the text as a user would: opens the cell, types, and presses Return.
bool enter(QTableWidget *table, int row, int column, const QString &text)
{
    QTableWidgetItem *item = itemAt(table, row, column);
    table->setCurrentItem(item);
    table->editItem(item);
    QLineEdit *edit = table->findChild<QLineEdit *>();
    if (!edit)
        return false;
    typeInto(edit, text);
    pressReturn(edit);
    TourGuide::settle();
    return true;
}

int firstRowToRename(const QTableWidget *table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, NAME) && (table->item(row, NAME)->flags() & Qt::ItemIsEditable))
            return row;
    }
    return 0;
}

bool lookOnly(TourGuide &guide, QTableWidget *, const TourStop &stop)
{
    return guide.take(stop);
}

bool scrollDown(TourGuide &guide, QTableWidget *table, const TourStop &stop)
{
    table->scrollToBottom();
    return guide.take(stop);
}

bool enterDuplicate(TourGuide &guide, QTableWidget *table, const TourStop &stop)
{
    guide.expectBox(stop);
    const QString code = itemAt(table, 0, CODE)->text();
    return enter(table, firstFreeRow(table), CODE, code) && guide.sawBox();
}

bool renameAndSave(TourGuide &guide, QTableWidget *table, const TourStop &stop)
{
    guide.expectBox(stop);
    return enter(table, firstRowToRename(table), NAME, QLatin1String("Abroad")) && press(SAVE) &&
           guide.sawBox();
}

} // namespace

TourEditor::TourEditor(TourGuide *guide) : m_guide(guide) {}

// Schedules the walk and opens the editor, which runs a nested event loop until it is closed.
bool TourEditor::visit(Walk walk, const TourStop &stop)
{
    m_walk = walk;
    m_stop = stop;
    m_walked = false;
    QTimer::singleShot(0, this, SLOT(onEditor()));
    return press(EDIT) && m_walked;
}

void TourEditor::onEditor()
{
    QTableWidget *table = qobject_cast<QTableWidget *>(named(TABLE));
    if (!table) {
        m_guide->failHere();
        return;
    }
    m_guide->visit(table->window(), "editor");
    m_walked = m_walk(*m_guide, table, m_stop);
    press(CANCEL);
}

bool TourParts::walkEditor(TourGuide &guide)
{
    TourEditor editor(&guide);
    PrivatePluginFolder *library = guide.library();
    const QString system = QLatin1String(SYSTEM_FILE);
    const int rows = 100;
    if (!guide.useNetwork() || !library->restore(system) || !guide.usePlugin() ||
        !editor.visit(lookOnly, READ_ONLY) || !editor.visit(enterDuplicate, DUPLICATE) ||
        !editor.visit(renameAndSave, QUESTION))
        return false;
    guide.visit(guide.window(), "page");
    const bool walked = guide.waitFor([&guide] { return guide.isPaidTypeShown(); }) &&
                        guide.take(SAVED) && library->write(system, EMPTY_FILE) &&
                        guide.usePlugin() && editor.visit(lookOnly, EMPTY) &&
                        library->write(system, manyCodes(rows)) && guide.usePlugin() &&
                        editor.visit(scrollDown, FULL);
    return library->restore(system) && walked;
}

} // namespace Dashboard
