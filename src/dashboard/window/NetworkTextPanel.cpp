#include "NetworkTextPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "base/DashboardText.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

const int MOST_ENTRIES = 50;
const int LONGEST_TEXT = 10000; // characters; far more than a network can send
const int VIEW_HEIGHT = 100;    // in pixels
const QChar LEFT_TO_RIGHT_MARK(0x200e);

bool isCodeCharacter(QChar character)
{
    return character == QLatin1Char('*') || character == QLatin1Char('#') ||
           (character.unicode() >= '0' && character.unicode() <= '9');
}

bool isCode(const QString &word)
{
    return word.contains(QLatin1Char('*')) || word.contains(QLatin1Char('#'));
}

/// Adds direction marks, so that codes are displayed from left to right in a right-to-left
/// paragraph.
QString withReadableCodes(const QString &text)
{
    QString result;
    int i = 0;
    while (i < text.size()) {
        int end = i;
        while (end < text.size() && isCodeCharacter(text.at(end)))
            ++end;
        const QString word = text.mid(i, end - i);
        if (isCode(word))
            result += LEFT_TO_RIGHT_MARK + word + LEFT_TO_RIGHT_MARK;
        else
            result += word;
        if (end < text.size())
            result += text.at(end++);
        i = end;
    }
    return result;
}

} // namespace

NetworkTextPanel::NetworkTextPanel(QWidget *parent)
    : QFrame(parent), m_title(new QLabel(this)), m_view(new QPlainTextEdit(this)),
      m_question(new QLabel(this)), m_close(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setObjectName(QLatin1String("Dashboard_NetworkTexts"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setBuddy(m_view);
    m_view->setReadOnly(true);
    m_view->setTabChangesFocus(true);
    m_view->setUndoRedoEnabled(false);
    m_view->setFixedHeight(VIEW_HEIGHT);
    m_view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_question->setObjectName(QLatin1String("Dashboard_NetworkQuestion"));
    m_question->setTextFormat(Qt::PlainText);
    m_question->setWordWrap(true);
    m_close->setObjectName(QLatin1String("Dashboard_CloseNetworkTexts"));
    m_close->setAutoDefault(false);
    connect(m_close, SIGNAL(clicked()), this, SLOT(forget()));
    QGridLayout *grid = new QGridLayout(this);
    grid->addWidget(m_title, 0, 0);
    grid->addWidget(m_close, 0, 1);
    grid->addWidget(m_view, 1, 0, 1, 2);
    grid->addWidget(m_question, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    endQuestion();
    hide();
}

void NetworkTextPanel::add(const QString &text, const QDateTime &receivedAt, bool waitsForAnswer)
{
    const Entry entry = {HostCore::terminalText(text.left(LONGEST_TEXT)), receivedAt,
                         waitsForAnswer};
    m_entries << entry;
    while (m_entries.size() > MOST_ENTRIES)
        m_entries.removeFirst();
    m_question->setVisible(waitsForAnswer);
    retranslate();
    show();
}

void NetworkTextPanel::retranslate()
{
    m_title->setText(dashboardText("TEXT_PANEL"));
    m_view->setAccessibleName(m_title->text());
    m_question->setText(dashboardText("TEXT_QUESTION"));
    m_close->setText(dashboardText("TEXT_CLOSE"));
    showEntries();
}

void NetworkTextPanel::endQuestion()
{
    m_question->hide();
}

void NetworkTextPanel::forget()
{
    m_entries.clear();
    endQuestion();
    showEntries();
    hide();
}

void NetworkTextPanel::showEntries()
{
    QStringList lines;
    for (const Entry &entry : m_entries)
        lines << linesOf(entry);
    m_view->setPlainText(lines.join(QLatin1String("\n")));
    m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
}

QString NetworkTextPanel::linesOf(const Entry &entry)
{
    const QString time = QLocale().toString(entry.receivedAt, QLocale::ShortFormat);
    const QString text = entry.text.isEmpty() ? dashboardText("TEXT_UNKNOWN") : entry.text;
    return dashboardText("TEXT_AT").arg(time) + QLatin1Char('\n') + withReadableCodes(text);
}

} // namespace Dashboard
