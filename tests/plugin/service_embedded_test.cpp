#include "ServiceTest.h"

/** Tests the general dialog when the service embeds it in a widget of the host. */
class ServiceEmbeddedTest : public ServiceTest
{
    Q_OBJECT

private slots:
    void showWindowPutsTheDialogIntoTheHostsWidget();
    void showPrePostPaidWindowShowsNothingForPrepaid();
    void hideHidesTheEmbeddedDialogOnly();
    void fitSizeBeforeShowWindowDoesNothing();
    void fitSizeMovesAndSizes();
    void fitSizeBeforeAnyWindowMakesNoDialog();
    void fitSizeWithAnotherTypeShownDoesNothing();
    void doModalMakesTheGeneralWindowTheShownOne();
    void showWindowPutsTheFocusIntoTheCommandEdit();
    void embeddedDialogSurvivesHideWithItsHistory();
    void embeddedDialogOutlivesClosingTheFrame();
    void hostThatDeletesItsWidgetCostsNothing();
};

void ServiceEmbeddedTest::showWindowPutsTheDialogIntoTheHostsWidget()
{
    QCOMPARE(service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL), 0);
    QVERIFY(embeddedDialog());
    QVERIFY(embeddedDialog()->isVisible());
    QCOMPARE(embeddedDialog()->geometry(), m_rect);
}

void ServiceEmbeddedTest::showPrePostPaidWindowShowsNothingForPrepaid()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_PREPAID), 0);
    service()->Hide(); // has no effect, because the stored type is not the general window
    QVERIFY(embeddedDialog()->isVisible());
}

void ServiceEmbeddedTest::hideHidesTheEmbeddedDialogOnly()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->DoModal();
    service()->Hide();
    QVERIFY(!embeddedDialog()->isVisible());
    QVERIFY(frame()->isVisible());
}

void ServiceEmbeddedTest::fitSizeBeforeShowWindowDoesNothing()
{
    service()->FitSize(m_rect);
    service()->Hide();
    QVERIFY(!embeddedDialog());
}

void ServiceEmbeddedTest::fitSizeMovesAndSizes()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QRect other(0, 0, 640, 520);
    service()->FitSize(other);
    QCOMPARE(embeddedDialog()->geometry(), other);
}

void ServiceEmbeddedTest::fitSizeBeforeAnyWindowMakesNoDialog()
{
    service()->FitSize(m_rect);
    QVERIFY(fakeSdkCalls().empty()); // the logic object has not been constructed
    for (QWidget *widget : QApplication::allWidgets())
        QVERIFY(!qobject_cast<USSDGeneralDlg *>(widget));
}

void ServiceEmbeddedTest::fitSizeWithAnotherTypeShownDoesNothing()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_POSTPAID);
    QRect other(0, 0, 640, 520);
    service()->FitSize(other);
    QCOMPARE(embeddedDialog()->geometry(), m_rect);
}

void ServiceEmbeddedTest::doModalMakesTheGeneralWindowTheShownOne()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    service()->ShowPrePostPaidWindow(m_mainWindow.data(), m_rect, PAID_TYPE_PREPAID);
    service()->DoModal();
    service()->Hide();
    QVERIFY(!embeddedDialog()->isVisible());
}

void ServiceEmbeddedTest::showWindowPutsTheFocusIntoTheCommandEdit()
{
    QApplication::setActiveWindow(m_mainWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_mainWindow.data()));
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(QApplication::focusWidget(),
             static_cast<QWidget *>(part<QLineEdit>(embeddedDialog(), "USSDCmdEdit")));
    part<QTextEdit>(embeddedDialog(), "History")->setFocus();
    service()->Hide();
    clearLog();
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QCOMPARE(QApplication::focusWidget(),
             static_cast<QWidget *>(part<QLineEdit>(embeddedDialog(), "USSDCmdEdit")));
}

void ServiceEmbeddedTest::embeddedDialogSurvivesHideWithItsHistory()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    sendByHand(embeddedDialog(), QStringLiteral("*1#"));
    service()->Hide();
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QVERIFY(
        part<QTextEdit>(embeddedDialog(), "History")->toPlainText().contains(QLatin1String("*1#")));
}

void ServiceEmbeddedTest::embeddedDialogOutlivesClosingTheFrame()
{
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QPointer<USSDGeneralDlg> embedded(embeddedDialog());
    service()->DoModal();
    frame()->close();
    drainEvents();
    QVERIFY(embedded);
}

void ServiceEmbeddedTest::hostThatDeletesItsWidgetCostsNothing()
{
    QScopedPointer<QWidget> page(new QWidget(m_mainWindow.data()));
    service()->showWindow(page.data(), m_rect, PAID_TYPE_GENERAL);
    page.reset();
    service()->Hide();
    service()->FitSize(m_rect);
    service()->Notify(320, 0, 0);
    service()->showWindow(m_mainWindow.data(), m_rect, PAID_TYPE_GENERAL);
    QVERIFY(embeddedDialog()->isVisible());
}

USSD_TEST_MAIN(ServiceEmbeddedTest)

#include "service_embedded_test.moc"
