#include "MessageBox.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>

#include "QtCompat.h"

namespace HostCore
{

namespace
{

// The size limits for text in a label. Longer text is shown in a scrollable view.
const int LABEL_MAX_CHARACTERS = 600;
const int LABEL_MAX_LINES = 12;
const int LABEL_MAX_WORD = 50;

const QSize VIEW_SIZE(420, 220); // in pixels
const int AROUND_VIEW = 160;     // the space for the frame, the icon and the buttons, in pixels

int longestWord(const QString &text)
{
    int longest = 0;
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        longest = qMax(longest, length);
    }
    return longest;
}

bool fitsLabel(const QString &text)
{
    return text.size() <= LABEL_MAX_CHARACTERS && text.count(QLatin1Char('\n')) < LABEL_MAX_LINES &&
           longestWord(text) <= LABEL_MAX_WORD;
}

} // namespace

MessageBox::MessageBox(Icon icon, const QString &caption, const QString &text, QWidget *parent)
    : QMessageBox(icon, caption, QString(), NoButton, parent)
{
    setTextFormat(Qt::PlainText);
    if (fitsLabel(text))
        setText(text);
    else
        showInView(text);
}

void MessageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        reject();
    else
        QMessageBox::keyPressEvent(event);
}

// Calls the implementation of QDialog directly. If the message box has only one button,
// QMessageBox::closeEvent() would press it.
void MessageBox::closeEvent(QCloseEvent *event)
{
    QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void MessageBox::showInView(const QString &text)
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(layout());
    QLabel *label = findChild<QLabel *>(QLatin1String("qt_msgbox_label"));
    if (!grid || !label)
        return setText(text.left(LABEL_MAX_CHARACTERS));
    QPlainTextEdit *view = new QPlainTextEdit(text, this);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setAccessibleName(windowTitle());
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QSize screen = QtCompat::availableGeometry(this).size();
    view->setFixedSize(VIEW_SIZE.boundedTo(screen - QSize(AROUND_VIEW, AROUND_VIEW)));
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
    label->hide();
    grid->addWidget(view, row, column, rows, columns);
}

} // namespace HostCore
