#include "ReplyMessageBox.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "base/PluginText.h"
#include "markup/SlowText.h"

namespace
{

// Text that exceeds one of these limits is shown in a scrollable view instead of a label.
const int LABEL_CHARACTERS = 600;
const int LABEL_LINES = 12;
const int LABEL_WORD = 50;

const int VIEW_WIDTH = 420; // in pixels
const int VIEW_HEIGHT = 220;

int longestWord(const QString &text)
{
    int longest = 0;
    int length = 0;
    for (int i = 0; i < text.length(); ++i) {
        length = text.at(i).isSpace() ? 0 : length + 1;
        longest = qMax(longest, length);
    }
    return longest;
}

bool fitsLabel(const QString &text)
{
    return text.length() <= LABEL_CHARACTERS && text.count(QLatin1Char('\n')) < LABEL_LINES &&
           longestWord(text) <= LABEL_WORD;
}

QPlainTextEdit *createView(QWidget *parent, const QString &text)
{
    QPlainTextEdit *view = new QPlainTextEdit(parent);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setFixedSize(VIEW_WIDTH, VIEW_HEIGHT);
    view->setPlainText(
        SlowText::isHeavy(text) ? SlowText::pieces(text).join(QString(QLatin1Char('\n'))) : text);
    return view;
}

/// Replaces the label with a scrollable view. A label would become as wide as the longest word.
void showInView(QMessageBox *box, const QString &text)
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(box->layout());
    QLabel *label = box->findChild<QLabel *>(QLatin1String("qt_msgbox_label"));
    if (!grid || !label) {
        box->setText(text.left(LABEL_CHARACTERS));
        return;
    }
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
    label->hide();
    grid->addWidget(createView(box, text), row, column, rows, columns);
}

} // namespace

namespace ReplyMessageBox
{

QMessageBox *create(QWidget *parent, const QString &reply)
{
    QMessageBox *box = new QMessageBox(parent);
    box->setIcon(QMessageBox::Information);
    box->setTextFormat(Qt::PlainText);
    box->addButton(QString(), QMessageBox::YesRole);
    retranslate(box);
    if (fitsLabel(reply))
        box->setText(reply);
    else
        showInView(box, reply);
    return box;
}

void retranslate(QMessageBox *box)
{
    box->setWindowTitle(pluginText(QLatin1String("IDS_PROMPT_CAPTION")));
    box->buttons().first()->setText(pluginText(QLatin1String("IDS_BUTTON_OK")));
}

} // namespace ReplyMessageBox
