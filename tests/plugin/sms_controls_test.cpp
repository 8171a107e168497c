#include <QScreen>

#include "SmsDialogTest.h"

namespace
{

const QSize DECORATION(8, 40); // space for the title bar of a frame

} // namespace

/**
 * Tests the tree and the controls of the USSD-SMS dialog, and how the dialog reads its layout file.
 */
class SmsControlsTest : public SmsDialogTest
{
    Q_OBJECT

private slots:
    // ---- layout file
    void missingFileLeavesAnEmptyDialogWithoutConnections();
    void unreadableFileLeavesAnEmptyDialogWithoutConnections();
    void unknownPluginFolderIsLogged();
    void wholeFileConnectsOnce();
    void brokenFileKeepsItsServicesButHearsNothing();
    void brokenFileStillSendsShortMessages();
    void brokenFileIsLoggedWithItsLine();
    void readerWithoutDeviceFails();
    void readWidgetInfoReadsOneDialogElement();
    void shownServiceWorksOnWhenItsGroupIsReplaced();
    void configurationIsReadAnewOnDemand();
    void brokenFileReadLaterEndsTheConnections();
    void hostileLayout_data();
    void hostileLayout();

    // ---- tree
    void sizeIsThatOfTheFile();
    void sizeIsAsReadAndTheWindowWithinReason_data();
    void sizeIsAsReadAndTheWindowWithinReason();
    void treeStandsWhereTheFileSays();
    void rowsComeInOrderOfTheirNumbers();
    void firstServiceIsSelectedAtFirst();
    void firstRowMadeIsSelectedWhateverItsNumber();
    void treeMadeAnewSelectsItsFirstRow();
    void treeSelectsSingleWholeRows();
    void longEntryCanBeScrolledTo();
    void keysSelectAService();
    void clicksSelectAService();
    void selectionWithoutGroupLeavesTheControls_data();
    void selectionWithoutGroupLeavesTheControls();
    void withoutAnyServiceNothingIsShown();
    void groupOfTheWrongSizeChangesNothing();

    // ---- controls
    void controlsStandWhereTheFileSays();
    void hiddenControlsAreNotShown();
    void hiddenResultLabelIsEmpty();
    void labelsArePlainAndWrapped();
    void idsAreTranslated();
    void validatorFollowsLimitTextAndLength();
    void selectingAgainEmptiesInputAndResult();
    void widgetsHaveNames();
    void tabOrderIsTreeInputButton();
};

// ---- layout file --------------------------------------------------------------------------------

void SmsControlsTest::missingFileLeavesAnEmptyDialogWithoutConnections()
{
    openWith(QByteArray());
    QCOMPARE(timesLogged("InitConfig: return fail for the file doesn't exist."), 1);
    QCOMPARE(m_dialog->GetSize(), QSize(0, 0));
    QCOMPARE(tree()->topLevelItemCount(), 0);
    for (QWidget *control : controls())
        QVERIFY(control->isHidden());
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 0);
    QCOMPARE(receivers(SIGNAL(SmsSendResult(bool, QString, QString))), 0);
    QCOMPARE(receivers(SIGNAL(CanSendSMS(bool))), 0);
}

void SmsControlsTest::unreadableFileLeavesAnEmptyDialogWithoutConnections()
{
    writeConfig(QByteArray());
    // Creates a folder instead of the file, because root can read any file regardless of its
    // permissions.
    QVERIFY(QDir().mkpath(pluginFolder() + latin1("/USSDPluginConfig.xml")));
    open();
    QCOMPARE(timesLogged("InitConfig: return fail for the file can't be open as readonly and text "
                         "mode."),
             1);
    QCOMPARE(tree()->topLevelItemCount(), 0);
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 0);
}

void SmsControlsTest::unknownPluginFolderIsLogged()
{
    // The host treats this value as an empty path.
    qputenv("USSD_PLUGIN_LIBRARY_PATH", "/");
    open();
    QCOMPARE(logLines()
                 .filter(QRegularExpression(latin1("^config file error .*InitConfig : $")))
                 .count(),
             1);
    QCOMPARE(tree()->topLevelItemCount(), 0);
}

void SmsControlsTest::wholeFileConnectsOnce()
{
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 1);
    m_dialog->InitConfig();
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 1);
    QCOMPARE(receivers(SIGNAL(SmsSendResult(bool, QString, QString))), 1);
    QCOMPARE(receivers(SIGNAL(CanSendSMS(bool))), 1);
}

void SmsControlsTest::brokenFileKeepsItsServicesButHearsNothing()
{
    openWith(config().replace("</config>", "</confi>"));
    QCOMPARE(tree()->topLevelItem(0)->childCount(), int(SIX));
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 0);
    select(BALANCE);
    press();
    QCOMPARE(requests(), QStringList()); // not sent, because no signal for the answer is connected
    QCOMPARE(result(), text("IDS_SMS_SEND_FAILED"));
    QVERIFY(isIdle());
}

void SmsControlsTest::brokenFileStillSendsShortMessages()
{
    openWith(config().replace("</config>", "</confi>"));
    select(WEATHER);
    type(latin1("Oslo"));
    press();
    QCOMPARE(smsSent(), 1);
    QCOMPARE(result(), text("USSD_CODE_WAITTING"));
    QVERIFY(isBusy());
}

void SmsControlsTest::brokenFileIsLoggedWithItsLine()
{
    expectWarning("SMSUSSD: line 1: ");
    openWith(config().replace("</config>", "</confi>"));
    QCOMPARE(timesLogged("ReadFile: Read Error: "), 1);
}

void SmsControlsTest::readerWithoutDeviceFails()
{
    QXmlStreamReader reader;
    QVERIFY(!m_dialog->ReadFile(reader));
    QCOMPARE(timesLogged("ReadFile return fail"), 1);
}

void SmsControlsTest::readWidgetInfoReadsOneDialogElement()
{
    select(PREPAID);
    QXmlStreamReader reader("<Dialog>" + group(BARE, NO_INPUT, buttonControl(USSD, "*9#")) +
                            "</Dialog>");
    reader.readNextStartElement();
    m_dialog->ReadWidgetInfo(reader);
    QCOMPARE(reader.tokenType(), QXmlStreamReader::EndElement);
    select(BARE);
    press();
    QCOMPARE(requests(), QStringList() << latin1("*9#"));
}

void SmsControlsTest::shownServiceWorksOnWhenItsGroupIsReplaced()
{
    select(PREPAID);
    const QString caption = captionLabel()->text();
    QXmlStreamReader reader("<Dialog>" +
                            group(PREPAID, NO_INPUT, buttonControl(USSD, "*9#"))
                                .replace("IDS_SMSUSSD_LABEL_NUMBER", "OTHER_CAPTION") +
                            "</Dialog>");
    reader.readNextStartElement();
    m_dialog->ReadWidgetInfo(reader);
    m_dialog->SetLanguage(); // translates all visible texts
    QCOMPARE(captionLabel()->text(), caption);
    QCOMPARE(captionLabel()->geometry(), QRect(170, 60, 310, 20));
    press();
    networkSays(latin1("5 EUR"));
    select(BALANCE);
    select(PREPAID);
    QCOMPARE(captionLabel()->text(), latin1("OTHER_CAPTION"));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*200#") << latin1("*9#"));
}

void SmsControlsTest::configurationIsReadAnewOnDemand()
{
    press();
    writeConfig("<c><SMSUSSD><MainSize width='77' height='88'/><Tree><item name='0' type='root'/>" +
                entry(3) + "</Tree></SMSUSSD></c>");
    m_dialog->InitConfig();
    QCOMPARE(m_dialog->GetSize(), QSize(77, 88));
    QVERIFY(tree()->isEnabled());
    QVERIFY(button()->isHidden());
    select(PREPAID); // the new file does not contain this service
    QVERIFY(button()->isHidden());
    m_dialog->InitTree();
    m_dialog->SetLanguage();
    QCOMPARE(tree()->topLevelItem(0)->childCount(), 1);
    QCOMPARE(tree()->currentItem()->text(0), latin1("SERVICE_3"));
}

void SmsControlsTest::brokenFileReadLaterEndsTheConnections()
{
    writeConfig("<broken");
    m_dialog->InitConfig();
    QCOMPARE(receivers(SIGNAL(responseReceived(int, QString))), 0);
    QCOMPARE(receivers(SIGNAL(SmsSendResult(bool, QString, QString))), 0);
    QCOMPARE(receivers(SIGNAL(CanSendSMS(bool))), 0);
}

void SmsControlsTest::hostileLayout_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("beyond any screen")
        << QByteArray("width='300'") << QByteArray("width='2147483647'");
    QTest::newRow("places beyond any screen")
        << QByteArray("posx='170'") << QByteArray("posx='-2147483648'");
    QTest::newRow("window beyond any screen")
        << QByteArray("width='520' height='360'") << QByteArray("width='999999' height='999999'");
    QTest::newRow("tree beyond any screen") << QByteArray("width='150' height='330'")
                                            << QByteArray("width='2147483647' height='2147483647'");
    QTest::newRow("negative") << QByteArray("height='") << QByteArray("height='-");
    QTest::newRow("million digits")
        << QByteArray("width='120'") << "width='" + QByteArray(1000000, '1') + "'";
    QTest::newRow("text for numbers") << QByteArray("posx='1") << QByteArray("posx='x");
    QTest::newRow("long text id") << QByteArray("'IDS_STR_PROMPT'")
                                  << "'" + QByteArray(20000, 'M') + "'";
    QTest::newRow("long entry id")
        << QByteArray("'SERVICE_3'") << "'" + QByteArray(20000, 'M') + "'";
    QTest::newRow("lonely backslash")
        << QByteArray("<LimitText>0-9<") << QByteArray("<LimitText>\\<");
    QTest::newRow("multiplied pattern")
        << QByteArray("<LimitText>0-9<") << QByteArray("<LimitText>a]|((a{1000}){1000}){1000}|[b<");
    QTest::newRow("long class") << QByteArray("<LimitText>0-9<")
                                << "<LimitText>" + QByteArray(100000, '7') + "<";
    QTest::newRow("endless length")
        << QByteArray("<length>15<") << QByteArray("<length>2147483647<");
    QTest::newRow("negative length") << QByteArray("<length>15<") << QByteArray("<length>-15<");
}

void SmsControlsTest::hostileLayout()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QVERIFY(config().contains(from));
    openWith(config().replace(from, to));
    for (int service = BALANCE; service <= SIX; ++service) {
        tree()->setCurrentItem(row(service));
        drainEvents();
        QTest::keyClicks(input(), latin1("123"));
        QApplication::setLayoutDirection(service % 2 ? Qt::RightToLeft : Qt::LeftToRight);
        m_dialog->SetLanguage();
    }
    QVERIFY(m_frame->width() <= SmsLayoutFile::MAX_WINDOW_SIDE);
    tree()->setCurrentItem(row(BALANCE));
    button()->click();
    networkSays(latin1("still alive"));
    QCOMPARE(result(), latin1("still alive"));
}

// ---- tree ---------------------------------------------------------------------------------------

void SmsControlsTest::sizeIsThatOfTheFile()
{
    QCOMPARE(m_dialog->GetSize(), QSize(520, 360));
    QCOMPARE(m_dialog->width(), 520);
}

void SmsControlsTest::sizeIsAsReadAndTheWindowWithinReason_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("window");
    QTest::newRow("huge") << 999999 << 2147483647 << QSize(4096, 4096);
    QTest::newRow("negative") << -5 << -2147483647 - 1 << QSize(0, 0);
    QTest::newRow("none") << 0 << 0 << QSize(0, 0);
}

void SmsControlsTest::sizeIsAsReadAndTheWindowWithinReason()
{
    QFETCH(int, width);
    QFETCH(int, height);
    openWith(config().replace("width='520' height='360'", "width='" + QByteArray::number(width) +
                                                              "' height='" +
                                                              QByteArray::number(height) + "'"));
    QCOMPARE(m_dialog->GetSize(), QSize(width, height));
    QTEST(m_dialog->sizeHint(), "window");
    QFETCH(QSize, window);
    QCOMPARE(CUSSDService::instance()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS), 1);
    QWidget *frame = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget != m_frame.data() && qobject_cast<USSDExtendDialog *>(widget))
            frame = widget;
    }
    QVERIFY(frame);
    const QSize screen = frame->screen()->availableSize();
    const QSize fixed = (window + QSize(0, 20)).boundedTo(screen - DECORATION);
    QCOMPARE(frame->minimumSize(), fixed);
    QCOMPARE(frame->maximumSize(), fixed);
}

void SmsControlsTest::treeStandsWhereTheFileSays()
{
    QCOMPARE(tree()->geometry(), QRect(10, 12, 150, 330));
    QVERIFY(tree()->isHeaderHidden());
}

void SmsControlsTest::rowsComeInOrderOfTheirNumbers()
{
    QCOMPARE(tree()->topLevelItemCount(), 1);
    QTreeWidgetItem *root = tree()->topLevelItem(0);
    QCOMPARE(root->text(0), text("IDS_SMSUSSD_SERVICES"));
    QVERIFY(root->isExpanded());
    QCOMPARE(root->childCount(), int(SIX));
    for (int service = BALANCE; service <= SIX; ++service)
        QCOMPARE(row(service)->text(0), latin1("SERVICE_%1").arg(service));
}

void SmsControlsTest::firstServiceIsSelectedAtFirst()
{
    QCOMPARE(tree()->currentItem(), row(BALANCE));
    QVERIFY(row(BALANCE)->isSelected());
    QVERIFY(button()->isVisible());
    press();
    QCOMPARE(requests(), QStringList() << latin1("*100#"));
}

/// Tests that the first row is selected even if its number is negative. The only exception is the
/// number -1, which means "no entry".
void SmsControlsTest::firstRowMadeIsSelectedWhateverItsNumber()
{
    openWith(config()

                 .replace("</Tree>", entry(-1) + "</Tree>"));
    QCOMPARE(tree()->topLevelItem(0)->child(0)->text(0), latin1("SERVICE_-1"));
    QVERIFY(tree()->selectedItems().isEmpty());
    QVERIFY(button()->isHidden());
    openWith(config().replace("</Tree>", entry(-7) + "</Tree>"));
    QCOMPARE(tree()->currentItem(), tree()->topLevelItem(0)->child(0));
}

void SmsControlsTest::treeMadeAnewSelectsItsFirstRow()
{
    select(PREPAID);
    m_dialog->InitTree();
    m_dialog->SetTreeGeometry();
    QCOMPARE(tree()->currentItem(), row(BALANCE));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*100#"));
}

void SmsControlsTest::treeSelectsSingleWholeRows()
{
    QCOMPARE(tree()->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(tree()->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(tree()->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(tree()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void SmsControlsTest::longEntryCanBeScrolledTo()
{
    const QByteArray shortNames = config().replace("SERVICE_", "S_");
    openWith(shortNames);
    QVERIFY(!tree()->horizontalScrollBar()->isVisible());
    openWith(QByteArray(shortNames).replace("S_3", QByteArray("SERVICE ").repeated(10)));
    QVERIFY(tree()->horizontalScrollBar()->isVisible());
}

void SmsControlsTest::keysSelectAService()
{
    tree()->setFocus();
    QTest::keyClick(tree(), Qt::Key_Down);
    QVERIFY(input()->isVisible()); // the field of the second service
    QTest::keyClick(tree(), Qt::Key_End);
    QTest::keyClick(tree(), Qt::Key_Home); // selects the root
    QTest::keyClick(tree(), Qt::Key_Down);
    QVERIFY(input()->isHidden());
    press();
    QCOMPARE(requests(), QStringList() << latin1("*100#"));
}

void SmsControlsTest::clicksSelectAService()
{
    select(PREPAID);
    press();
    QCOMPARE(requests(), QStringList() << latin1("*200#"));
}

void SmsControlsTest::selectionWithoutGroupLeavesTheControls_data()
{
    QTest::addColumn<int>("service");
    QTest::newRow("root") << 0;
    QTest::newRow("no group") << int(BARE);
    QTest::newRow("four controls") << int(FOUR);
    QTest::newRow("six controls") << int(SIX);
}

void SmsControlsTest::selectionWithoutGroupLeavesTheControls()
{
    QFETCH(int, service);
    select(CALL);
    type(latin1("555"));
    tree()->setCurrentItem(service == 0 ? tree()->topLevelItem(0) : row(service));
    for (QWidget *control : controls())
        QVERIFY(control->isVisible());
    QCOMPARE(input()->text(), latin1("555"));
    press();
    QCOMPARE(requests(), QStringList() << latin1("*140*555#"));
}

void SmsControlsTest::withoutAnyServiceNothingIsShown()
{
    openWith(config().replace("<item name='1' parent='1'>", "<item name='1' parent='99'>"));
    for (QWidget *control : controls())
        QVERIFY(control->isHidden());
    button()->click();
    QCOMPARE(requests(), QStringList());
}

void SmsControlsTest::groupOfTheWrongSizeChangesNothing()
{
    CWidgetItemInfo control;
    QList<CWidgetItemInfo *> group;
    for (int count = 0; count <= 6; ++count, group << &control) {
        if (count != 5)
            QVERIFY(!m_dialog->SetWidgetGeometry(group, false));
    }
    QVERIFY(button()->isVisible());
    press();
    QCOMPARE(requests(), QStringList() << latin1("*100#"));
}

// ---- controls -----------------------------------------------------------------------------------

void SmsControlsTest::controlsStandWhereTheFileSays()
{
    select(CALL);
    QCOMPARE(infoLabel()->geometry(), QRect(170, 10, 300, 40));
    QCOMPARE(captionLabel()->geometry(), QRect(170, 60, 310, 20));
    QCOMPARE(input()->geometry(), QRect(170, 85, 120, 24));
    QCOMPARE(button()->geometry(), QRect(300, 86, 110, 26));
    QCOMPARE(resultLabel()->geometry(), QRect(170, 120, 320, 100));
    for (QWidget *control : controls())
        QVERIFY(control->isVisible());
}

void SmsControlsTest::hiddenControlsAreNotShown()
{
    const QByteArray caption = "<control id='IDS_SMSUSSD_LABEL_NUMBER'";
    openWith(config().replace(caption, caption + " visible='false'"));
    select(BALANCE);
    QVERIFY(input()->isHidden());
    QVERIFY(input()->geometry() != QRect(1, 2, 3, 4));
    QVERIFY(captionLabel()->isHidden());
    QVERIFY(captionLabel()->text().isEmpty());
    QVERIFY(captionLabel()->geometry() != QRect(170, 60, 310, 20));
}

void SmsControlsTest::hiddenResultLabelIsEmpty()
{
    const QByteArray place = "<control posx='170' posy='120' width='320' height='100'/>";
    QByteArray xml = config();
    xml.replace(
        xml.indexOf(place, xml.indexOf("*200#")), place.size(),
        QByteArray(place).replace("<control ", "<control id='IDS_STR_PROMPT' visible='false' "));
    openWith(xml);
    press();
    networkSays(latin1("5 EUR"));
    select(PREPAID);
    QVERIFY(resultLabel()->isHidden());
    QCOMPARE(result(), QString());
    m_dialog->SetLanguage();
    QCOMPARE(result(), QString());
}

void SmsControlsTest::labelsArePlainAndWrapped()
{
    for (QLabel *label : m_dialog->findChildren<QLabel *>()) {
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(label->wordWrap());
    }
    QCOMPARE(m_dialog->findChildren<QLabel *>().count(), 3);
}

void SmsControlsTest::idsAreTranslated()
{
    QCOMPARE(infoLabel()->text(), text("IDS_STR_PROMPT"));
    QCOMPARE(captionLabel()->text(), text("IDS_SMSUSSD_LABEL_NUMBER"));
    QCOMPARE(button()->text(), text("IDS_BUTTON_SEND"));
    QVERIFY(text("IDS_STR_PROMPT") != latin1("IDS_STR_PROMPT"));
    QCOMPARE(m_dialog->windowTitle(), text("IDS_WINDOW_TITLE_SMSUSSD"));
    QCOMPARE(result(), QString());
}

void SmsControlsTest::validatorFollowsLimitTextAndLength()
{
    select(CALL);
    const QtCompat::RegExpValidator *validator =
        dynamic_cast<const QtCompat::RegExpValidator *>(input()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp().pattern(), latin1("[0-9]{0,15}"));
    type(latin1("12a3*45678901234567"));
    QCOMPARE(input()->text(), latin1("123456789012345"));
    select(WEATHER);
    QCOMPARE(validator->regExp().pattern(), latin1(".{0,30}"));
    type(latin1("St. John's"));
    QCOMPARE(input()->text(), latin1("St. John's"));
}

void SmsControlsTest::selectingAgainEmptiesInputAndResult()
{
    select(CALL);
    type(latin1("555"));
    press();
    networkSays(latin1("done"));
    select(FIXED);
    QCOMPARE(input()->text(), QString());
    QCOMPARE(result(), QString());
    QVERIFY(input()->isEnabled());
    QVERIFY(!button()->isEnabled());
}

void SmsControlsTest::widgetsHaveNames()
{
    select(CALL);
    QCOMPARE(m_dialog->objectName(), latin1("USSDUIPlugin_SMSDialog"));
    QCOMPARE(tree()->accessibleName(), text("IDS_WINDOW_TITLE_SMSUSSD"));
    QCOMPARE(input()->accessibleName(), captionLabel()->text());
    QCOMPARE(captionLabel()->buddy(), input());
    for (QWidget *control : controls())
        QVERIFY(control->objectName().startsWith(latin1("USSDUIPlugin_SMSDialog_")));
}

void SmsControlsTest::tabOrderIsTreeInputButton()
{
    select(CALL);
    type(latin1("555"));
    tree()->setFocus();
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused(), static_cast<QWidget *>(input()));
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused(), static_cast<QWidget *>(button()));
    QTest::keyClick(focused(), Qt::Key_Tab);
    QCOMPARE(focused(), static_cast<QWidget *>(tree()));
}

USSD_TEST_MAIN(SmsControlsTest)
#include "sms_controls_test.moc"
