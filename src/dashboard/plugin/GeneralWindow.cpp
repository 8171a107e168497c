#include "GeneralWindow.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputMethodEvent>
#include <QTextBlock>

#include "Change.h"
#include "ExtendDialog.h"

namespace Dashboard
{

namespace
{

template <typename T>
T *named(const QWidget *root, const char *name)
{
    return root->findChild<T *>(QLatin1String(name));
}

QString pluginText(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key)).trimmed();
}

} // namespace

bool isWaitingEdit(const QLineEdit *edit)
{
    return !edit->isEnabledTo(edit->parentWidget());
}

// Enters the text with an input method event, because setText() does not emit textEdited().
void typeInto(QLineEdit *edit, const QString &text)
{
    edit->selectAll();
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(edit, &event);
}

const char *const GeneralWindow::COMMAND_EDIT = "USSDUIPlugin_AdvancedDialog_USSDCmdEdit";
const char *const GeneralWindow::SEND_BUTTON = "USSDUIPlugin_AdvancedDialog_SendButton";

GeneralWindow::GeneralWindow(const QWidget *root)
{
    if (!root)
        return;
    m_commandEdit = named<QLineEdit>(root, COMMAND_EDIT);
    m_sendButton = named<QPushButton>(root, SEND_BUTTON);
    m_clearButton = named<QPushButton>(root, "USSDUIPlugin_AdvancedDialog_ClearButton");
    m_closeButton = named<QPushButton>(root, "USSDUIPlugin_AdvancedDialog_CloseButton");
    m_history = named<QTextEdit>(root, "USSDUIPlugin_AdvancedDialog_History");
    m_presetButton = named<QPushButton>(root, "USSDUIPlugin_AdvancedDialog_PreButton");
    m_numberEdit = named<QLineEdit>(root, "USSDUIPlugin_AdvancedDialog_PaymentEdit");
    m_numberLabel = named<QLabel>(root, "USSDUIPlugin_AdvancedDialog_InfoNumLabel");
}

GeneralWindow GeneralWindow::framed()
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !qobject_cast<const ExtendDialog *>(window))
            continue;
        GeneralWindow found(window);
        if (found.isComplete())
            return found;
    }
    return GeneralWindow();
}

bool GeneralWindow::isComplete() const
{
    return m_commandEdit && m_sendButton && m_history;
}

// Hides the field for numbers, which the plug-in shows even if its configuration does not contain
// any codes.
void GeneralWindow::hideUnusedPresets() const
{
    if (m_presetButton || !m_numberEdit || !m_numberLabel)
        return;
    m_numberEdit->hide();
    m_numberLabel->hide();
    widenHistory();
}

void GeneralWindow::widenHistory() const
{
    QGridLayout *grid = m_history && m_history->parentWidget()
                            ? qobject_cast<QGridLayout *>(m_history->parentWidget()->layout())
                            : nullptr;
    const int index = grid ? grid->indexOf(m_history) : -1;
    if (index < 0)
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    for (int i = 0; i < columns - 1; ++i) // the last column contains the Send button
        grid->setColumnStretch(column + i, 1);
}

bool GeneralWindow::isWaiting() const
{
    return m_commandEdit && isWaitingEdit(m_commandEdit);
}

bool GeneralWindow::send(const QString &text) const
{
    if (!isComplete() || isWaiting())
        return false;
    typeInto(m_commandEdit, text);
    if (!m_sendButton->isEnabled() || m_commandEdit->text() != text)
        return false;
    m_sendButton->click();
    return true;
}

bool GeneralWindow::isTimeOutText(const QString &text)
{
    return text == pluginText("USSD_CODE_TIME_OUT");
}

bool GeneralWindow::isFailureText(const QString &text)
{
    return text == pluginText("USSD_CODE_FAILED") || isTimeOutText(text);
}

QString GeneralWindow::transcript() const
{
    return m_history ? m_history->toPlainText() : QString();
}

QString GeneralWindow::lastReceived() const
{
    return lastEntry("IDS_USSD_RECEIVED");
}

QString GeneralWindow::lastSent() const
{
    return lastEntry("IDS_USSD_SEND");
}

QString GeneralWindow::lastEntry(const char *captionKey) const
{
    if (!m_history)
        return QString();
    const QString start = pluginText(captionKey);
    QTextBlock block = m_history->document()->lastBlock();
    while (block.isValid() && !block.text().startsWith(start))
        block = block.previous();
    QString text = block.text().mid(start.size());
    text.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    text.remove(QChar(0x200e)); // the left-to-right mark after the caption
    return text.trimmed();
}

} // namespace Dashboard
