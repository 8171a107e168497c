#include "CommandMonitor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <limits>

#include "base/DashboardText.h"
#include "base/Isolate.h"
#include "CodeForms.h"
#include "device/DeviceWatcher.h"
#include "device/FailureWords.h"
#include "UssdCode.h"

namespace Dashboard
{

namespace
{

const int TICK = 1000;         // ms
const int MOST_RECENT = 50;    // the maximum number of codes that recent() returns
const int GIVE_UP_SECONDS = 2; // added to the plug-in's time-out, if the plug-in cannot report it

qint64 systemClock()
{
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return timer.elapsed();
}

QString shownCode(const QString &code, const QStringList &templates)
{
    return isolated(Formats::isUssdCode(code) ? codeWithoutNumbers(code, templates) : code);
}

bool isSameText(const QString &a, const QString &b)
{
    return a.simplified() == b.simplified();
}

} // namespace

bool CommandState::operator==(const CommandState &other) const
{
    return kind == other.kind && code == other.code && title == other.title && text == other.text &&
           choices == other.choices && menuText == other.menuText &&
           mayBeCancelled == other.mayBeCancelled && mayBeSentAgain == other.mayBeSentAgain &&
           failure == other.failure && details == other.details;
}

CommandMonitor::CommandMonitor(const std::function<GeneralWindow()> &window,
                               const DeviceWatcher *device, ReplyTap *replies, QObject *parent)
    : QObject(parent), m_window(window), m_device(device), m_replies(replies), m_clock(systemClock),
      m_session(readSession())
{
    m_timer.setInterval(TICK);
    connect(&m_timer, &QTimer::timeout, this, &CommandMonitor::tick);
    connect(device, &DeviceWatcher::changed, this, &CommandMonitor::look);
    connect(device, &DeviceWatcher::lost, this, &CommandMonitor::look);
    connect(device, &DeviceWatcher::sessionChanged, this, &CommandMonitor::look);
    connect(&m_activity, &UserActivity::commandEnded, this, &CommandMonitor::look);
    m_replies->setListener(
        [this] { QMetaObject::invokeMethod(this, "look", Qt::QueuedConnection); });
    QCoreApplication::instance()->installEventFilter(this);
    setTexts();
}

CommandMonitor::~CommandMonitor()
{
    m_replies->setListener(nullptr);
}

void CommandMonitor::setClock(const Clock &clock)
{
    m_clock = clock ? clock : Clock(systemClock);
}

/// Observes each general window from the moment it is shown, because the plug-in may create it at
/// any time.
bool CommandMonitor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show &&
        watched->objectName() == QLatin1String(GeneralWindow::COMMAND_EDIT))
        QMetaObject::invokeMethod(this, "look", Qt::QueuedConnection);
    return false;
}

// ---- commands ------------------------------------------------------------------------------

bool CommandMonitor::canSend() const
{
    const GeneralWindow window = activeWindow();
    return window.isComplete() && !window.isWaiting() && m_device->status().isRegistered();
}

bool CommandMonitor::hasTypedText() const
{
    const QLineEdit *edit = activeWindow().commandEdit();
    return edit && !edit->text().isEmpty();
}

bool CommandMonitor::send(const QString &code)
{
    return canSend() && activeWindow().send(code);
}

bool CommandMonitor::answer(const QString &key)
{
    return m_state.kind == CommandState::Kind::MenuOpen && send(key);
}

bool CommandMonitor::sendAgain()
{
    return m_state.mayBeSentAgain && send(m_state.code);
}

void CommandMonitor::cancel()
{
    if (m_state.mayBeCancelled)
        TKSV_Device_CancelRequest();
}

void CommandMonitor::endMenu()
{
    if (m_state.kind != CommandState::Kind::MenuOpen || !readSession().waitsForAnswer())
        return;
    TKSV_USSDSrv_Release(nullptr);
    m_session = readSession();
    setKind(CommandState::Kind::MenuEnded);
    setTexts();
    emit changed();
}

void CommandMonitor::dismiss()
{
    using Kind = CommandState::Kind;
    if (m_state.kind != Kind::Failed && m_state.kind != Kind::Cancelled &&
        m_state.kind != Kind::MenuEnded)
        return;
    forget();
    look(); // the failure may have hidden an open menu
}

void CommandMonitor::forget()
{
    m_failure = TKSV_FailureInfo();
    m_isTranscriptChanged = false;
    if (m_state.isPending() || m_state.kind == CommandState::Kind::MenuOpen)
        return;
    setKind(CommandState::Kind::Ready);
    setTexts();
    emit changed();
}

// ---- state ---------------------------------------------------------------------------------

GeneralWindow CommandMonitor::activeWindow() const
{
    const GeneralWindow framed = GeneralWindow::framed();
    return framed.isComplete() ? framed : m_window();
}

void CommandMonitor::look()
{
    const CommandState before = m_state;
    const unsigned long earlier = m_session.requests;
    const GeneralWindow window = activeWindow();
    follow(window);
    readReplies(); // must be called before readSession(), because a reply may change the session
    m_session = readSession();
    if (isPending(window))
        pend(window);
    else if (m_state.isPending() || m_session.requests != earlier)
        end(window);
    else
        rest(window);
    m_isTranscriptChanged = false;
    setTexts();
    if (m_state != before)
        emit changed();
}

/// Observes the transcript of the window, because a command that is rejected immediately does not
/// disable the code field.
void CommandMonitor::follow(const GeneralWindow &window)
{
    if (QTextEdit *history = window.history())
        connect(history, &QTextEdit::textChanged, this, &CommandMonitor::onTranscriptChanged,
                Qt::UniqueConnection);
}

void CommandMonitor::onTranscriptChanged()
{
    m_isTranscriptChanged = true;
    QMetaObject::invokeMethod(this, "look", Qt::QueuedConnection);
}

void CommandMonitor::readReplies()
{
    for (const Reply &reply : m_replies->takeReplies()) {
        if (!reply.code.isEmpty())
            m_reply = reply;
        if (reply.asksForAnswer)
            m_menu = reply.text;
        m_hasNewMenu = reply.asksForAnswer;
        emit replied(reply.code, reply);
    }
}

/// Returns true if a window is waiting for a reply, or if a request is in flight that has not timed
/// out.
bool CommandMonitor::isPending(const GeneralWindow &window)
{
    const bool isWindowWaiting = UserActivity::isCommandPending();
    const bool isOwn = m_session.requests == m_ownRequest;
    if (isOwn && !isWindowWaiting && GeneralWindow::isTimeOutText(window.lastReceived()))
        m_givenUp = m_session.requests;
    const bool isInFlight = m_session.isInFlight() && m_session.requests != m_givenUp;
    return isWindowWaiting || isInFlight;
}

/// Returns true if the window's command has to wait for the command of another window or program.
bool CommandMonitor::isQueued(const GeneralWindow &window) const
{
    const QString sent = window.lastSent();
    const bool isOther = m_session.isInFlight() && window.isWaiting() && !sent.isEmpty() &&
                         !isSameText(sent, m_session.request);
    return isOther || m_device->status().waitsForTurn;
}

void CommandMonitor::pend(const GeneralWindow &window)
{
    const bool isQueuedHere = isQueued(window) && !m_device->status().waitsForTurn;
    if (!m_state.isPending() || m_session.requests != m_pendingRequest)
        startWaiting();
    if (window.isWaiting() && m_session.isInFlight() && !isQueuedHere)
        takeAsOwn();
    m_state.code = isQueuedHere ? window.lastSent() : m_session.request;
    m_state.mayBeCancelled = m_session.isInFlight() && !isQueuedHere;
    m_state.kind = isQueued(window) ? CommandState::Kind::Queued : CommandState::Kind::Waiting;
}

void CommandMonitor::startWaiting()
{
    setKind(CommandState::Kind::Waiting);
    m_pendingRequest = m_session.requests;
    if (m_session.isInFlight())
        forgetReplies();
    m_failure = TKSV_FailureInfo();
    m_start = m_clock();
    m_state.seconds = 0;
    m_timer.start();
}

/// Discards the replies to earlier requests.
void CommandMonitor::forgetReplies()
{
    m_reply = Reply();
    m_menu.clear();
    m_hasNewMenu = false;
}

/// Records that the user has sent the most recent request in a general window.
void CommandMonitor::takeAsOwn()
{
    if (m_ownRequest == m_session.requests)
        return;
    m_ownRequest = m_session.requests;
    if (!Formats::isUssdCode(m_session.request))
        return; // an answer may be a PIN
    const QString code = codeWithoutNumbers(m_session.request, m_templates);
    m_recent.removeAll(code);
    m_recent.prepend(code);
    if (m_recent.size() > MOST_RECENT)
        m_recent.removeLast();
    emit sent(code);
}

void CommandMonitor::end(const GeneralWindow &window)
{
    m_timer.stop();
    m_state.code = m_session.request;
    if (isSameText(window.lastSent(), m_session.request))
        takeAsOwn(); // the reply may have arrived before pend() could call this function
    const bool isAnswered =
        m_reply.isReceived && !m_reply.text.isEmpty() && m_reply.code == m_session.request;
    if (m_session.waitsForAnswer())
        return openMenu();
    if (isAnswered || isOwnQuery())
        return setKind(CommandState::Kind::Ready);
    fail(outcome());
}

/// Returns the reason why the most recent request has not received a reply, or TKSV_FAILURE_NONE if
/// the plug-in has cancelled the request.
TKSV_FailureInfo CommandMonitor::outcome() const
{
    TKSV_FailureInfo failure = lastFailure();
    if (failure.reason == TKSV_FAILURE_NONE && m_session.isInFlight())
        failure.reason = TKSV_FAILURE_NO_ANSWER;
    else if (failure.reason == TKSV_FAILURE_NONE && m_reply.isReceived)
        failure.reason = TKSV_FAILURE_REFUSED;
    return failure;
}

// Records which requests belong to the program's own query. The first of them may already have been
// sent, but m_session does not include it yet.
void CommandMonitor::setQuerying(bool isQuerying)
{
    if (isQuerying)
        m_firstQuery = m_session.requests + 1;
    m_lastQuery = isQuerying ? std::numeric_limits<unsigned long>::max() : readSession().requests;
}

bool CommandMonitor::isOwnQuery() const
{
    const unsigned long newest = m_session.requests;
    return m_firstQuery != 0 && newest >= m_firstQuery && newest <= m_lastQuery &&
           newest != m_ownRequest;
}

/// Updates the state from the session while no command is pending.
void CommandMonitor::rest(const GeneralWindow &window)
{
    using Kind = CommandState::Kind;
    const bool hasFailed = m_state.kind == Kind::Failed || m_state.kind == Kind::Cancelled;
    if (m_session.waitsForAnswer() && (!hasFailed || m_hasNewMenu))
        openMenu();
    else if (m_state.kind == Kind::MenuOpen && !m_session.waitsForAnswer())
        setKind(Kind::Ready); // the network or another window has closed the menu
    const TKSV_FailureInfo failure = lastFailure();
    if (m_isTranscriptChanged && failure.wasNotSent &&
        GeneralWindow::isFailureText(window.lastReceived())) {
        m_state.code = window.lastSent();
        fail(failure);
    }
}

void CommandMonitor::openMenu()
{
    setKind(CommandState::Kind::MenuOpen);
    m_hasNewMenu = false;
    m_state.code = m_session.request;
    m_state.menuText = m_menu;
    m_state.choices = menuChoices(m_menu);
}

void CommandMonitor::fail(const TKSV_FailureInfo &failure)
{
    m_failure = failure;
    const QString code = m_state.code;
    if (failure.reason == TKSV_FAILURE_NONE)
        return setKind(CommandState::Kind::Ready);
    const bool isCancelled = failure.reason == TKSV_FAILURE_CANCELLED;
    setKind(isCancelled ? CommandState::Kind::Cancelled : CommandState::Kind::Failed);
    m_state.code = code;
    m_state.failure = failure.reason;
    m_state.mayBeSentAgain = Formats::isUssdCode(code) && Dashboard::mayBeSentAgain(failure);
    if (mayHaveBeenExecuted(failure))
        emit leftOpen(code);
}

/// Sets the kind of the state and clears all other values.
void CommandMonitor::setKind(CommandState::Kind kind)
{
    m_state = CommandState();
    m_state.kind = kind;
    if (!m_state.isPending())
        m_timer.stop();
}

// ---- seconds -------------------------------------------------------------------------------

int CommandMonitor::secondsSinceStart() const
{
    return int((m_clock() - m_start) / 1000);
}

/// Counts the seconds. Treats the command as timed out if no general window is waiting and the
/// plug-in's time-out has elapsed. The plug-in does not report the time-out of other windows.
void CommandMonitor::tick()
{
    if (!m_state.isPending())
        return;
    const int seconds = secondsSinceStart();
    m_state.seconds = qMin(seconds, REPLY_SECONDS);
    setTexts();
    emit ticked(m_state.seconds);
    if (seconds < REPLY_SECONDS + GIVE_UP_SECONDS || UserActivity::isCommandPending())
        return;
    m_givenUp = m_session.requests;
    look();
}

// ---- texts ---------------------------------------------------------------------------------

void CommandMonitor::retranslate()
{
    setTexts();
    emit changed();
}

void CommandMonitor::setTexts()
{
    using Kind = CommandState::Kind;
    const QString code = shownCode(m_state.code, m_templates);
    switch (m_state.kind) {
    case Kind::Ready:
        return setTexts("STRIP_READY", "STRIP_READY_TEXT");
    case Kind::Waiting:
        m_state.title = dashboardText("STRIP_WAITING").arg(code);
        m_state.text = dashboardText("STRIP_SECONDS").arg(m_state.seconds).arg(REPLY_SECONDS);
        return;
    case Kind::Queued:
        return setTexts("STRIP_QUEUED", m_device->status().waitsForTurn ? "STRIP_QUEUED_PROGRAM"
                                                                        : "STRIP_QUEUED_WINDOW");
    case Kind::MenuOpen:
        return setTexts("STRIP_MENU",
                        m_state.choices.isEmpty() ? "STRIP_MENU_TYPE" : "STRIP_MENU_CHOOSE");
    case Kind::MenuEnded:
        return setTexts("STRIP_MENU_ENDED", "STRIP_MENU_ENDED_TEXT");
    default:
        m_state.title = failureTitle(m_failure, code);
        m_state.text = failureMeaning(m_failure, code);
        m_state.details = failureWords(m_failure);
    }
}

void CommandMonitor::setTexts(const char *titleKey, const char *textKey)
{
    m_state.title = dashboardText(titleKey);
    m_state.text = dashboardText(textKey);
}

} // namespace Dashboard
