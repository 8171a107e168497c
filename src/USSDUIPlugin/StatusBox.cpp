#include "StatusBox.h"

#include <cmath>

#include <QEvent>
#include <QTextDocument>

#include "PluginText.h"

namespace
{

const int kWidth = 300; // pixels; the link has as many

const char *const kOwnKeys[] = {"USSD_CODE_WAITTING", "USSD_CODE_FAILED", "USSD_CODE_TIME_OUT"};

QString ownKeyOf(const QString &text)
{
    for (const char *key : kOwnKeys) {
        if (text == pluginText(QLatin1String(key)))
            return QLatin1String(key);
    }
    return QString();
}

} // namespace

StatusBox::StatusBox(QWidget *parent) : QTextEdit(parent), m_lines(1)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fixHeight();
}

void StatusBox::setLines(int lines)
{
    m_lines = lines;
    fixHeight();
}

void StatusBox::showText(const QString &text)
{
    m_ownKey = ownKeyOf(text);
    setPlainText(text);
}

void StatusBox::retranslate()
{
    if (!m_ownKey.isEmpty())
        setPlainText(pluginText(m_ownKey));
}

QSize StatusBox::sizeHint() const
{
    return QSize(kWidth, heightOfLines());
}

QSize StatusBox::minimumSizeHint() const
{
    return sizeHint();
}

void StatusBox::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fixHeight();
}

void StatusBox::fixHeight()
{
    setFixedHeight(heightOfLines());
}

/// As a document lays them out: it rounds each line up, and counts its own margins.
int StatusBox::heightOfLines() const
{
    QTextDocument lines;
    lines.setDefaultFont(font());
    lines.setDocumentMargin(document()->documentMargin());
    lines.setPlainText(QString(m_lines - 1, QLatin1Char('\n')));
    return static_cast<int>(std::ceil(lines.size().height())) + 2 * frameWidth();
}
