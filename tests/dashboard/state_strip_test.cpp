#include <QAccessible>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "base/DashboardText.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "pages/SecondsRing.h"
#include "pages/StateStrip.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

using Kind = CommandState::Kind;

const Kind KINDS[] = {Kind::Ready,     Kind::Waiting, Kind::Queued,   Kind::MenuOpen,
                      Kind::MenuEnded, Kind::Failed,  Kind::Cancelled};

CommandState stateOf(Kind kind, int choices = 0)
{
    CommandState state;
    state.kind = kind;
    state.title = dashboardText("STRIP_WAITING").arg(QLatin1String("*104#"));
    state.text = dashboardText("STRIP_NO_REPLY_TEXT");
    state.mayBeCancelled = state.isPending();
    state.mayBeSentAgain = kind == Kind::Failed;
    for (int i = 1; i <= choices; ++i)
        state.choices << MenuChoice{QString::number(i), QLatin1String("A choice with words")};
    return state;
}

Situation locked()
{
    Situation situation;
    situation.kind = Situation::Kind::SimLocked;
    situation.title = QLatin1String("The SIM is locked");
    situation.text = QLatin1String("Enter its PIN to use it.");
    situation.icon = "lock";
    situation.remedies << Remedy::EnterPin;
    return situation;
}

/** Counts how often a widget is painted. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count() const { return m_count; }
    void reset() { m_count = 0; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_count = 0;
};

/// Returns the widget that receives the focus when the user presses Tab.
QWidget *nextTabStop(const QWidget *widget)
{
    QWidget *next = widget->nextInFocusChain();
    while (next != widget && !(next->isVisible() && (next->focusPolicy() & Qt::TabFocus)))
        next = next->nextInFocusChain();
    return next;
}

} // namespace

/** Tests the content of the strip in each state, and that its height is the same in all states. */
class StateStripTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theHeightIsTheSameInEveryState();
    void theNarrowStripIsReadyInOneWord();
    void theSecondRowStandsAboveTheMargin();
    void theSmallestWindowIsWideEnough();
    void readyOffersTheLastCodes();
    void waitingShowsTheSeconds();
    void theRingShowsEverySecond();
    void choicesThatDoNotFitAreInAList();
    void theTabKeyReachesTheRowsInOrder();
    void olderNetworksAreOfferedAfterAFailureOn4G();
    void theFormerNetworksAreOffered();
    void theNarrowRowHasRoomForTheNetworks();
    void aChoiceIsAnswered();
    void aStoppedChainKeepsTheChoices();
    void aTextWithoutChoicesIsShown();
    void aFailureOffersWhatHelps();
    void theNarrowFormSaysTheOutcomeFirst();
    void theSituationBlocks();
    void aPendingCommandIsNotBlocked();
    void everyChangeIsAnnouncedOnce();
    void theSecondsAreAnnouncedThreeTimes();

private:
    StateStrip &strip() { return *m_strip; }
    template <typename T>
    T *part(const char *name)
    {
        for (T *found : m_strip->findChildren<T *>(QLatin1String(name))) {
            if (!found->isHidden())
                return found;
        }
        return nullptr;
    }
    QStringList choices();
    void show(const CommandState &state);

    QScopedPointer<StateStrip> m_strip;
};

void StateStripTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    m_strip.reset(new StateStrip);
    m_strip->resize(840, 116);
    m_strip->show();
}

void StateStripTest::tearDown()
{
    m_strip.reset();
    HostCore::Languages::setCurrent(QLatin1String("en"));
}

void StateStripTest::show(const CommandState &state)
{
    strip().setCommand(state);
    drainEvents();
}

QStringList StateStripTest::choices()
{
    QStringList texts;
    for (const QPushButton *button :
         strip().findChildren<QPushButton *>(QLatin1String("Dashboard_Choice"))) {
        if (!button->isHidden())
            texts << button->text();
    }
    return texts;
}

void StateStripTest::theHeightIsTheSameInEveryState()
{
    QSet<int> heights;
    for (const QString &language : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        strip().retranslate();
        for (const Form form : {Form::Wide, Form::Medium, Form::Narrow}) {
            strip().setForm(form);
            for (const Kind kind : KINDS) {
                strip().resize(form == Form::Narrow ? 342 : 840, strip().height());
                show(stateOf(kind, kind == Kind::MenuOpen ? 9 : 0));
                heights << strip().height();
                QVERIFY(strip().layout()->minimumSize().height() <= strip().height());
            }
        }
    }
    QCOMPARE(heights, QSet<int>{Look::instance().px(116)});
}

void StateStripTest::theNarrowStripIsReadyInOneWord()
{
    const QWidget *text = strip().findChild<QWidget *>(QLatin1String("Dashboard_StripText"));
    strip().setForm(Form::Narrow);
    show(stateOf(Kind::Ready, 0));
    QVERIFY(text->isHidden() && !strip().title().isEmpty());
    show(stateOf(Kind::MenuOpen, 3));
    QVERIFY(!text->isHidden());
    strip().setForm(Form::Wide);
    show(stateOf(Kind::Ready, 0));
    QVERIFY(!text->isHidden());
}

void StateStripTest::theSecondRowStandsAboveTheMargin()
{
    for (const Kind kind : KINDS) {
        show(stateOf(kind, 3));
        const QWidget *row = strip().findChild<QWidget *>(QLatin1String("Dashboard_StripRow"));
        const int below = strip().contentsRect().bottom() - row->geometry().bottom();
        QCOMPARE(below, Look::instance().px(14));
        QCOMPARE(row->height(), Look::instance().px(36));
    }
}

// Tests that the strip fits into the smallest window, which is 360 pixels wide. The margins need 16
// pixels and the card's border 2 pixels.
void StateStripTest::theSmallestWindowIsWideEnough()
{
    const int room = Look::instance().px(342);
    for (const QString &language : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        strip().setForm(Form::Narrow);
        strip().retranslate();
        strip().resize(room, strip().height());
        for (const Kind kind : KINDS) {
            show(stateOf(kind, kind == Kind::MenuOpen ? 9 : 0));
            const int width = strip().layout()->minimumSize().width();
            QVERIFY2(width <= room,
                     qPrintable(
                         QString::fromLatin1("%1 %2: %3").arg(language).arg(int(kind)).arg(width)));
        }
    }
}

void StateStripTest::readyOffersTheLastCodes()
{
    strip().setRecent({{QLatin1String("*100#"), QLatin1String("Balance")},
                       {QLatin1String("*104#"), QString()},
                       {QLatin1String("*124#"), QLatin1String("Packs & more")},
                       {QLatin1String("*125#"), QString()}});
    show(CommandState());
    const auto chips = strip().findChildren<QPushButton *>(QLatin1String("Dashboard_RecentCode"));
    QStringList texts;
    for (const QPushButton *chip : chips) {
        if (!chip->isHidden())
            texts << chip->text();
    }
    QCOMPARE(texts.size(), 3);
    QCOMPARE(texts.first(), QString::fromUtf8("\u2066*100#\u2069  Balance"));
    QCOMPARE(texts.last(), QString::fromUtf8("\u2066*124#\u2069  Packs && more"));
    QVERIFY(part<QPushButton>("Dashboard_HistoryButton"));
    QVERIFY(part<QPushButton>("Dashboard_OwnWindowButton"));
    QSignalSpy chosen(&strip(), &StateStrip::codeChosen);
    part<QPushButton>("Dashboard_RecentCode")->click();
    QCOMPARE(chosen.value(0).value(0).toString(), QLatin1String("*100#"));
}

void StateStripTest::waitingShowsTheSeconds()
{
    show(stateOf(Kind::Waiting));
    strip().setSeconds(8);
    const SecondsRing *ring = part<SecondsRing>("Dashboard_SecondsRing");
    QVERIFY(ring);
    QCOMPARE(ring->value(), 8);
    QCOMPARE(ring->maximum(), 30);
    QCOMPARE(ring->accessibleName(), QLatin1String("8 of 30 seconds"));
    QCOMPARE(strip().text(), QLatin1String("8 of 30 seconds"));
    QSignalSpy cancelled(&strip(), &StateStrip::cancelled);
    part<QPushButton>("Dashboard_CancelCommand")->click();
    QCOMPARE(cancelled.count(), 1);
}

void StateStripTest::theRingShowsEverySecond()
{
    show(stateOf(Kind::Waiting));
    PaintCounter counter(part<SecondsRing>("Dashboard_SecondsRing"));
    for (int second = 1; second <= 3; ++second) {
        counter.reset();
        strip().setSeconds(second);
        drainEvents();
        QVERIFY2(counter.count() > 0, QByteArray::number(second).constData());
    }
}

void StateStripTest::choicesThatDoNotFitAreInAList()
{
    show(stateOf(Kind::MenuOpen, 9));
    const int shown = choices().size();
    QVERIFY(shown >= 2 && shown < 9);
    QPushButton *more = part<QPushButton>("Dashboard_MoreChoices");
    QVERIFY(more);
    QCOMPARE(more->text(), QString::fromLatin1("+%1").arg(9 - shown));
    const QMenu *menu = more->findChild<QMenu *>();
    QCOMPARE(menu->actions().size(), 9 - shown);
    QSignalSpy answered(&strip(), &StateStrip::answered);
    menu->actions().last()->trigger();
    QCOMPARE(answered.value(0).value(0).toString(), QLatin1String("9"));
    show(stateOf(Kind::MenuOpen, 2));
    QCOMPARE(choices().size(), 2);
    QVERIFY(!part<QPushButton>("Dashboard_MoreChoices"));
}

void StateStripTest::theTabKeyReachesTheRowsInOrder()
{
    QWidget window;
    QVBoxLayout layout(&window);
    layout.addWidget(m_strip.data());
    QLineEdit below;
    layout.addWidget(&below);
    window.resize(840, 200);
    window.show();
    show(stateOf(Kind::MenuOpen, 2));
    const QWidget *widget = part<QPushButton>("Dashboard_StripMore");
    QCOMPARE(nextTabStop(part<QPushButton>("Dashboard_EndMenu")), widget);
    for (const char *choice : {"1, A choice with words", "2, A choice with words"}) {
        widget = nextTabStop(widget);
        QCOMPARE(widget->accessibleName(), QLatin1String(choice));
    }
    QCOMPARE(nextTabStop(widget), static_cast<QWidget *>(&below));
    layout.removeWidget(m_strip.data());
    m_strip->setParent(nullptr);
}

void StateStripTest::olderNetworksAreOfferedAfterAFailureOn4G()
{
    strip().setModes(true, false);
    show(stateOf(Kind::Failed));
    QVERIFY(!part<QPushButton>("Dashboard_AllowOlder")); // this failure is unrelated to 4G
    CommandState failed = stateOf(Kind::Failed);
    failed.failure = TKSV_FAILURE_NOT_ON_4G;
    show(failed);
    QSignalSpy requested(&strip(), &StateStrip::olderModesRequested);
    part<QPushButton>("Dashboard_AllowOlder")->click();
    QCOMPARE(requested.size(), 1);
    strip().setModes(false, true);
    drainEvents();
    QVERIFY(!part<QPushButton>("Dashboard_AllowOlder"));
    QVERIFY(part<QPushButton>("Dashboard_Only4G"));
}

void StateStripTest::theFormerNetworksAreOffered()
{
    show(stateOf(Kind::Ready));
    QVERIFY(!part<QPushButton>("Dashboard_Only4G"));
    strip().setModes(false, true);
    drainEvents();
    QSignalSpy requested(&strip(), &StateStrip::formerModesRequested);
    part<QPushButton>("Dashboard_Only4G")->click();
    QCOMPARE(requested.size(), 1);
}

void StateStripTest::theNarrowRowHasRoomForTheNetworks()
{
    for (const QString &language : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        m_strip.reset(new StateStrip);
        strip().setForm(Form::Narrow);
        strip().resize(342, 116);
        strip().show();
        for (const bool canRestore : {false, true}) {
            strip().setModes(!canRestore, canRestore);
            CommandState failed = stateOf(Kind::Failed);
            failed.failure = TKSV_FAILURE_NOT_ON_4G;
            show(failed);
            drainEvents();
            for (const QPushButton *button :
                 part<QWidget>("Dashboard_StripRow")->findChildren<QPushButton *>()) {
                if (button->isVisible())
                    QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(language));
            }
        }
    }
}

void StateStripTest::aChoiceIsAnswered()
{
    show(stateOf(Kind::MenuOpen, 3));
    QPushButton *first = part<QPushButton>("Dashboard_Choice");
    QCOMPARE(first->accessibleName(), QLatin1String("1, A choice with words"));
    QSignalSpy answered(&strip(), &StateStrip::answered);
    first->click();
    QCOMPARE(answered.value(0).value(0).toString(), QLatin1String("1"));
    QSignalSpy ended(&strip(), &StateStrip::menuEnded);
    part<QPushButton>("Dashboard_EndMenu")->click();
    QCOMPARE(ended.count(), 1);
}

void StateStripTest::aStoppedChainKeepsTheChoices()
{
    ChainState chain;
    chain.kind = ChainState::Kind::Stopped;
    chain.title = QLatin1String("Pack stopped");
    chain.text = QLatin1String("Why");
    strip().setForm(Form::Narrow);
    strip().resize(310, 116);
    const int height = strip().height();
    CommandState state;
    state.kind = Kind::MenuOpen;
    state.choices = {{QLatin1String("1"), QString(80, QLatin1Char('W'))},
                     {QLatin1String("2"), QString(80, QLatin1Char('M'))}};
    show(state);
    strip().setChain(chain);
    drainEvents();
    QCOMPARE(strip().title(), chain.title);
    QCOMPARE(strip().height(), height);
    QVERIFY(part<QPushButton>("Dashboard_Choice")); // elided to make room for the next button
    QVERIFY(part<QPushButton>("Dashboard_WhyStopped"));
    QVERIFY(part<QPushButton>("Dashboard_EndMenu"));
    state.kind = Kind::Waiting;
    show(state);
    QCOMPARE(strip().title(), state.title); // the chain's message refers to the previous reply
    QVERIFY(!part<QPushButton>("Dashboard_WhyStopped"));
}

void StateStripTest::aTextWithoutChoicesIsShown()
{
    CommandState state = stateOf(Kind::MenuOpen);
    state.text = QLatin1String("Type your answer below.");
    show(state);
    QVERIFY(choices().isEmpty());
    QCOMPARE(strip().text(), QLatin1String("Type your answer below."));
}

void StateStripTest::aFailureOffersWhatHelps()
{
    CommandState state = stateOf(Kind::Failed);
    show(state);
    QVERIFY(part<QPushButton>("Dashboard_SendAgain"));
    QVERIFY(part<QPushButton>("Dashboard_WhatHappened"));
    QVERIFY(part<QPushButton>("Dashboard_DismissFailure"));
    state.mayBeSentAgain = false;
    show(state);
    QVERIFY(!part<QPushButton>("Dashboard_SendAgain"));
}

// Tests that the narrow strip does not offer to send the code again, because it has no room for the
// warning that the network may have executed the code.
void StateStripTest::theNarrowFormSaysTheOutcomeFirst()
{
    strip().setForm(Form::Narrow);
    show(stateOf(Kind::Failed));
    QVERIFY(!part<QPushButton>("Dashboard_SendAgain"));
    QVERIFY(part<QPushButton>("Dashboard_WhatHappened"));
}

void StateStripTest::theSituationBlocks()
{
    strip().setSituation(locked());
    drainEvents();
    QVERIFY(strip().isBlocked());
    QCOMPARE(strip().title(), QLatin1String("The SIM is locked"));
    QVERIFY(!part<QPushButton>("Dashboard_HistoryButton"));
    QList<Remedy> chosen;
    connect(&strip(), &StateStrip::remedyChosen, this, [&](Remedy one) { chosen << one; });
    QPushButton *remedy = strip()
                              .findChild<QWidget *>(QLatin1String("Dashboard_StripRow"))
                              ->findChild<QPushButton *>();
    QVERIFY(remedy);
    QCOMPARE(remedy->text(), remedyText(Remedy::EnterPin));
    remedy->click();
    QVERIFY(chosen == QList<Remedy>{Remedy::EnterPin});
    strip().disconnect(this);
}

void StateStripTest::aPendingCommandIsNotBlocked()
{
    strip().setSituation(locked());
    show(stateOf(Kind::Waiting));
    QVERIFY(!strip().isBlocked());
    QVERIFY(part<QPushButton>("Dashboard_CancelCommand"));
}

void StateStripTest::everyChangeIsAnnouncedOnce()
{
    QSignalSpy alerts(&strip(), &StateStrip::announced);
    CommandState state = stateOf(Kind::Failed);
    state.title = QLatin1String("No reply");
    state.text = QLatin1String("Reason");
    show(state);
    show(state);
    QCOMPARE(alerts.count(), 1);
    QCOMPARE(alerts.at(0).at(0).toString(), QString::fromUtf8("No reply · Reason"));
    QCOMPARE(strip().accessibleName(), QLatin1String("No reply"));
    QCOMPARE(strip().accessibleDescription(), QLatin1String("Reason"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&strip());
    QCOMPARE(int(interface->role()), int(QAccessible::StatusBar));
}

void StateStripTest::theSecondsAreAnnouncedThreeTimes()
{
    show(stateOf(Kind::Waiting));
    QSignalSpy alerts(&strip(), &StateStrip::announced);
    for (int second = 1; second <= 30; ++second)
        strip().setSeconds(second);
    QCOMPARE(alerts.size(), 3);
    QCOMPARE(alerts.at(0).at(0).toString(), QLatin1String("10 of 30 seconds"));
    QCOMPARE(alerts.at(2).at(0).toString(), QLatin1String("25 of 30 seconds"));
}

USSD_TEST_MAIN(StateStripTest)
#include "state_strip_test.moc"
