#include "PrepaidTest.h"

#include <QClipboard>
#include <QFrame>
#include <QGlyphRun>
#include <QGridLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

#include "Languages.h"
#include "QtCompat.h"

namespace
{

const char *const ROLES_OF_BALANCE[] = {"BalanceLabel", "BalanceStatusTextEdit",
                                        "BalanceUpdateButton", "BalanceInfoLabel"};
const char *const ROLES_OF_CHARGE[] = {"ChargeLabel", "ChargeEdit", "ChargeActivateButton",
                                       "ActivateStatusTextEdit"};
const char *const ROLES_OF_ONLINE[] = {"OnlineChargeLabel", "OnlineURL"};
const char *const ROLES_OF_MSISDN[] = {"MSISDNLabel", "MSISDNStatusTextEdit", "MSISDNUpdateButton"};
const char *const LINES[] = {"BalanceLine", "ChargeLine", "OnlineChargeLine"};

template <int Count>
QStringList names(const char *const (&roles)[Count])
{
    QStringList list;
    for (const char *role : roles)
        list << QLatin1String(role);
    return list;
}

QString nameOf(const QWidget *widget)
{
    return widget->objectName().mid(int(strlen("USSDUIPlugin_")));
}

/// Returns the width of the text that the widget must be able to show.
int textWidth(const QWidget *widget)
{
    QString text;
    if (const QLabel *label = qobject_cast<const QLabel *>(widget))
        text = label->textFormat() == Qt::PlainText ? label->text() : QString();
    else if (const QPushButton *button = qobject_cast<const QPushButton *>(widget))
        text = button->text();
    return QtCompat::textWidth(widget->fontMetrics(), text.remove(QLatin1Char('&')));
}

QByteArray describe(const QWidget *widget)
{
    return nameOf(widget).toUtf8() + " is " + QByteArray::number(widget->width()) + " x " +
           QByteArray::number(widget->height()) + ", wants " +
           QByteArray::number(widget->sizeHint().width()) + " x " +
           QByteArray::number(widget->sizeHint().height());
}

} // namespace

/** Tests the layout of the account window in all languages and both text directions. */
class PrepaidLayoutTest : public PrepaidTest
{
    Q_OBJECT

private:
    QStringList visibleRoles();
    QGridLayout *grid()
    {
        return qobject_cast<QGridLayout *>(static_cast<QWidget *>(dialog())->layout());
    }
    QList<QWidget *> visibleWidgets();
    void checkThatNothingIsCutOff();
    QStringList tabOrder();
    int yOf(const char *role) { return part<QWidget>(role)->geometry().center().y(); }

private slots:
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void ownTextsFitTheStatusBoxes_data();
    void ownTextsFitTheStatusBoxes();
    void languageChangedLaterNeedsNoMoreThanGetSize();
    void largerFontIsMeasured();
    void rightToLeftIsMirrored();

    void componentIsShownWithAllItsParts_data();
    void componentIsShownWithAllItsParts();
    void laterOneOfTwoAtTheSamePosIsShown();
    void componentsStandInOrderOfPos();
    void separatorsStandBetweenComponents_data();
    void separatorsStandBetweenComponents();
    void gridHasItsMeasures();
    void withoutAnyComponentThereIsTheCloseButton();
    void positionsAreLoggedInLinesOfTheirOwn();
    void embeddedDialogHasNoCloseButton();
    void sizeBeforeInitIsInvalid();

    void linkIsThatOfTheConfiguration_data();
    void linkIsThatOfTheConfiguration();
    void longLinkIsCutAndTold();
    void linkIsCutAt300PixelsOfTheApplicationsFont();
    void codesReadFromLeftToRightInArabic();
    void codesAmongArabicLettersReadFromLeftToRightToo();

    void tabKeyFollowsTheReadingOrder();
    void withoutEntryTheFocusIsOnClose();
    void fieldsHaveNamesForScreenReaders();
    void labelsArePlainTextAndBuddies();
    void partsHaveTheirNames();
};

QList<QWidget *> PrepaidLayoutTest::visibleWidgets()
{
    QList<QWidget *> widgets;
    for (QWidget *widget :
         dialog()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (widget->isVisible())
            widgets << widget;
    }
    return widgets;
}

QStringList PrepaidLayoutTest::visibleRoles()
{
    QStringList roles;
    for (const QWidget *widget : visibleWidgets())
        roles << nameOf(widget);
    return roles;
}

// ---- sizes -----------------------------------------------------------------------------------

void PrepaidLayoutTest::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("missing"); // the component to be hidden, or -1
    for (const QString &language : languages()) {
        for (int missing = -1; missing < 4; ++missing)
            QTest::newRow(qPrintable(QStringLiteral("%1, without %2").arg(language).arg(missing)))
                << language << missing;
    }
}

void PrepaidLayoutTest::nothingIsCutOff()
{
    QFETCH(QString, language);
    QFETCH(int, missing);
    Account account;
    QByteArray *const items[] = {&account.balance, &account.charge, &account.online,
                                 &account.msisdn};
    if (missing >= 0)
        items[missing]->clear();
    configure(account);
    QVERIFY(HostCore::Languages::setCurrent(language));
    open();
    for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        fitFrame();
        checkThatNothingIsCutOff();
    }
}

void PrepaidLayoutTest::checkThatNothingIsCutOff()
{
    const QList<QWidget *> widgets = visibleWidgets();
    QVERIFY(widgets.count() > 6);
    for (const QWidget *widget : widgets) {
        const QSize wanted = widget->sizeHint();
        QVERIFY2(widget->width() >= wanted.width() && widget->height() >= wanted.height(),
                 describe(widget).constData());
        QVERIFY2(widget->width() >= textWidth(widget), describe(widget).constData());
        QVERIFY2(dialog()->rect().contains(widget->geometry()), describe(widget).constData());
        for (const QWidget *other : widgets)
            QVERIFY2(other == widget || !other->geometry().intersects(widget->geometry()),
                     describe(widget).constData());
    }
}

void PrepaidLayoutTest::ownTextsFitTheStatusBoxes_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

void PrepaidLayoutTest::ownTextsFitTheStatusBoxes()
{
    QFETCH(QString, language);
    QVERIFY(HostCore::Languages::setCurrent(language));
    configure(Account());
    open();
    for (const char *key : {"USSD_CODE_WAITTING", "USSD_CODE_FAILED", "USSD_CODE_TIME_OUT"}) {
        for (int component : {COMPONENT_BALANCE, COMPONENT_CHARGE, COMPONENT_MSISDN})
            logicSays(component, text(key));
        for (QTextEdit *box : {activateBox(), msisdnBox()}) {
            QCOMPARE(box->toPlainText(), text(key));
            QCOMPARE(box->verticalScrollBar()->maximum(), 0);
        }
    }
}

void PrepaidLayoutTest::languageChangedLaterNeedsNoMoreThanGetSize()
{
    configure(Account());
    open();
    for (const QString &language : languages()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        dialog()->SetLanguage();
        fitFrame();
        checkThatNothingIsCutOff();
    }
}

void PrepaidLayoutTest::largerFontIsMeasured()
{
    configure(Account());
    make();
    const QSize before = dialog()->GetSize();
    QFont font = dialog()->font();
    font.setPointSize(font.pointSize() * 2);
    dialog()->setFont(font);
    QVERIFY(dialog()->GetSize().height() > before.height());
    fitFrame();
    checkThatNothingIsCutOff();
}

void PrepaidLayoutTest::rightToLeftIsMirrored()
{
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("ar")));
    configure(Account());
    open();
    const QRect label = part<QLabel>("OnlineChargeLabel")->geometry();
    QVERIFY(label.left() > balanceBox()->geometry().right());
    QVERIFY(balanceBox()->geometry().left() > balanceButton()->geometry().right());
    QCOMPARE(link()->geometry().right(), balanceBox()->geometry().right());
    QCOMPARE(part<QLabel>("BalanceInfoLabel")->geometry().right(),
             balanceBox()->geometry().right());
}

// ---- positions -------------------------------------------------------------------------------

void PrepaidLayoutTest::componentIsShownWithAllItsParts_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<QStringList>("roles");
    QTest::newRow("balance") << 0 << names(ROLES_OF_BALANCE);
    QTest::newRow("charge") << 1 << names(ROLES_OF_CHARGE);
    QTest::newRow("online") << 2 << names(ROLES_OF_ONLINE);
    QTest::newRow("msisdn") << 3 << names(ROLES_OF_MSISDN);
}

void PrepaidLayoutTest::componentIsShownWithAllItsParts()
{
    QFETCH(int, component);
    QFETCH(QStringList, roles);
    Account account;
    QByteArray *const items[] = {&account.balance, &account.charge, &account.online,
                                 &account.msisdn};
    for (int i = 0; i < 4; ++i) {
        if (i != component)
            items[i]->clear();
    }
    configure(account);
    open();
    QStringList visible = visibleRoles();
    visible.sort();
    roles << QStringLiteral("CloseButton");
    roles.sort();
    QCOMPARE(visible, roles);
}

void PrepaidLayoutTest::laterOneOfTwoAtTheSamePosIsShown()
{
    Account account;
    account.balance = balanceItem(3);
    configure(account);
    open();
    QVERIFY(!balanceBox()->isVisible());
    QVERIFY(!balanceButton()->isVisible());
    QVERIFY(msisdnBox()->isVisible());
    QVERIFY(chargeEdit()->isVisible());
}

void PrepaidLayoutTest::componentsStandInOrderOfPos()
{
    Account account;
    account.balance = balanceItem(70);
    account.charge = chargeItem(-2);
    account.online = onlineItem(8, "example.com");
    account.msisdn = msisdnItem(7);
    configure(account);
    open();
    QVERIFY(yOf("ChargeEdit") < yOf("MSISDNStatusTextEdit"));
    QVERIFY(yOf("MSISDNStatusTextEdit") < yOf("OnlineURL"));
    QVERIFY(yOf("OnlineURL") < yOf("BalanceStatusTextEdit"));
    QVERIFY(yOf("BalanceStatusTextEdit") < yOf("CloseButton"));
}

void PrepaidLayoutTest::separatorsStandBetweenComponents_data()
{
    QTest::addColumn<QList<int>>("order"); // the order of the four components; -1 hides a component
    QTest::newRow("as usual") << (QList<int>() << 0 << 1 << 2 << 3);
    QTest::newRow("number first") << (QList<int>() << 1 << 2 << 3 << 0);
    QTest::newRow("number second") << (QList<int>() << 0 << 2 << 3 << 1);
    QTest::newRow("without number") << (QList<int>() << 2 << 1 << 0 << -1);
    QTest::newRow("number and balance") << (QList<int>() << 5 << -1 << -1 << 1);
    QTest::newRow("number alone") << (QList<int>() << -1 << -1 << -1 << 1);
}

void PrepaidLayoutTest::separatorsStandBetweenComponents()
{
    QFETCH(QList<int>, order);
    Account account;
    account.balance = order[0] < 0 ? QByteArray() : balanceItem(order[0]);
    account.charge = order[1] < 0 ? QByteArray() : chargeItem(order[1]);
    account.online = order[2] < 0 ? QByteArray() : onlineItem(order[2], "example.com");
    account.msisdn = order[3] < 0 ? QByteArray() : msisdnItem(order[3]);
    configure(account);
    open();
    const char *const labels[] = {"BalanceLabel", "ChargeLabel", "OnlineChargeLabel",
                                  "MSISDNLabel"};
    QList<int> components;
    for (const char *label : labels) {
        if (part<QWidget>(label)->isVisible())
            components << yOf(label);
    }
    std::sort(components.begin(), components.end());
    QList<int> separators;
    for (const char *line : LINES) {
        if (part<QFrame>(line)->isVisible())
            separators << yOf(line);
    }
    std::sort(separators.begin(), separators.end());
    QCOMPARE(separators.count(), components.count() - 1);
    for (int i = 0; i < separators.count(); ++i)
        QVERIFY(components[i] < separators[i] && separators[i] < components[i + 1]);
}

void PrepaidLayoutTest::gridHasItsMeasures()
{
    configure(Account());
    make();
    QCOMPARE(grid()->horizontalSpacing(), 6);
    QCOMPARE(grid()->verticalSpacing(), 0);
    QCOMPARE(grid()->columnMinimumWidth(0), 80);
    QCOMPARE(grid()->columnMinimumWidth(1), 230);
    const int rows = 2 + 1 + 3 + 1 + 1 + 1 + 1; // including three separators
    for (int row = 0; row < rows; ++row)
        QCOMPARE(grid()->rowMinimumHeight(row), 20);
    QCOMPARE(grid()->rowCount(), rows + 1); // plus a row for the Close button
    QCOMPARE(dialog()->GetSize(), grid()->sizeHint());
    QVERIFY(dialog()->findChild<QLayout *>(QStringLiteral("USSDUIPlugin_CloseBtn_Layout")));
}

void PrepaidLayoutTest::withoutAnyComponentThereIsTheCloseButton()
{
    writeConfig(QByteArray());
    expectWarning("XML File is not opened");
    open();
    QCOMPARE(visibleRoles(), QStringList() << QStringLiteral("CloseButton"));
    QVERIFY(closeButton()->hasFocus());
}

void PrepaidLayoutTest::positionsAreLoggedInLinesOfTheirOwn()
{
    Account account;
    account.msisdn = msisdnItem(7);
    configure(account);
    make();
    const QStringList lines = logLines().filter(QStringLiteral("position = "));
    QCOMPARE(lines, QStringList() << QStringLiteral("position = 0 component=0")
                                  << QStringLiteral("position = 1 component=1")
                                  << QStringLiteral("position = 2 component=2")
                                  << QStringLiteral("position = 7 component=3"));
}

void PrepaidLayoutTest::embeddedDialogHasNoCloseButton()
{
    configure(Account());
    make(PAID_TYPE_PREPAID, WINDOW_MODEL_EMBEDDED);
    QVERIFY(!closeButton()->isVisible());
}

void PrepaidLayoutTest::sizeBeforeInitIsInvalid()
{
    USSDDlg dialog;
    QCOMPARE(dialog.GetSize(), QSize(-1, -1));
    dialog.SetLanguage();
    dialog.MyDoModal(PAID_TYPE_PREPAID);
}

// ---- the link --------------------------------------------------------------------------------

void PrepaidLayoutTest::linkIsThatOfTheConfiguration_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QString>("markup");
    QTest::newRow("without a scheme")
        << QByteArray("a.example")
        << QStringLiteral("<a href=\"http://a.example\">http://a.example</a>");
    QTest::newRow("capital https")
        << QByteArray(" HTTPS://a.example ")
        << QStringLiteral("<a href=\"HTTPS://a.example\">HTTPS://a.example</a>");
    QTest::newRow("empty") << QByteArray(" ")
                           << QStringLiteral("<a href=\"about:blank\">about:blank</a>");
    QTest::newRow("markup")
        << QByteArray("a?x=1&amp;y=&lt;b&gt;%2")
        << QStringLiteral(
               "<a href=\"http://a?x=1&amp;y=&lt;b&gt;%2\">http://a?x=1&amp;y=&lt;b&gt;%2</a>");
}

void PrepaidLayoutTest::linkIsThatOfTheConfiguration()
{
    QFETCH(QByteArray, url);
    Account account;
    account.online = onlineItem(2, url);
    configure(account);
    make();
    QTEST(link()->text(), "markup");
    QVERIFY(link()->openExternalLinks());
    QCOMPARE(link()->textFormat(), Qt::RichText);
    QVERIFY(link()->textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard));
}

void PrepaidLayoutTest::longLinkIsCutAndTold()
{
    const QByteArray url = "https://www.example.com/" + QByteArray(200, 'x') + "&amp;y";
    Account account;
    account.online = onlineItem(2, url);
    configure(account);
    make();
    QVERIFY(link()->sizeHint().width() <= 320);
    QVERIFY(link()->text().contains(QChar(0x2026)));
    QVERIFY(link()->toolTip().contains(QString::fromLatin1(url)));
    QVERIFY(link()->text().startsWith(QLatin1String("<a href=\"") + QString::fromLatin1(url)));
}

/// Tests that an address that just fits is shown completely, and that an address that is one
/// character too long is elided to 300 pixels.
void PrepaidLayoutTest::linkIsCutAt300PixelsOfTheApplicationsFont()
{
    const QFontMetrics metrics(QApplication::font());
    QString fits = QStringLiteral("http://");
    while (metrics.horizontalAdvance(fits + QLatin1Char('i')) <= 300)
        fits += QLatin1Char('i');
    const QString tooLong = fits + QLatin1Char('i');
    for (const QString &url : {fits, tooLong}) {
        Account account;
        account.online = onlineItem(2, url.toLatin1());
        configure(account);
        USSDLogic::Destroy(); // makes make() read the configuration again
        make();
        const QString shown = metrics.elidedText(url, Qt::ElideRight, 300);
        QCOMPARE(shown == url, url == fits);
        QVERIFY(link()->text().contains(QLatin1Char('>') + shown + QLatin1String("</a>")));
    }
}

void PrepaidLayoutTest::codesReadFromLeftToRightInArabic()
{
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("ar")));
    configure(Account());
    open();
    QCOMPARE(chargeEdit()->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(link()->layoutDirection(), Qt::LeftToRight);
    networkSays(QStringLiteral("*111#"));
    const QTextBlock block = balanceBox()->document()->firstBlock();
    QCOMPARE(block.textDirection(), Qt::LeftToRight);
    const QTextLine line = block.layout()->lineAt(0);
    QVERIFY(line.cursorToX(0) < line.cursorToX(5));
}

void PrepaidLayoutTest::codesAmongArabicLettersReadFromLeftToRightToo()
{
    configure(Account());
    open();
    networkSays(QStringLiteral("اطلب *111# الآن"));
    QTextEdit *box = balanceBox();
    const QTextBlock block = box->document()->firstBlock();
    const QTextLine line = block.layout()->lineAt(0);
    const int star = block.text().indexOf(QLatin1Char('*'));
    const auto leftEdge = [&line](int position) {
        return line.glyphRuns(position, 1).value(0).positions().value(0).x();
    };
    QVERIFY(leftEdge(star) < leftEdge(star + 1));
    QVERIFY(leftEdge(star + 1) < leftEdge(star + 4));
    box->selectAll();
    box->copy();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("اطلب *111# الآن"));
}

// ---- keyboard and screen readers -------------------------------------------------------------

QStringList PrepaidLayoutTest::tabOrder()
{
    QStringList roles;
    QWidget *const first = frame()->focusWidget();
    do {
        roles << nameOf(frame()->focusWidget());
        QTest::keyClick(frame()->focusWidget(), Qt::Key_Tab);
    } while (frame()->focusWidget() != first && roles.count() < 20);
    roles.removeDuplicates(); // both the link and its label can have the focus
    return roles;
}

void PrepaidLayoutTest::tabKeyFollowsTheReadingOrder()
{
    Account account;
    account.msisdn = msisdnItem(-1);
    configure(account);
    make();
    QTest::keyClicks(chargeEdit(), QStringLiteral("123456789012")); // enables the button
    msisdnBox()->setFocus();
    QCOMPARE(tabOrder(),
             QString::fromLatin1("MSISDNStatusTextEdit MSISDNUpdateButton BalanceStatusTextEdit "
                                 "BalanceUpdateButton ChargeEdit ChargeActivateButton "
                                 "ActivateStatusTextEdit OnlineURL CloseButton")
                 .split(QLatin1Char(' ')));
}

void PrepaidLayoutTest::withoutEntryTheFocusIsOnClose()
{
    Account account;
    account.charge.clear();
    configure(account);
    open();
    QVERIFY(closeButton()->hasFocus());
}

void PrepaidLayoutTest::fieldsHaveNamesForScreenReaders()
{
    configure(Account());
    make();
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("de")));
    dialog()->SetLanguage();
    QCOMPARE(balanceBox()->accessibleName(), text("IDS_STATIC_MYBALANCE"));
    QCOMPARE(balanceBox()->accessibleDescription(), text("IDS_STATIC_INFO"));
    QCOMPARE(chargeEdit()->accessibleName(), text("IDS_STATIC_PIN"));
    QCOMPARE(activateBox()->accessibleName(), text("IDS_STATIC_PIN"));
    QCOMPARE(link()->accessibleName(), text("IDS_STATIC_ONLINEREFILL"));
    QCOMPARE(link()->accessibleDescription(), QStringLiteral("https://www.example.com/top-up"));
    QCOMPARE(msisdnBox()->accessibleName(), text("IDS_STATIC_MSISSDN"));
    QCOMPARE(balanceButton()->accessibleDescription(), text("IDS_STATIC_MYBALANCE"));
    QCOMPARE(activateButton()->accessibleDescription(), text("IDS_STATIC_PIN"));
    QCOMPARE(msisdnButton()->accessibleDescription(), text("IDS_STATIC_MSISSDN"));
}

void PrepaidLayoutTest::labelsArePlainTextAndBuddies()
{
    configure(Account());
    make();
    const QHash<QString, QWidget *> buddies = {{QStringLiteral("BalanceLabel"), balanceBox()},
                                               {QStringLiteral("ChargeLabel"), chargeEdit()},
                                               {QStringLiteral("OnlineChargeLabel"), link()},
                                               {QStringLiteral("MSISDNLabel"), msisdnBox()},
                                               {QStringLiteral("BalanceInfoLabel"), nullptr}};
    for (auto it = buddies.begin(); it != buddies.end(); ++it) {
        const QLabel *label = part<QLabel>(it.key().toLatin1().constData());
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->buddy(), it.value());
    }
}

void PrepaidLayoutTest::partsHaveTheirNames()
{
    make();
    QCOMPARE(dialog()->objectName(), QStringLiteral("USSDUIPlugin_Pre_PostPaid"));
    const QStringList roles = names(ROLES_OF_BALANCE) + names(ROLES_OF_CHARGE) +
                              names(ROLES_OF_ONLINE) + names(ROLES_OF_MSISDN) + names(LINES);
    for (const QString &role : roles)
        QVERIFY(part<QWidget>(role.toLatin1().constData()));
}

USSD_TEST_MAIN(PrepaidLayoutTest)

#include "prepaid_layout_test.moc"
