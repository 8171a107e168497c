#include "QuestionDialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWindow>

#include "base/DashboardText.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/MessageReader.h"
#include "plugin/CommandMonitor.h"
#include "plugin/GeneralWindow.h"
#include "TerminalText.h"

namespace Dashboard
{

namespace
{

// Sizes in pixels at 100 % text size.
const int WIDTH = 440;
const int HIGHEST_TEXT = 200;

QLabel *makeText(const char *type, const char *name, QWidget *parent)
{
    QLabel *label = makeLabel(type, parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

/// Returns an open window of the plug-in that has its own frame, or null.
QWidget *openFrame()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<ExtendDialog *>(window))
            return window;
    }
    return nullptr;
}

} // namespace

QuestionDialog::QuestionDialog(CommandMonitor *monitor, QWidget *mainWindow)
    : QDialog(mainWindow), m_monitor(monitor),
      m_title(makeText("h3", "Dashboard_QuestionTitle", this)),
      m_hint(makeText("small", "Dashboard_QuestionHint", this)),
      m_text(makeText("body", "Dashboard_QuestionText", this)), m_answers(new AnswerBox(this)),
      m_later(makeButton("", this))
{
    setObjectName(QLatin1String("Dashboard_QuestionDialog"));
    // The dialog receives input events although another modal window is open, because the dialog is
    // opened after that window.
    setWindowModality(Qt::ApplicationModal);
    m_later->setObjectName(QLatin1String("Dashboard_QuestionLater"));
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layOut();
    connect(m_answers, &AnswerBox::answered, m_monitor, &CommandMonitor::answer);
    connect(m_answers, &AnswerBox::endRequested, m_monitor, &CommandMonitor::endMenu);
    connect(m_later, &QPushButton::clicked, this, &QuestionDialog::reject);
    connect(m_monitor, &CommandMonitor::changed, this, &QuestionDialog::look);
    retranslate();
}

void QuestionDialog::layOut()
{
    IconDisc *icon = new IconDisc(this);
    icon->setIcon("list", Tone::Accent);
    QVBoxLayout *texts = new QVBoxLayout;
    setSpacing(texts, 4);
    texts->addWidget(m_title);
    texts->addWidget(m_hint);
    QHBoxLayout *head = new QHBoxLayout;
    setSpacing(head, 12);
    head->addWidget(icon, 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    QScrollArea *scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    scroll->setMaximumHeight(px(HIGHEST_TEXT));
    scroll->setWidget(m_text);
    setBox(scroll, "plain");
    setBox(scroll->viewport(), "plain");
    setBox(m_text, "plain");
    QVBoxLayout *column = new QVBoxLayout(this);
    setMargins(column, 20, 18, 20, 18);
    setSpacing(column, 12);
    column->addLayout(head);
    column->addWidget(scroll);
    column->addWidget(m_answers);
    column->addWidget(m_later, 0, Qt::AlignRight);
    m_title->setMinimumWidth(px(WIDTH - 120));
}

/// Returns true if the network expects an answer and the user cannot enter it because of a modal
/// window of the plug-in. If this is the general window, the user can enter the answer there.
bool QuestionDialog::isWanted() const
{
    const CommandState &state = m_monitor->state();
    return state.kind == CommandState::Kind::MenuOpen && openFrame() &&
           !GeneralWindow::framed().isComplete();
}

void QuestionDialog::look()
{
    const CommandState &state = m_monitor->state();
    const bool isOpen = state.kind == CommandState::Kind::MenuOpen;
    if (!isOpen || state.menuText != m_menu) {
        m_isPutOff = false;
        m_answers->clear();
    }
    m_menu = isOpen ? state.menuText : QString();
    if (!isWanted() || m_isPutOff)
        return hide();
    showQuestion();
}

void QuestionDialog::showQuestion()
{
    const CommandState &state = m_monitor->state();
    m_text->setText(state.menuText.isEmpty() ? dashboardText("MESSAGE_UNKNOWN_TEXT")
                                             : HostCore::terminalText(state.menuText));
    m_hint->setText(dashboardText(state.choices.isEmpty() ? "QUESTION_TYPE" : "QUESTION_TEXT"));
    m_answers->setChoices(state.choices);
    if (isVisible())
        return;
    QWidget *frame = openFrame();
    winId(); // creates the native window, so that its parent can be set before it is shown
    windowHandle()->setTransientParent(frame->windowHandle());
    adjustSize();
    show();
    CommonUtils::MoveCentre(this);
    raise();
    activateWindow();
    m_answers->field()->setFocus();
}

/// Closes the dialog without an answer. The menu stays open on the Codes page.
void QuestionDialog::reject()
{
    m_isPutOff = true;
    hide();
}

void QuestionDialog::retranslate()
{
    setWindowTitle(dashboardText("QUESTION_TITLE"));
    m_title->setText(dashboardText("QUESTION_TITLE"));
    m_later->setText(dashboardText("QUESTION_LATER"));
    m_answers->retranslate();
    if (isVisible())
        showQuestion();
}

} // namespace Dashboard
