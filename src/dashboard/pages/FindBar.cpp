#include "FindBar.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

#include "base/DashboardText.h"
#include "look/Controls.h"

namespace Dashboard
{

namespace
{

const int MOST_MATCHES = 1000;

// These colours do not depend on the theme, because the background of the transcript is light in
// both themes.
const QRgb MATCH = qRgb(0xff, 0xe2, 0x8a);
const QRgb CURRENT_MATCH = qRgb(0x1d, 0x4e, 0xd8);

QTextEdit::ExtraSelection selectionOf(const QTextCursor &match, bool isCurrent)
{
    QTextEdit::ExtraSelection selection;
    selection.cursor = match;
    selection.format.setBackground(QColor(isCurrent ? CURRENT_MATCH : MATCH));
    if (isCurrent)
        selection.format.setForeground(Qt::white);
    return selection;
}

} // namespace

FindBar::FindBar(const std::function<QTextEdit *()> &transcript, QWidget *parent)
    : QWidget(parent), m_transcript(transcript),
      m_rows(new QBoxLayout(QBoxLayout::LeftToRight, this)), m_field(new QLineEdit(this)),
      m_count(makeLabel("small", this)),
      m_previous(addButton("up", "Dashboard_FindPrevious", &FindBar::findPrevious)),
      m_next(addButton("down", "Dashboard_FindNext", &FindBar::findNext)),
      m_close(addButton("close", "Dashboard_FindClose", &FindBar::dismiss))
{
    setObjectName(QLatin1String("Dashboard_FindBar"));
    m_field->setObjectName(QLatin1String("Dashboard_FindField"));
    m_count->setObjectName(QLatin1String("Dashboard_FindCount"));
    m_count->setMinimumWidth(1); // otherwise, the text would determine the minimum width of the bar
    setStyleProperty(m_field, "empty", QLatin1String("true"));
    QHBoxLayout *buttons = new QHBoxLayout;
    setSpacing(buttons, 4);
    for (QWidget *part : {static_cast<QWidget *>(m_count), static_cast<QWidget *>(m_previous),
                          static_cast<QWidget *>(m_next), static_cast<QWidget *>(m_close)})
        buttons->addWidget(part, part == m_count ? 1 : 0);
    setMargins(m_rows, 12, 6, 12, 6);
    setSpacing(m_rows, 4);
    m_rows->addWidget(m_field, 1);
    m_rows->addLayout(buttons);
    connect(m_field, &QLineEdit::textChanged, this, &FindBar::onTextChanged);
    hide();
    retranslate();
}

QPushButton *FindBar::addButton(const char *iconName, const char *objectName,
                                void (FindBar::*slot)())
{
    QPushButton *button = makeIconButton(iconName, this);
    button->setObjectName(QLatin1String(objectName));
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void FindBar::retranslate()
{
    m_field->setPlaceholderText(dashboardText("STRIP_FIND"));
    m_field->setAccessibleName(dashboardText("STRIP_FIND"));
    setIconButtonText(m_previous, dashboardText("STRIP_FIND_PREVIOUS"));
    setIconButtonText(m_next, dashboardText("STRIP_FIND_NEXT"));
    setIconButtonText(m_close, dashboardText("STRIP_FIND_CLOSE"));
    showCount();
}

void FindBar::setForm(Form form)
{
    m_rows->setDirection(form == Form::Narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

/// Shows the current match again when the transcript has its new size.
void FindBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(this, &FindBar::scrollToMatch, Qt::QueuedConnection);
}

// ---- opening and closing -------------------------------------------------------------------

void FindBar::open()
{
    if (isHidden())
        m_focusBefore = QApplication::focusWidget();
    show();
    follow();
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void FindBar::dismiss()
{
    if (isHidden())
        return;
    const bool hasFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    m_matches.clear();
    highlight();
    if (hasFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
}

void FindBar::follow()
{
    QTextEdit *transcript = m_transcript();
    if (transcript != m_followed && transcript)
        connect(transcript, &QTextEdit::textChanged, this, &FindBar::search);
    m_followed = transcript;
    search();
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isBackward = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Escape:
        return dismiss();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
        return step(isBackward ? -1 : 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

// ---- matches -------------------------------------------------------------------------------

void FindBar::onTextChanged()
{
    setStyleProperty(m_field, "empty", QLatin1String(m_field->text().isEmpty() ? "true" : "false"));
    m_current = 0;
    search();
}

/// Finds all matches again. The current match keeps its number, because the plug-in only appends to
/// the transcript.
void FindBar::search()
{
    m_matches.clear();
    if (isHidden())
        return;
    if (m_followed && !m_field->text().isEmpty()) {
        QTextCursor match = m_followed->document()->find(m_field->text());
        while (!match.isNull() && m_matches.size() < MOST_MATCHES) {
            m_matches << match;
            match = m_followed->document()->find(m_field->text(), match);
        }
    }
    m_current = qBound(0, m_current, qMax(0, int(m_matches.size()) - 1));
    showMatches();
}

void FindBar::step(int distance)
{
    if (m_matches.isEmpty())
        return;
    const int count = m_matches.size();
    m_current = (m_current + distance + count) % count;
    showMatches();
}

void FindBar::showMatches()
{
    highlight();
    scrollToMatch();
    showCount();
}

void FindBar::highlight()
{
    if (!m_followed)
        return;
    QList<QTextEdit::ExtraSelection> selections;
    for (int i = 0; i < m_matches.size(); ++i)
        selections << selectionOf(m_matches.at(i), i == m_current);
    m_followed->setExtraSelections(selections);
}

/// Scrolls to the current match without moving the text cursor, so that text that the user has
/// selected stays selected.
void FindBar::scrollToMatch()
{
    if (m_matches.isEmpty() || !m_followed)
        return;
    const QRect match = m_followed->cursorRect(m_matches.at(m_current));
    const QRect visible = m_followed->viewport()->rect();
    QScrollBar *bar = m_followed->verticalScrollBar();
    if (match.top() < visible.top() || match.bottom() > visible.bottom())
        bar->setValue(bar->value() + match.center().y() - visible.center().y());
}

void FindBar::showCount()
{
    QString text;
    if (!m_matches.isEmpty())
        text = dashboardText("STRIP_FIND_COUNT").arg(m_current + 1).arg(m_matches.size());
    else if (!m_field->text().isEmpty())
        text = dashboardText("STRIP_FIND_NONE");
    m_previous->setEnabled(m_matches.size() > 1);
    m_next->setEnabled(m_matches.size() > 1);
    if (m_count->text() == text)
        return;
    m_count->setText(text);
    const QString line = m_matches.isEmpty() ? QString() : m_matches.at(m_current).block().text();
    m_count->setAccessibleName(line.isEmpty() ? text : text + QString::fromUtf8(" · ") + line);
    QAccessibleEvent event(m_count, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace Dashboard
