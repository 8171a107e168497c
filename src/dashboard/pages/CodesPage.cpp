#include "CodesPage.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QVBoxLayout>

#include "account/Favourites.h"
#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "base/PrivateFile.h"
#include "ChainDialog.h"
#include "device/DeviceStatus.h"
#include "device/ModeChoice.h"
#include "FindBar.h"
#include "GeneralArea.h"
#include "HistoryPopup.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "plugin/CodeForms.h"
#include "plugin/CodeHistory.h"
#include "plugin/WalkWatcher.h"
#include "TopUpSheet.h"

namespace Dashboard
{

namespace
{

const double LARGEST_SCALE_OF_A_FRAME = 1.3; // the frame of the general window has a fixed size
const int CHOICE_KEYS = 10;
const int MOST_PRESETS = 11;   // the maximum number of preset buttons in the general window
const int PAYMENT_BUTTONS = 2; // the number of preset buttons that require a number

/// Returns the complete name of a preset button, even if the button shows an elided name.
QString fullName(const QPushButton *button)
{
    const bool isElided = button->text().endsWith(QChar(0x2026));
    const bool isPlain = !Qt::mightBeRichText(button->toolTip());
    return isElided && isPlain && !button->toolTip().isEmpty() ? button->toolTip() : button->text();
}

/// Returns the code and the user's menu choices as text, such as "*123# › 2 Internet › 1 1 GB".
QString walkText(const Chains::Chain &walk)
{
    QString text = isolated(QString::fromStdString(walk.code));
    for (const Chains::Choice &step : walk.steps)
        text += QString::fromUtf8(" › ") + isolated(QString::fromStdString(step.key)) +
                QLatin1Char(' ') + isolatedWords(QString::fromStdString(step.text));
    return text;
}

QString menuText(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

CodesPage::CodesPage(const CodesParts &parts, QWidget *parent)
    : Page("Dashboard_CodesPage", parent), m_parts(parts), m_strip(new StateStrip),
      m_area(new GeneralArea(parts.plugin)),
      m_find(new FindBar([this] { return general().history(); }, this)),
      m_historyPopup(new HistoryPopup(
          parts.history, parts.names, [this] { return chainNames(); }, this)),
      m_card(makeCard(this)), m_narrowButtons(new QWidget(this)), m_codesButton(nullptr),
      m_topUpButton(nullptr), m_narrowRow(new QHBoxLayout(m_narrowButtons)),
      m_column(new QVBoxLayout(this))
{
    m_situation.canSend = true;
    makeNarrowButtons();
    makeLayout();
    makeShortcuts();
    followStrip();
    followModes();
    followChains();
    connect(parts.commands, &CommandMonitor::changed, this, &CodesPage::onCommandChanged);
    connect(parts.commands, &CommandMonitor::ticked, m_strip, &StateStrip::setSeconds);
    connect(parts.commands, &CommandMonitor::sent, parts.history, &CodeHistory::add);
    connect(parts.history, &CodeHistory::changed, this, &CodesPage::updateRecent);
    connect(m_historyPopup, &HistoryPopup::chosen, this, [this](const QString &code) {
        QMetaObject::invokeMethod(
            this, [this, code] { typeCode(code); }, Qt::QueuedConnection);
    });
    connect(m_historyPopup, &HistoryPopup::chainChosen, this, &CodesPage::runChain,
            Qt::QueuedConnection);
    connect(&Look::instance(), &Look::changed, this, [this] { setForm(m_form); });
    retranslate();
    onCommandChanged();
}

// ---- layout --------------------------------------------------------------------------------

void CodesPage::makeNarrowButtons()
{
    m_codesButton = makeButton("", m_narrowButtons);
    m_topUpButton = makeButton("", m_narrowButtons);
    m_codesButton->setObjectName(QLatin1String("Dashboard_CodesSheetButton"));
    m_topUpButton->setObjectName(QLatin1String("Dashboard_TopUpSheetButton"));
    setButtonIcon(m_codesButton, "list", Token::Text2);
    setButtonIcon(m_topUpButton, "topup", Token::Text2);
    connect(m_codesButton, &QPushButton::clicked, this, &CodesPage::showCodesSheet);
    connect(m_topUpButton, &QPushButton::clicked, this, &CodesPage::showTopUpSheet);
    m_narrowRow->setContentsMargins(0, 0, 0, 0);
    setSpacing(m_narrowRow, 8);
    // The buttons are not stretched. In a right-to-left layout, the style sheet would place icon
    // and text at opposite ends of a wider button.
    m_narrowRow->addWidget(m_codesButton, 0, Qt::AlignLeading);
    m_narrowRow->addWidget(m_topUpButton, 0, Qt::AlignLeading);
    m_narrowRow->addStretch();
}

/// Arranges the buttons horizontally, or vertically if the page is too narrow.
void CodesPage::placeNarrowButtons()
{
    const int codes = m_codesButton->sizeHint().width();
    const int topUp = m_topUpButton->sizeHint().width();
    const QMargins margins = m_column->contentsMargins();
    const int room = width() - margins.left() - margins.right();
    const bool isRow = codes + m_narrowRow->spacing() + topUp <= room;
    m_narrowRow->setDirection(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_narrowButtons->setMinimumWidth(qMax(codes, topUp));
}

void CodesPage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    placeNarrowButtons();
}

void CodesPage::makeLayout()
{
    QVBoxLayout *inside = new QVBoxLayout(m_card);
    inside->setContentsMargins(1, 1, 1, 1); // leaves space for the border of the card
    inside->setSpacing(0);
    inside->addWidget(m_strip);
    inside->addWidget(m_area, 1);
    inside->addWidget(m_find);
    m_column->addWidget(m_narrowButtons);
    m_column->addWidget(m_card, 1);
    setForm(m_form);
}

void CodesPage::setForm(Form form)
{
    m_form = form;
    const bool isNarrow = form == Form::Narrow;
    if (isNarrow)
        setMargins(m_column, 8, 10, 8, 8);
    else
        setMargins(m_column, 24, 20, 24, 20);
    setSpacing(m_column, 10);
    m_narrowButtons->setVisible(isNarrow);
    placeNarrowButtons();
    m_strip->setForm(form);
    m_find->setForm(form);
    m_strip->setOwnWindowOffered(Look::instance().scale() <= LARGEST_SCALE_OF_A_FRAME);
    m_area->setCompact(isNarrow);
}

void CodesPage::retranslate()
{
    m_codesButton->setText(dashboardText("SHEET_CODES"));
    m_topUpButton->setText(dashboardText("SHEET_TOP_UP"));
    placeNarrowButtons();
    m_strip->retranslate();
    m_find->retranslate();
    updateRecent();
}

QWidget *CodesPage::firstFocus() const
{
    return general().commandEdit();
}

GeneralWindow CodesPage::general() const
{
    return m_area->general();
}

// ---- the general window --------------------------------------------------------------------

void CodesPage::showWindow(bool isShown)
{
    if (isShown)
        m_area->showWindow();
    else
        m_area->hideWindow();
    m_historyPopup->attach(general().commandEdit());
    watchTranscript();
    updateWindow();
    m_parts.commands->look();
}

void CodesPage::watchTranscript()
{
    if (QTextEdit *history = general().history())
        connect(history, &QTextEdit::textChanged, this, &CodesPage::updateReply,
                Qt::UniqueConnection);
    m_find->follow();
    updateReply();
}

void CodesPage::updateReply()
{
    m_strip->setReplyThere(!general().lastReceived().isEmpty());
}

void CodesPage::showText(const QString &text)
{
    m_area->showText(text);
}

void CodesPage::setSituation(const Situation &situation)
{
    m_situation = situation;
    m_strip->setSituation(situation);
    updateWindow();
}

void CodesPage::updateWindow()
{
    const CommandState &state = m_parts.commands->state();
    m_area->setWindowEnabled(m_situation.canSend || state.isPending());
    const QList<QPushButton *> buttons = presets();
    m_codesButton->setEnabled(m_situation.canSend && !state.isPending());
    m_topUpButton->setVisible(buttons.size() > 0);
    m_topUpButton->setEnabled(m_situation.canSend && !state.isPending());
}

QList<QPushButton *> CodesPage::presets() const
{
    return m_area->canvas()->findChildren<QPushButton *>(
        QLatin1String("USSDUIPlugin_AdvancedDialog_PreButton"));
}

bool CodesPage::hasPreset(const QString &name) const
{
    for (const QPushButton *button : presets()) {
        if (fullName(button) == name)
            return true;
    }
    return false;
}

/// Returns true if the plug-in can be restarted to create a button for a new code. There must be
/// room for another button, and the transcript, which a restart deletes, must be empty.
bool CodesPage::canMakePresets() const
{
    return presets().size() < MOST_PRESETS && general().transcript().isEmpty();
}

// ---- commands ------------------------------------------------------------------------------

void CodesPage::followStrip()
{
    CommandMonitor *commands = m_parts.commands;
    connect(m_strip, &StateStrip::cancelled, commands, &CommandMonitor::cancel);
    connect(m_strip, &StateStrip::menuEnded, commands, &CommandMonitor::endMenu);
    connect(m_strip, &StateStrip::dismissed, commands, &CommandMonitor::dismiss);
    for (const auto signal : {&StateStrip::menuEnded, &StateStrip::dismissed})
        connect(m_strip, signal, this, &CodesPage::focusField);
    connect(m_strip, &StateStrip::sentAgain, commands, &CommandMonitor::sendAgain);
    connect(m_strip, &StateStrip::answered, commands, &CommandMonitor::answer);
    connect(m_strip, &StateStrip::detailsRequested, this, &CodesPage::showDetails);
    connect(m_strip, &StateStrip::historyRequested, this, &CodesPage::openHistory);
    connect(m_strip, &StateStrip::copyRequested, this, &CodesPage::copyReply);
    connect(m_strip, &StateStrip::findRequested, this, &CodesPage::find);
    connect(m_strip, &StateStrip::saveRequested, this, &CodesPage::saveTranscript);
    connect(m_strip, &StateStrip::codeChosen, this, &CodesPage::useCode);
    connect(m_strip, &StateStrip::ownWindowRequested, this, &CodesPage::ownWindowRequested);
    connect(m_strip, &StateStrip::remedyChosen, this, &CodesPage::remedyChosen);
}

void CodesPage::followModes()
{
    ModeChoice *modes = m_parts.modes;
    if (!modes)
        return;
    const auto show = [this, modes] {
        m_strip->setModes(modes->canAllowOlder(), modes->canRestore());
    };
    connect(modes, &ModeChoice::changed, this, show);
    connect(m_strip, &StateStrip::olderModesRequested, modes, &ModeChoice::allowOlder);
    connect(m_strip, &StateStrip::formerModesRequested, modes, &ModeChoice::restore);
    show();
}

void CodesPage::followChains()
{
    if (!m_parts.favourites)
        return;
    connect(m_parts.chains, &ChainRunner::changed, this,
            [this] { m_strip->setChain(m_parts.chains->state()); });
    connect(m_parts.chains, &ChainRunner::changed, this, &CodesPage::updateKeep);
    connect(m_parts.walks, &WalkWatcher::changed, this, &CodesPage::updateKeep);
    connect(m_parts.favourites, &Favourites::changed, this, &CodesPage::updateKeep);
    connect(m_strip, &StateStrip::chainDismissed, m_parts.chains, &ChainRunner::dismiss);
    connect(m_strip, &StateStrip::keepRequested, this, &CodesPage::keepWalk);
}

void CodesPage::updateKeep()
{
    const Chains::Chain walk = m_parts.walks->walk();
    m_strip->setKeepOffered(!walk.steps.empty() && !m_parts.chains->isRunning() &&
                            !m_parts.chains->state().hasStopped() &&
                            !m_parts.favourites->isKept(walk));
}

void CodesPage::onCommandChanged()
{
    const CommandState &state = m_parts.commands->state();
    m_strip->setCommand(state);
    m_historyPopup->setOpenedByTyping(state.kind != CommandState::Kind::MenuOpen);
    updateWindow();
}

void CodesPage::updateRecent()
{
    const QList<CodeName> names = m_parts.names ? m_parts.names() : QList<CodeName>();
    QList<CodeName> recent;
    for (const SentCode &sent : m_parts.history->codes()) {
        CodeName code{sent.code, QString()};
        for (const CodeName &named : names) {
            if (named.code == sent.code)
                code.name = named.name;
        }
        recent << code;
    }
    m_strip->setRecent(recent);
}

void CodesPage::refreshNames()
{
    updateRecent();
}

// ---- chains --------------------------------------------------------------------------------

void CodesPage::runChain(const QString &name)
{
    const Chains::Chain chain =
        m_parts.favourites ? m_parts.favourites->chain(name) : Chains::Chain();
    if (!chain.steps.empty())
        m_parts.chains->run(chain);
}

/// Shows the complete reason why the chain has stopped, because the strip may elide it.
void CodesPage::showStop(const ChainState &chain)
{
    QMessageBox *box = new QMessageBox(QMessageBox::Information, chain.title, chain.text,
                                       QMessageBox::NoButton, this);
    box->setObjectName(QLatin1String("Dashboard_ChainBox"));
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->addButton(dashboardText("SHEET_CLOSE"), QMessageBox::RejectRole);
    box->open();
}

/// Opens the dialog in which the user enters a name. When the user accepts the dialog, stores the
/// code and the menu choices as a chain with this name. The suggested name is the text of the last
/// choice.
void CodesPage::keepWalk()
{
    const Chains::Chain walk = m_parts.walks->walk();
    if (walk.steps.empty())
        return;
    Favourites *favourites = m_parts.favourites;
    ChainDialog *dialog = new ChainDialog(
        walkText(walk), [favourites](const QString &name) { return favourites->isNameFree(name); },
        this);
    dialog->setName(QString::fromStdString(walk.steps.back().text));
    connect(dialog, &QDialog::accepted, this, [favourites, dialog, walk] {
        Chains::Chain chain = walk;
        chain.name = dialog->name().toStdString();
        favourites->keep(chain);
    });
    dialog->open();
}

QList<CodeName> CodesPage::chainNames() const
{
    QList<CodeName> names;
    if (!m_parts.favourites)
        return names;
    for (const NamedCode &chain : m_parts.favourites->chains())
        names << CodeName{chain.keys, chain.name};
    return names;
}

/// Shows the complete description of the failure, or the reason why a chain has stopped. The
/// function does not wait until the dialog is closed, because the device may be lost in the
/// meantime.
void CodesPage::showDetails()
{
    if (m_parts.favourites && m_parts.chains->state().hasStopped())
        return showStop(m_parts.chains->state());
    const CommandState &state = m_parts.commands->state();
    QMessageBox *box = new QMessageBox(QMessageBox::Information, state.title,
                                       state.text + QLatin1String("\n\n") + state.details,
                                       QMessageBox::NoButton, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (state.mayBeSentAgain) {
        QPushButton *again =
            box->addButton(dashboardText("STRIP_SEND_AGAIN"), QMessageBox::AcceptRole);
        connect(again, &QPushButton::clicked, m_parts.commands, &CommandMonitor::sendAgain);
    }
    box->addButton(dashboardText("SHEET_CLOSE"), QMessageBox::RejectRole);
    box->open();
}

// ---- codes ---------------------------------------------------------------------------------

void CodesPage::useCode(const QString &code)
{
    if (hasHiddenDigits(code))
        typeCode(code);
    else
        m_parts.commands->send(code);
}

void CodesPage::typeCode(const QString &code)
{
    const QString complete = askForNumbers(code);
    QLineEdit *edit = general().commandEdit();
    if (!edit || complete.isEmpty() || !edit->isEnabled())
        return;
    typeInto(edit, complete);
    edit->setFocus(Qt::OtherFocusReason);
}

/// Lets the user enter the digits that are hidden in the code. Returns an empty string if the user
/// cancels.
QString CodesPage::askForNumbers(const QString &code)
{
    QString complete = code;
    while (hasHiddenDigits(complete)) {
        QInputDialog dialog(this);
        dialog.setObjectName(QLatin1String("Dashboard_NumberDialog"));
        dialog.setWindowTitle(dashboardText("HISTORY_NUMBER_TITLE"));
        dialog.setLabelText(dashboardText("HISTORY_NUMBER").arg(isolated(complete)));
        dialog.setOkButtonText(dashboardText("HISTORY_TYPE"));
        dialog.setCancelButtonText(dashboardText("STRIP_CANCEL"));
        if (dialog.exec() != QDialog::Accepted || dialog.textValue().isEmpty())
            return QString();
        complete = withDigits(complete, dialog.textValue());
    }
    return complete;
}

void CodesPage::showCodesSheet()
{
    QMenu *sheet = new QMenu(this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setObjectName(QLatin1String("Dashboard_CodesSheet"));
    const QList<QPushButton *> buttons = presets();
    QStringList listed;
    for (int i = 0; i < buttons.size() - PAYMENT_BUTTONS; ++i) {
        QPushButton *button = buttons.at(i);
        listed << fullName(button);
        connect(sheet->addAction(menuText(listed.last())), &QAction::triggered, button,
                &QPushButton::click);
    }
    const QList<CodeName> names = m_parts.names ? m_parts.names() : QList<CodeName>();
    for (const CodeName &named : names) {
        const QString code = named.code;
        if (!listed.contains(named.name))
            sheet->addAction(menuText(named.name), this, [this, code] { useCode(code); });
    }
    for (const CodeName &chain : chainNames()) {
        const QString name = chain.name;
        sheet->addAction(menuText(name), this, [this, name] { runChain(name); });
    }
    sheet->popup(m_codesButton->mapToGlobal(QPoint(0, m_codesButton->height())));
}

void CodesPage::showTopUpSheet()
{
    const QList<QPushButton *> buttons = presets().mid(qMax(0, presets().size() - PAYMENT_BUTTONS));
    TopUpSheet *sheet = new TopUpSheet(m_area->canvas(), this);
    for (QPushButton *button : buttons)
        sheet->addPreset(fullName(button), button);
    sheet->open();
}

// ---- keyboard ------------------------------------------------------------------------------

QAction *CodesPage::addShortcut(const char *name, const QKeySequence &key,
                                const std::function<void()> &action)
{
    QAction *shortcut = new QAction(this);
    shortcut->setObjectName(QLatin1String(name));
    shortcut->setShortcut(key);
    connect(shortcut, &QAction::triggered, this, action);
    m_shortcuts << shortcut;
    return shortcut;
}

void CodesPage::makeShortcuts()
{
    addShortcut("Dashboard_FocusCode", QKeySequence(int(Qt::CTRL) + Qt::Key_L), [this] {
        emit wanted();
        if (QLineEdit *edit = general().commandEdit())
            edit->setFocus(Qt::ShortcutFocusReason);
    });
    addShortcut("Dashboard_OpenHistory", QKeySequence(int(Qt::CTRL) + Qt::Key_H), [this] {
        emit wanted();
        openHistory();
    });
    addShortcut("Dashboard_Stop", QKeySequence(int(Qt::CTRL) + Qt::Key_Period), [this] { stop(); });
    addShortcut("Dashboard_CopyReply", QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_C),
                [this] { copyReply(); });
    for (int digit = 0; digit < CHOICE_KEYS; ++digit)
        addShortcut("Dashboard_ChoiceKey", QKeySequence(int(Qt::ALT) + Qt::Key_0 + digit),
                    [this, digit] { answerNumber(digit); });
}

/// Moves the focus to the command field, because the button that the user has pressed disappears.
void CodesPage::focusField()
{
    if (QLineEdit *field = general().commandEdit())
        field->setFocus();
}

void CodesPage::stop()
{
    if (m_parts.commands->state().isPending())
        m_parts.commands->cancel();
    else
        m_parts.commands->endMenu();
}

void CodesPage::answerNumber(int position)
{
    const QString key = QString::number(position);
    for (const MenuChoice &choice : m_parts.commands->state().choices) {
        if (choice.key == key)
            m_parts.commands->answer(key);
    }
}

void CodesPage::openHistory()
{
    openHistoryAt(QString());
}

void CodesPage::openHistoryAt(const QString &code)
{
    m_historyPopup->attach(general().commandEdit());
    m_historyPopup->open(code);
}

void CodesPage::copyReply()
{
    const QString reply = general().lastReceived();
    if (!reply.isEmpty())
        QApplication::clipboard()->setText(reply);
}

// ---- the transcript ------------------------------------------------------------------------

void CodesPage::find()
{
    m_find->open();
}

void CodesPage::saveTranscript()
{
    QFileDialog *dialog =
        new QFileDialog(this, dashboardText("STRIP_SAVE"), QDir::homePath(),
                        dashboardText("STRIP_SAVE_FILTER") + QLatin1String(" (*.txt)"));
    dialog->setObjectName(QLatin1String("Dashboard_SaveTranscript"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QLatin1String("txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &CodesPage::saveTo);
    dialog->open();
}

/// Saves the transcript in a file that only its owner can read, because codes may contain PINs.
void CodesPage::saveTo(const QString &file)
{
    const QString error = writePrivateFile(file, general().transcript().toUtf8() + '\n');
    if (error.isEmpty())
        return;
    QMessageBox *box = new QMessageBox(QMessageBox::Warning, dashboardText("STRIP_SAVE"),
                                       dashboardText("STRIP_SAVE_FAILED").arg(file, error),
                                       QMessageBox::NoButton, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(QLatin1String("Dashboard_SaveFailed"));
    box->addButton(dashboardText("SHEET_CLOSE"), QMessageBox::RejectRole);
    box->open();
}

} // namespace Dashboard
