#include "AccountReplyView.h"

#include <cmath>

#include <QEvent>
#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "base/PluginText.h"
#include "markup/PieceFeeder.h"
#include "markup/SlowText.h"
#include "ServiceReplyLabel.h"

namespace
{

const int WIDTH = 300; // in pixels; the link has the same width

const char *const OWN_KEYS[] = {"USSD_CODE_WAITTING", "USSD_CODE_FAILED", "USSD_CODE_TIME_OUT"};

QString ownKeyOf(const QString &text)
{
    for (const char *key : OWN_KEYS) {
        if (text == pluginText(QLatin1String(key)))
            return QLatin1String(key);
    }
    return QString();
}

bool holdsRightToLeftLetter(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        const QChar::Direction direction = text.at(i).direction();
        if (direction == QChar::DirR || direction == QChar::DirAL)
            return true;
    }
    return false;
}

/// Returns the text without the directional formatting characters U+202A to U+202E.
QString withoutDirectionMarks(const QString &text)
{
    QString kept;
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) < QChar(0x202A) || text.at(i) > QChar(0x202E))
            kept += text.at(i);
    }
    return kept;
}

} // namespace

AccountReplyView::AccountReplyView(QWidget *parent)
    : QTextEdit(parent), m_feeder(new PieceFeeder(this)), m_lines(1)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fixHeight();
}

void AccountReplyView::setLines(int lines)
{
    m_lines = lines;
    fixHeight();
}

void AccountReplyView::showText(const QString &text)
{
    m_ownKey = ownKeyOf(text);
    setReply(holdsRightToLeftLetter(text) ? ServiceReplyLabel::withCodesMarked(text) : text);
}

/// Shows the reply. Heavy text, which networks cannot send, is inserted as a series of paragraphs.
void AccountReplyView::setReply(const QString &text)
{
    m_feeder->drop();
    if (!SlowText::isHeavy(text)) {
        setPlainText(text);
        return;
    }
    const QStringList pieces = SlowText::pieces(text);
    setPlainText(pieces.first());
    for (int i = 1; i < pieces.count(); ++i)
        m_feeder->add(pieces.at(i), QTextBlockFormat(), QTextCharFormat());
}

void AccountReplyView::retranslate()
{
    if (!m_ownKey.isEmpty())
        setReply(pluginText(m_ownKey));
}

QSize AccountReplyView::sizeHint() const
{
    return QSize(WIDTH, heightOfLines());
}

QSize AccountReplyView::minimumSizeHint() const
{
    return sizeHint();
}

/// Returns the selection without the directional formatting characters that showText() inserts.
/// These characters would make a copied code unusable.
QMimeData *AccountReplyView::createMimeDataFromSelection() const
{
    QMimeData *data = new QMimeData;
    data->setText(withoutDirectionMarks(textCursor().selection().toPlainText()));
    return data;
}

/// Handles the first style sheet like a later style change. Qt does not send an event for the first
/// style sheet, so the frame would keep its old width.
bool AccountReplyView::event(QEvent *event)
{
    const bool isHandled = QTextEdit::event(event);
    if (event->type() == QEvent::Polish) {
        QEvent styled(QEvent::StyleChange);
        changeEvent(&styled);
    }
    return isHandled;
}

void AccountReplyView::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fixHeight();
}

void AccountReplyView::fixHeight()
{
    setFixedHeight(heightOfLines());
}

/// Returns the height of m_lines lines of text. QTextDocument rounds the height of each line up and
/// adds its margins.
int AccountReplyView::heightOfLines() const
{
    QTextDocument lines;
    lines.setDefaultFont(font());
    lines.setDocumentMargin(document()->documentMargin());
    lines.setPlainText(QString(m_lines - 1, QLatin1Char('\n')));
    return static_cast<int>(std::ceil(lines.size().height())) + 2 * frameWidth();
}
