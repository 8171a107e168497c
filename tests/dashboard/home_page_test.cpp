#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>

#include "account/AccountRecorder.h"
#include "account/AccountStore.h"
#include "account/AccountWords.h"
#include "account/Favourites.h"
#include "Languages.h"
#include "look/Look.h"
#include "pages/AccountTile.h"
#include "pages/AppActions.h"
#include "pages/BalanceCard.h"
#include "pages/BalanceChart.h"
#include "pages/ChainDialog.h"
#include "pages/FavouriteDialog.h"
#include "pages/FavouriteGrid.h"
#include "pages/HomePage.h"
#include "pages/StateCard.h"
#include "plugin/ReplyTap.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

const QDateTime NOW(QDate(2026, 11, 21), QTime(14, 32));
const int NARROW_WIDTH = 360;

/** Records the actions that the page requests. */
struct RecordedActions : AppActions {
    void showPage(PageId) override { done << QLatin1String("page"); }
    void sendCode(const QString &code) override { done << QLatin1String("send ") + code; }
    void runChain(const QString &name) override { done << QLatin1String("chain ") + name; }
    void typeCode(const QString &code) override { done << QLatin1String("type ") + code; }
    void topUp() override { done << QLatin1String("top up"); }
    void openAccountWindow() override { done << QLatin1String("account"); }
    void openServicesWindow(int) override { done << QLatin1String("services"); }
    void editCodes() override { done << QLatin1String("edit"); }
    void perform(Remedy) override { done << QLatin1String("remedy"); }

    QStringList done;
};

Reply reply(const char *text)
{
    Reply result;
    result.text = QString::fromUtf8(text);
    result.isReceived = true;
    return result;
}

Situation ready()
{
    Situation situation;
    situation.canSend = true;
    situation.hasPresets = true;
    return situation;
}

} // namespace

/** Tests what the home page shows and which actions it requests. */
class HomePageTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void openingSendsNothing();
    void theBalanceIsShown();
    void whatWasNotReadIsShownInItsOwnWords();
    void aBalanceThatMayHaveChangedSaysSo();
    void anOldBalanceShowsItsAge();
    void theReplyCanBeShown();
    void tilesShowTheirValues();
    void aTileWithoutACodeIsHidden();
    void theNumberIsCopied();
    void theChartNeedsTwoDays();
    void theChartTellsItsCourse();
    void favouritesSendTheirCode();
    void aFavouriteAsksForItsNumber();
    void arrowsMoveBetweenFavourites();
    void favouritesAreSelectedAndKept();
    void aChainIsAFavourite();
    void chainsAreRenamedAndDeleted();
    void withoutADeviceTheLastBalanceIsKnown();
    void aLowBalanceIsMarked();
    void theMessageIsOpened();
    void cardsAreHiddenUntilTheyAreNeeded();
    void nothingIsWiderThanTheWindow_data();
    void nothingIsWiderThanTheWindow();
    void theCardsFollowTheFont();

private:
    void record(const char *code, const char *text)
    {
        m_recorder->record(QLatin1String(code), reply(text));
    }
    void open(Form form = Form::Wide);
    QString textOf(const char *name) const;
    QString nameOf(const char *name) const;

    QDateTime m_now;
    AccountCodes m_codes;
    QScopedPointer<AccountStore> m_store;
    QScopedPointer<AccountRecorder> m_recorder;
    QScopedPointer<Favourites> m_favourites;
    RecordedActions m_actions;
    QScopedPointer<HomePage> m_page;
};

void HomePageTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    CodeFiles files;
    files.configuration = latin1(CONFIGURATION);
    files.systemProfiles = latin1(PROFILES);
    m_codes = readAccountCodes(files, PaidType::Prepaid);
    m_now = NOW;
    m_store.reset(new AccountStore(QString()));
    m_store->setClock([this] { return m_now; });
    m_store->setSim(QLatin1String("sim"), AccountStore::Keeping::InMemory);
    m_recorder.reset(new AccountRecorder(m_store.data()));
    m_recorder->setCodes(m_codes);
    m_favourites.reset(new Favourites(QString()));
    m_actions.done.clear();
    HomePage::Parts parts;
    parts.store = m_store.data();
    parts.recorder = m_recorder.data();
    parts.favourites = m_favourites.data();
    parts.actions = &m_actions;
    m_page.reset(new HomePage(parts));
    m_page->setCodes(m_codes);
    m_page->setSituation(ready());
}

void HomePageTest::tearDown()
{
    m_page.reset();
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
}

void HomePageTest::open(Form form)
{
    m_page->resize(form == Form::Narrow ? NARROW_WIDTH : 904, 700);
    m_page->setForm(form);
    m_page->show();
    drainEvents();
}

QString HomePageTest::textOf(const char *name) const
{
    const QLabel *label = m_page->findChild<QLabel *>(QLatin1String(name));
    return label && label->isVisible() ? label->text() : QString();
}

QString HomePageTest::nameOf(const char *name) const
{
    const QWidget *widget = m_page->findChild<QWidget *>(QLatin1String(name));
    return widget && widget->isVisible() ? widget->accessibleName() : QString();
}

void HomePageTest::openingSendsNothing()
{
    open();
    QVERIFY(m_actions.done.isEmpty());
    QCOMPARE(textOf("Dashboard_BalanceAmount"), QLatin1String("Not asked yet"));
    QCOMPARE(m_page->findChild<QPushButton *>(QLatin1String("Dashboard_AskButton"))->text(),
             QLatin1String("Ask now"));
    QVERIFY(!m_page->findChild<QWidget *>(QLatin1String("Dashboard_ShowReplyButton"))->isVisible());
}

void HomePageTest::theBalanceIsShown()
{
    open();
    record("*100#", "Balance: 12.50 EUR. Valid until 31 December 2027");
    drainEvents();
    QVERIFY(textOf("Dashboard_BalanceAmount").contains(QLatin1String("12.50")));
    const QString name = nameOf("Dashboard_BalanceCard");
    for (const char *part :
         {"12.50", "EUR", "Valid until 31 December 2027, 405 days left", "Asked today at"})
        QVERIFY2(name.contains(QLatin1String(part)), qPrintable(name));
    m_now = NOW.addYears(2);
    m_page->look();
    QVERIFY(nameOf("Dashboard_BalanceCard").contains(QLatin1String("Ended on 31 December 2027")));
}

void HomePageTest::whatWasNotReadIsShownInItsOwnWords()
{
    open();
    record("*100#", "See your bill\n\nfor the rest\nthird\nfourth");
    drainEvents();
    QCOMPARE(textOf("Dashboard_BalanceReply"), QLatin1String("See your bill\nfor the rest\nthird"));
    QCOMPARE(textOf("Dashboard_BalanceAmount"), QString());
}

void HomePageTest::aBalanceThatMayHaveChangedSaysSo()
{
    const QLatin1String note("May have changed since");
    open();
    record("*100#", "Balance: 12.50 EUR");
    drainEvents();
    QVERIFY(!nameOf("Dashboard_BalanceCard").contains(note));
    record("*124*1#", "A gigabyte booked. New balance: 2.50 EUR");
    drainEvents();
    QVERIFY(textOf("Dashboard_BalanceAmount").contains(QLatin1String("12.50")));
    const QString name = nameOf("Dashboard_BalanceCard");
    QVERIFY2(name.contains(QLatin1String("Asked today at")) && name.contains(note),
             qPrintable(name));
    const QWidget *chip = m_page->findChild<QWidget *>(QLatin1String("Dashboard_BalanceOutdated"));
    QVERIFY(chip->isVisible());
    QCOMPARE(m_page->findChild<QPushButton *>(QLatin1String("Dashboard_AskButton"))->text(),
             QLatin1String("Ask again"));
    QVERIFY(m_actions.done.isEmpty()); // the page does not send anything automatically
    record("*100#", "Balance: 2.50 EUR");
    drainEvents();
    QVERIFY(!chip->isVisible());
}

void HomePageTest::anOldBalanceShowsItsAge()
{
    record("*100#", "Balance: 12.50 EUR");
    m_now = NOW.addDays(6);
    open();
    QVERIFY(m_page->findChild<QLabel *>(QLatin1String("Dashboard_BalanceAmount"))->isVisible());
    const auto age = [this] {
        for (QLabel *label : m_page->findChildren<QLabel *>()) {
            if (label->isVisible() && label->text().endsWith(QLatin1String("days old")))
                return label->text();
        }
        return QString();
    };
    QCOMPARE(age(), QString());
    m_now = NOW.addDays(7);
    m_page->look();
    QCOMPARE(age(), QLatin1String("7 days old"));
}

void HomePageTest::theReplyCanBeShown()
{
    record("*100#", "Balance: <b>12.50</b> EUR");
    open();
    m_page->findChild<QPushButton *>(QLatin1String("Dashboard_ShowReplyButton"))->click();
    QMessageBox *box = m_page->findChild<QMessageBox *>(QLatin1String("Dashboard_ReplyBox"));
    QVERIFY(box);
    QCOMPARE(box->text(), QLatin1String("Balance: <b>12.50</b> EUR"));
    QCOMPARE(box->textFormat(), Qt::PlainText);
    box->close();
}

void HomePageTest::tilesShowTheirValues()
{
    record("*102#", "Your number is +999 55 0123456");
    record("*104#", "1.5 GB of 2 GB left");
    record("*105#", "Valid until 2027-12-31");
    open();
    QVERIFY(nameOf("Dashboard_NumberTile").contains(QLatin1String("+999550123456")));
    QVERIFY(nameOf("Dashboard_ValidityTile").contains(QLatin1String("31 December 2027")));
    const QString data = nameOf("Dashboard_DataTile");
    QVERIFY2(data.contains(QLatin1String("1.5")) && data.contains(QLatin1String("GB")),
             qPrintable(data));
}

void HomePageTest::aTileWithoutACodeIsHidden()
{
    m_codes.data.clear();
    m_codes.balance.clear();
    m_page->setCodes(m_codes);
    open();
    QVERIFY(!m_page->findChild<QWidget *>(QLatin1String("Dashboard_DataTile"))->isVisible());
    QVERIFY(!m_page->findChild<QWidget *>(QLatin1String("Dashboard_BalanceCard"))->isVisible());
    QVERIFY(m_page->findChild<QWidget *>(QLatin1String("Dashboard_NumberTile"))->isVisible());
}

void HomePageTest::theNumberIsCopied()
{
    record("*102#", "Your number is +999 55 0123456");
    open();
    emit m_page->findChild<AccountTile *>(QLatin1String("Dashboard_NumberTile"))->pressed();
    QCOMPARE(QApplication::clipboard()->text(), QLatin1String("+999550123456"));
}

void HomePageTest::theChartNeedsTwoDays()
{
    record("*100#", "Balance: 12.50 EUR");
    open();
    const BalanceChart *chart = m_page->findChild<BalanceChart *>();
    QCOMPARE(chart->sentence(), QLatin1String("Ask again on another day to see a line here."));
    m_now = NOW.addDays(1);
    record("*100#", "Balance: 10.00 EUR");
    drainEvents();
    QVERIFY(chart->sentence().startsWith(QLatin1String("From 12.50 to")));
}

void HomePageTest::theChartTellsItsCourse()
{
    const char *const amounts[] = {"18.00", "2.50", "22.50", "12.50"};
    for (int i = 0; i < 4; ++i) {
        m_now = NOW.addDays(i - 3);
        record("*100#", (QByteArray("Balance: ") + amounts[i] + " EUR").constData());
    }
    open();
    QString sentence = m_page->findChild<BalanceChart *>()->sentence();
    sentence.remove(QChar(0x2066)).remove(QChar(0x2069)).replace(QChar(0xa0), QLatin1Char(' '));
    QCOMPARE(sentence, QLatin1String("From 18.00 to 12.50 EUR in 30 days, lowest 2.50"));
    QString texts;
    for (const QLabel *label : m_page->findChild<BalanceChart *>()->findChildren<QLabel *>())
        texts += label->text();
    texts.remove(QChar(0x2066)).remove(QChar(0x2069)).replace(QChar(0xa0), QLatin1Char(' '));
    QVERIFY2(texts.contains(QLatin1String("Spent 25.50 EUR, topped up 20.00 EUR")),
             qPrintable(texts));
}

void HomePageTest::favouritesSendTheirCode()
{
    open();
    const QList<FavouriteButton *> buttons = m_page->findChildren<FavouriteButton *>();
    QCOMPARE(buttons.size(), 6); // five codes and the "Add" button
    buttons.at(1)->click();
    QCOMPARE(m_actions.done, QStringList(QLatin1String("send *104#")));
    QCOMPARE(buttons.at(1)->accessibleDescription(), QLatin1String("*104#"));
}

void HomePageTest::aFavouriteAsksForItsNumber()
{
    NamedCode callMe;
    callMe.name = QLatin1String("Call me");
    callMe.code = QLatin1String("*140*%s#");
    m_favourites->select({callMe});
    open();
    m_page->findChildren<FavouriteButton *>().first()->click();
    QVERIFY(m_actions.done.isEmpty());
    CodeNumberDialog *dialog = m_page->findChild<CodeNumberDialog *>();
    QVERIFY(dialog);
    dialog->findChild<QLineEdit *>()->setText(QLatin1String("5550123"));
    for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
        if (button->isDefault())
            button->click();
    }
    QCOMPARE(m_actions.done, QStringList(QLatin1String("send *140*5550123#")));
}

void HomePageTest::arrowsMoveBetweenFavourites()
{
    open();
    m_page->activateWindow();
    const QList<FavouriteButton *> buttons = m_page->findChildren<FavouriteButton *>();
    buttons.at(0)->setFocus();
    QTest::keyClick(buttons.at(0), Qt::Key_Right);
    QCOMPARE(m_page->focusWidget(), static_cast<QWidget *>(buttons.at(1)));
    QTest::keyClick(buttons.at(1), Qt::Key_Down);
    QCOMPARE(m_page->focusWidget(), static_cast<QWidget *>(buttons.at(4)));
    QTest::keyClick(buttons.at(4), Qt::Key_Return);
    QCOMPARE(m_actions.done, QStringList(QLatin1String("send *126#")));
}

void HomePageTest::favouritesAreSelectedAndKept()
{
    const QString file = folder() + QLatin1String("/favourites.json");
    {
        Favourites favourites(file);
        favourites.setNetwork(QLatin1String("00101"));
        FavouriteDialog dialog(m_codes.all, favourites.among(m_codes), Favourites::MOST);
        QListWidget *list = dialog.findChild<QListWidget *>();
        QCOMPARE(list->count(), m_codes.all.size());
        list->item(0)->setCheckState(Qt::Unchecked);
        list->setCurrentRow(1);
        for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
            if (button->text() == QLatin1String("Move down"))
                button->click();
        }
        for (int i = 5; i < 7; ++i)
            list->item(i)->setCheckState(Qt::Checked);
        // Six favourites are already selected.
        QVERIFY(!(list->item(7)->flags() & Qt::ItemIsUserCheckable));
        QCOMPARE(dialog.selected().size(), Favourites::MOST);
        QCOMPARE(dialog.selected().at(0).code, QLatin1String("*123#"));
        QVERIFY(favourites.select(dialog.selected()));
    }
    Favourites favourites(file);
    favourites.setNetwork(QLatin1String("00101"));
    QCOMPARE(favourites.among(m_codes).first().code, QLatin1String("*123#"));
    QVERIFY(favourites.select({}));
    QVERIFY(favourites.among(m_codes).isEmpty());
    favourites.setNetwork(QLatin1String("00102"));
    QCOMPARE(favourites.among(m_codes).size(), 5);
    QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
}

void HomePageTest::aChainIsAFavourite()
{
    open();
    QVERIFY(m_favourites->keep({"Pack", "*123#", {{"2", "Internet"}, {"1", "1 GB"}}}));
    drainEvents();
    const QList<FavouriteButton *> buttons = m_page->findChildren<FavouriteButton *>();
    QCOMPARE(buttons.size(), Favourites::MOST); // five codes and the chain
    QCOMPARE(buttons.last()->accessibleName(), QLatin1String("Pack"));
    QCOMPARE(buttons.last()->accessibleDescription(), QString::fromUtf8("*123# › 2 › 1"));
    buttons.last()->click();
    QCOMPARE(m_actions.done, QStringList(QLatin1String("chain Pack")));
}

void HomePageTest::chainsAreRenamedAndDeleted()
{
    QVERIFY(m_favourites->keep({"Pack", "*123#", {{"2", "Internet"}}}));
    QVERIFY(m_favourites->keep({"Other", "*123#", {{"1", "Account"}}}));
    open();
    m_page->findChild<QPushButton *>(QLatin1String("Dashboard_EditFavouritesButton"))->click();
    FavouriteDialog *dialog = m_page->findChild<FavouriteDialog *>();
    QListWidget *list = dialog->findChild<QListWidget *>();
    const auto button = [dialog](const char *name) {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    };
    list->setCurrentRow(0); // this row contains a code, not a chain
    QVERIFY(!button("Dashboard_RenameChain")->isEnabled());
    QVERIFY(!button("Dashboard_DeleteChain")->isEnabled());
    list->setCurrentRow(
        list->findItems(QLatin1String("Pack"), Qt::MatchStartsWith).size() == 1
            ? list->row(list->findItems(QLatin1String("Pack"), Qt::MatchStartsWith).first())
            : -1);
    button("Dashboard_RenameChain")->click();
    ChainDialog *naming = dialog->findChild<ChainDialog *>();
    naming->setName(QLatin1String("OTHER")); // this name is already in use
    QVERIFY(!naming->findChild<QPushButton *>(QLatin1String("Dashboard_KeepChain"))->isEnabled());
    naming->setName(QLatin1String("1 GB"));
    naming->accept();
    list->setCurrentItem(list->findItems(QLatin1String("Other"), Qt::MatchStartsWith).first());
    button("Dashboard_DeleteChain")->click();
    QCOMPARE(m_favourites->chains().size(), 2); // nothing is stored until the user presses Save
    dialog->accept();
    drainEvents();
    QCOMPARE(m_favourites->chains().size(), 1);
    QCOMPARE(m_favourites->chains().first().name, QLatin1String("1 GB"));
    QCOMPARE(m_favourites->among(m_codes).last().name, QLatin1String("1 GB"));
}

void HomePageTest::withoutADeviceTheLastBalanceIsKnown()
{
    record("*100#", "Balance: 12.50 EUR");
    m_now = NOW.addDays(1);
    Situation situation;
    situation.kind = Situation::Kind::NoModem;
    situation.title = QLatin1String("No modem");
    situation.icon = "modem";
    situation.remedies = {Remedy::LookAgain};
    m_page->setSimText(QLatin1String("SIM ending 6789"));
    m_page->setSituation(situation);
    open();
    QVERIFY(!m_page->findChild<BalanceCard *>()->isVisible());
    QVERIFY(!m_page->findChild<FavouriteGrid *>()->isVisible());
    const StateCard *card = m_page->findChild<StateCard *>();
    QString texts;
    for (const QLabel *label : card->findChildren<QLabel *>())
        texts += label->text() + QLatin1Char('\n');
    texts.remove(QChar(0x2066)).remove(QChar(0x2069)).replace(QChar(0xa0), QLatin1Char(' '));
    QVERIFY2(texts.contains(QLatin1String("Last known: 12.50 EUR")), qPrintable(texts));
    QVERIFY2(texts.contains(QLatin1String(
                 "SIM ending 6789, asked yesterday at 14:32. It may have changed since.")),
             qPrintable(texts));
    card->firstButton()->click();
    QCOMPARE(m_actions.done, QStringList(QLatin1String("remedy")));
}

void HomePageTest::aLowBalanceIsMarked()
{
    m_recorder->setLowBalance(QLatin1String("5"));
    record("*100#", "Balance: 4.00 EUR");
    open();
    QVERIFY(nameOf("Dashboard_BalanceCard").endsWith(QLatin1String("Low balance")));
    record("*100#", "Balance: 6.00 EUR");
    drainEvents();
    QVERIFY(!nameOf("Dashboard_BalanceCard").contains(QLatin1String("Low balance")));
}

void HomePageTest::theMessageIsOpened()
{
    QSignalSpy chosen(m_page.data(), &HomePage::messageChosen);
    HomeMessage message;
    message.id = 7;
    message.title = QLatin1String("A gigabyte for 1.00 EUR?");
    message.waitsForAnswer = true;
    m_page->setMessage(message);
    open();
    QWidget *row = m_page->findChild<QWidget *>(QLatin1String("Dashboard_HomeMessage"));
    QVERIFY(row->isVisible());
    QPushButton *button = row->findChild<QPushButton *>();
    QCOMPARE(button->text(), QLatin1String("Answer"));
    button->click();
    QCOMPARE(chosen.size(), 1);
    m_page->setMessage(HomeMessage());
    QVERIFY(!row->isVisible());
}

/// Measuring a card that is not needed loads its fonts, which would slow down the start of the
/// program.
void HomePageTest::cardsAreHiddenUntilTheyAreNeeded()
{
    const QWidget *card = m_page->findChild<BalanceCard *>();
    const QWidget *state = m_page->findChild<StateCard *>();
    QVERIFY(!card->isVisibleTo(m_page.data()));
    QVERIFY(!state->isVisibleTo(m_page.data()));
    open();
    QVERIFY(card->isVisible());
    QVERIFY(!state->isVisible());
}

void HomePageTest::nothingIsWiderThanTheWindow_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : HostCore::Languages::codes())
        QTest::newRow(qPrintable(language)) << language;
}

void HomePageTest::nothingIsWiderThanTheWindow()
{
    QFETCH(QString, language);
    QVERIFY(HostCore::Languages::setCurrent(language));
    Look::instance().start();
    m_recorder->setLowBalance(QLatin1String("99"));
    record("*100#", "Balance: 12.50 EUR. Valid until 31 December 2027");
    record("*102#", "Your number is +999 55 0123456");
    record("*104#", "1.5 GB of 2 GB left");
    m_now = NOW.addDays(9);
    open(Form::Narrow);
    for (const QWidget *widget : m_page->findChildren<QWidget *>()) {
        if (!widget->isVisible() || !m_page->isAncestorOf(widget))
            continue;
        const QRect place(widget->mapTo(m_page.data(), QPoint()), widget->size());
        QVERIFY2(place.left() >= 0 && place.right() < NARROW_WIDTH,
                 qPrintable(QString::fromLatin1("%1 %2: %3 to %4")
                                .arg(QLatin1String(widget->metaObject()->className()),
                                     widget->objectName())
                                .arg(place.left())
                                .arg(place.right())));
    }
}

/// Tests that a smaller font makes the cards smaller, and that a change of the form does not make
/// their buttons smaller.
void HomePageTest::theCardsFollowTheFont()
{
    Look::instance().start();
    const QFont before = QApplication::font();
    const auto useFont = [before](int pixels) {
        QFont font = before;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    };
    useFont(16);
    record("*100#", "Balance: 12.50 EUR. Valid until 31 December 2027");
    open();
    useFont(14);
    for (const Form form : {Form::Wide, Form::Narrow, Form::Wide}) {
        m_page->setForm(form);
        drainEvents();
    }
    const QWidget *tile = m_page->findChild<QWidget *>(QLatin1String("Dashboard_NumberTile"));
    QCOMPARE(tile->findChild<QPushButton *>()->height(), 40);
    QCOMPARE(tile->minimumHeight(), 100);
    QCOMPARE(m_page->findChild<QWidget *>(QLatin1String("Dashboard_BalanceCard"))->minimumHeight(),
             196);
    QApplication::setFont(before);
}

USSD_TEST_MAIN(HomePageTest)
#include "home_page_test.moc"
