#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionButton>

#include "base/Isolate.h"
#include "CommandTest.h"
#include "Languages.h"
#include "look/Controls.h"
#include "look/Look.h"
#include "messages/MessageModel.h"
#include "messages/MessageStore.h"
#include "pages/MessageReader.h"
#include "pages/MessagesPage.h"

using namespace Dashboard;

namespace
{
const QString SENDER = QLatin1String("Meridian Mobile");
}

/** Tests listing, reading and searching messages, and answering them through the general window. */
class MessagesPageTest : public CommandTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void anEmptyPageSaysWhatComesHere();
    void theRowsAreGroupedByDay();
    void aRowIsReadAloud();
    void reachingTheEndReadsMoreRows();
    void aMessageThatComesLateHasItsPlace();
    void choosingAMessageReadsIt();
    void theFocusReadsNothing();
    void returnReadsTheRowThatHasTheFocus();
    void aNewMessageMovesNothing();
    void filtersAndCounts();
    void wordsAreSearched();
    void theMessageIsPlainText();
    void theMessageIsCopiedAndDeleted();
    void theQuestionIsAnsweredByAChoice();
    void theQuestionIsAnsweredByTyping();
    void theQuestionIsEndedWithoutAnAnswer();
    void anOldMessageHasNoAnswer();
    void theNarrowFormShowsOneAtATime();
    void aNotificationOpensItsMessage();
    void theTextShowsThatItHasTheFocus();
    void aCheckedFilterIsNotCut();

private:
    Message add(const char *text, int secondsAgo = 0, bool waits = false);
    Message ask();
    void choose(int row) { list()->setCurrentIndex(model()->index(row)); }
    QListView *list() { return part<QListView>("Dashboard_MessagesList"); }
    MessageModel *model() { return m_page->model(); }
    QString day(int row) { return model()->index(row).data(MessageModel::DayRole).toString(); }
    QString textOf(const char *name) { return part<QLabel>(name)->text(); }
    QPushButton *button(const char *name) { return part<QPushButton>(name); }
    void press(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    template <typename T>
    T *part(const char *name)
    {
        return m_page->findChild<T *>(latin1(name));
    }

    QDateTime m_noon;
    QScopedPointer<MessageStore> m_store;
    QScopedPointer<MessagesPage> m_page;
};

void MessagesPageTest::setUp()
{
    CommandTest::setUp();
    m_noon = QDateTime(QDate::currentDate(), QTime(12, 0));
    m_store.reset(new MessageStore(folder() + latin1("/messages.sqlite")));
    m_store->setSim(latin1("sim"));
    m_page.reset(new MessagesPage(m_store.data(), &monitor()));
    m_page->resize(900, 600);
    m_page->show();
}

void MessagesPageTest::tearDown()
{
    m_page.reset();
    m_store.reset();
    CommandTest::tearDown();
}

Message MessagesPageTest::add(const char *text, int secondsAgo, bool waits)
{
    return m_store->add(SENDER, QString::fromUtf8(text), m_noon.addSecs(-secondsAgo), waits);
}

/// Delivers a message that requires an answer through the device SDK.
Message MessagesPageTest::ask()
{
    const char text[] = "A gigabyte for 1.00 EUR?\n1 Yes\n2 No";
    fakeSdkRespond(QString::fromLatin1(text).toStdU16String(), 1);
    settle();
    return add(text, 0, true);
}

void MessagesPageTest::anEmptyPageSaysWhatComesHere()
{
    QVERIFY(part<QLabel>("Dashboard_MessagesEmpty")->isVisible());
    QVERIFY(textOf("Dashboard_MessagesEmpty").startsWith(latin1("No messages yet")));
    QVERIFY(!list()->isVisible());
    QCOMPARE(m_page->firstFocus(), part<QLineEdit>("Dashboard_MessagesSearch"));
    drainEvents();
    const QRect search = part<QLineEdit>("Dashboard_MessagesSearch")->geometry();
    const QRect filters = button("Dashboard_MessagesAll")->parentWidget()->geometry();
    QVERIFY(filters.top() - search.bottom() < search.height());
    QVERIFY(filters.height() < 2 * search.height());
    add("first");
    QVERIFY(list()->isVisible());
    QVERIFY(!part<QLabel>("Dashboard_MessagesEmpty")->isVisible());
}

void MessagesPageTest::theRowsAreGroupedByDay()
{
    const int dayLength = 24 * 3600;
    add("old", 40 * dayLength);
    add("b", dayLength);
    add("a", 60);
    add("now");
    QCOMPARE(day(0), latin1("Today"));
    QCOMPARE(day(1), QString());
    QCOMPARE(day(2), latin1("Yesterday"));
    QCOMPARE(day(3), QLocale().toString(m_noon.date().addDays(-40), QLocale::LongFormat));
    m_store->remove(model()->message(model()->index(0)).id);
    // After the first row of a day has been removed, the next row shows the day.
    QCOMPARE(day(0), latin1("Today"));
}

void MessagesPageTest::aRowIsReadAloud()
{
    ask();
    const QModelIndex row = model()->index(0);
    const QString text = row.data(Qt::AccessibleTextRole).toString();
    QVERIFY2(text.startsWith(latin1("Meridian Mobile, Today, ")), qPrintable(text));
    QCOMPARE(row.data(Qt::AccessibleDescriptionRole).toString(),
             latin1("Unread, Waits for your answer"));
    choose(0);
    QCOMPARE(row.data(Qt::AccessibleDescriptionRole).toString(), latin1("Waits for your answer"));
}

void MessagesPageTest::reachingTheEndReadsMoreRows()
{
    m_page->hide();
    for (int i = 0; i < 250; ++i)
        add("text", i);
    model()->reload();
    QCOMPARE(model()->rowCount(), int(MessageModel::ROWS_AT_ONCE));
    while (model()->canFetchMore(QModelIndex()))
        model()->fetchMore(QModelIndex());
    QCOMPARE(model()->rowCount(), 250);
    QSet<qint64> ids;
    for (int row = 0; row < 250; ++row)
        ids << model()->message(model()->index(row)).id;
    QCOMPARE(ids.size(), 250);
}

void MessagesPageTest::aMessageThatComesLateHasItsPlace()
{
    add("b", 20);
    add("d");
    add("c", 10);
    QStringList texts;
    for (int row = 0; row < model()->rowCount(); ++row)
        texts << model()->index(row).data().toString();
    QCOMPARE(texts.join(QLatin1Char(' ')), latin1("d c b"));
}

void MessagesPageTest::choosingAMessageReadsIt()
{
    add("You have used 90 % of your data pack.");
    QCOMPARE(m_store->unreadCount(), 1);
    QCOMPARE(textOf("Dashboard_MessageHint"), latin1("Choose a message to read it."));
    choose(0);
    QCOMPARE(m_store->unreadCount(), 0);
    QCOMPARE(textOf("Dashboard_MessageText"), latin1("You have used 90 % of your data pack."));
    QCOMPARE(textOf("Dashboard_MessageSender"), SENDER);
    QVERIFY(textOf("Dashboard_MessageWhen").startsWith(latin1("Today, ")));
    QVERIFY(textOf("Dashboard_MessageWhen").contains(isolated(latin1("12:00"))));
    QVERIFY(!part<QLabel>("Dashboard_MessageHint")->isVisible());
}

void MessagesPageTest::theFocusReadsNothing()
{
    add("text");
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.data()));
    list()->setFocus(Qt::TabFocusReason);
    QVERIFY(list()->hasFocus());
    QCOMPARE(m_store->unreadCount(), 1);
    QVERIFY(part<QLabel>("Dashboard_MessageHint")->isVisible());
}

void MessagesPageTest::returnReadsTheRowThatHasTheFocus()
{
    add("text");
    m_page->setForm(Form::Narrow);
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.data()));
    list()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(list(), Qt::Key_Return);
    QCOMPARE(m_store->unreadCount(), 0);
    QVERIFY(!list()->isVisible());
    QVERIFY(button("Dashboard_MessageBack")->hasFocus());
}

void MessagesPageTest::aNewMessageMovesNothing()
{
    for (int i = 0; i < 60; ++i)
        add("text", 100 + i);
    choose(30);
    drainEvents();
    const qint64 chosen = model()->message(list()->currentIndex()).id;
    const int before = list()->visualRect(list()->currentIndex()).top();
    QVERIFY(list()->verticalScrollBar()->value() > 0);
    add("new");
    drainEvents();
    QCOMPARE(model()->message(list()->currentIndex()).id, chosen);
    QCOMPARE(list()->visualRect(list()->currentIndex()).top(), before);
    QCOMPARE(textOf("Dashboard_MessageText"), latin1("text"));
}

void MessagesPageTest::filtersAndCounts()
{
    add("read");
    choose(0);
    add("unread");
    ask();
    QCOMPARE(button("Dashboard_MessagesUnread")->text(), latin1("Unread 2"));
    QCOMPARE(button("Dashboard_MessagesWaiting")->text(), latin1("Waiting 1"));
    press("Dashboard_MessagesUnread");
    QCOMPARE(model()->rowCount(), 2);
    choose(1);
    QCOMPARE(model()->rowCount(), 2); // the message that is being read stays in the list
    press("Dashboard_MessagesWaiting");
    QCOMPARE(model()->rowCount(), 1);
    press("Dashboard_MessagesAll");
    QCOMPARE(model()->rowCount(), 3);
    press("Dashboard_MessagesMarkAll");
    QCOMPARE(m_store->unreadCount(), 0);
    QCOMPARE(button("Dashboard_MessagesUnread")->text(), latin1("Unread"));
    QVERIFY(!button("Dashboard_MessagesMarkAll")->isEnabled());
}

void MessagesPageTest::wordsAreSearched()
{
    add("Welcome to Nordtel");
    add("Your data pack ends tomorrow");
    part<QLineEdit>("Dashboard_MessagesSearch")->setText(latin1("  nordTEL "));
    QCOMPARE(model()->rowCount(), 1);
    part<QLineEdit>("Dashboard_MessagesSearch")->setText(latin1("nothing"));
    QCOMPARE(textOf("Dashboard_MessagesEmpty"), latin1("No message found"));
    add("hidden by the search");
    QCOMPARE(model()->rowCount(), 0);
    part<QLineEdit>("Dashboard_MessagesSearch")->clear();
    QCOMPARE(model()->rowCount(), 3);
}

void MessagesPageTest::theMessageIsPlainText()
{
    add("<b>Offer</b> <img src='file:///etc/passwd'>");
    choose(0);
    const QLabel *text = part<QLabel>("Dashboard_MessageText");
    QCOMPARE(text->textFormat(), Qt::PlainText);
    QCOMPARE(text->text(), latin1("<b>Offer</b> <img src='file:///etc/passwd'>"));
}

void MessagesPageTest::theMessageIsCopiedAndDeleted()
{
    add("first", 60);
    add("second");
    choose(0);
    press("Dashboard_MessageCopy");
    QCOMPARE(QGuiApplication::clipboard()->text(), latin1("second"));
    press("Dashboard_MessageDelete");
    QCOMPARE(model()->rowCount(), 1);
    QVERIFY(m_store->newest().text == latin1("first"));
}

void MessagesPageTest::theQuestionIsAnsweredByAChoice()
{
    ask();
    choose(0);
    QVERIFY(part<Chip>("Dashboard_MessageChip")->isVisible());
    QList<QPushButton *> choices =
        m_page->findChild<ChoiceButtons *>()->findChildren<QPushButton *>();
    QCOMPARE(choices.size(), 2);
    QCOMPARE(choices.at(0)->accessibleName(), latin1("1, Yes"));
    QTest::mouseClick(choices.at(0), Qt::LeftButton);
    settle();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"1"});
    QVERIFY(page().transcript().contains(latin1("Sent: 1")));
    m_store->endWaiting();
    QVERIFY(!part<Chip>("Dashboard_MessageChip")->isVisible());
    QVERIFY(!m_page->findChild<AnswerBox *>()->isVisible());
}

void MessagesPageTest::theQuestionIsAnsweredByTyping()
{
    ask();
    choose(0);
    QLineEdit *field = part<QLineEdit>("Dashboard_AnswerField");
    QVERIFY(!button("Dashboard_AnswerSend")->isEnabled());
    QTest::keyClicks(field, latin1("Paris"));
    QVERIFY(button("Dashboard_AnswerSend")->isEnabled());
    QTest::keyClick(field, Qt::Key_Return);
    settle();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"Paris"});
}

void MessagesPageTest::theQuestionIsEndedWithoutAnAnswer()
{
    ask();
    choose(0);
    fakeSdkForgetRecords();
    press("Dashboard_AnswerEnd");
    settle();
    QVERIFY(!fakeSdkCalls("TKSV_USSDSrv_Release").empty());
    QVERIFY(fakeSdkCommands().empty());
    QVERIFY(!m_page->findChild<AnswerBox *>()->isEnabled());
}

void MessagesPageTest::anOldMessageHasNoAnswer()
{
    add("1 Yes\n2 No", 60);
    ask();
    choose(1);
    QVERIFY(!m_page->findChild<AnswerBox *>()->isVisible());
    choose(0);
    QVERIFY(m_page->findChild<AnswerBox *>()->isVisible());
}

void MessagesPageTest::theNarrowFormShowsOneAtATime()
{
    add("text");
    m_page->setForm(Form::Narrow);
    drainEvents();
    m_page->resize(360, 600);
    drainEvents();
    QVERIFY(list()->isVisible());
    QVERIFY(!m_page->findChild<MessageReader *>()->isVisible());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list()->visualRect(model()->index(0)).center());
    QVERIFY(!list()->isVisible());
    QVERIFY(m_page->findChild<MessageReader *>()->isVisible());
    QCOMPARE(m_page->width(), 360);
    press("Dashboard_MessageBack");
    QVERIFY(list()->isVisible());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list()->visualRect(model()->index(0)).center());
    QVERIFY(!list()->isVisible()); // clicking the same message again also opens it
}

void MessagesPageTest::aNotificationOpensItsMessage()
{
    const Message wanted = add("wanted", 60);
    add("other");
    part<QLineEdit>("Dashboard_MessagesSearch")->setText(latin1("other"));
    m_page->open(wanted.id);
    QCOMPARE(textOf("Dashboard_MessageText"), latin1("wanted"));
    m_page->open(12345); // the identifier of a message that no longer exists
    QCOMPARE(textOf("Dashboard_MessageText"), latin1("wanted"));
}

// Tests that the text has a visible border while it has the focus. The Tab key stops at the text,
// so that a long message can be scrolled with the keyboard.
/// Tests that the bold text of a checked filter fits into its button.
void MessagesPageTest::aCheckedFilterIsNotCut()
{
    Look::instance().start();
    drainEvents();
    for (QPushButton *filter : m_page->findChildren<QPushButton *>()) {
        if (!filter->isCheckable())
            continue;
        filter->click();
        drainEvents();
        QStyleOptionButton option;
        option.initFrom(filter);
        option.state |= QStyle::State_On;
        const QRect room =
            filter->style()->subElementRect(QStyle::SE_PushButtonContents, &option, filter);
        QFont bold = filter->font();
        bold.setWeight(QFont::DemiBold);
        QVERIFY2(room.width() >= QFontMetrics(bold).horizontalAdvance(filter->text()),
                 qPrintable(filter->text()));
    }
}

void MessagesPageTest::theTextShowsThatItHasTheFocus()
{
    Look::instance().start();
    m_page->open(add("wanted").id);
    QWidget *text = part<QWidget>("Dashboard_MessageScroll");
    QVERIFY(text->focusPolicy() & Qt::TabFocus);
    QVERIFY(!(part<QLabel>("Dashboard_MessageText")->focusPolicy() & Qt::TabFocus));
    const QPoint border(1, text->height() / 2);
    const QColor ring = Look::instance().color(Token::Focus);
    button("Dashboard_MessageCopy")->setFocus();
    QVERIFY(text->grab().toImage().pixelColor(border) != ring);
    QVERIFY(QTest::qWaitForWindowActive(m_page.data()));
    text->setFocus();
    QVERIFY(text->hasFocus());
    QCOMPARE(text->grab().toImage().pixelColor(border), ring);
}

USSD_TEST_MAIN(MessagesPageTest)
#include "messages_page_test.moc"
