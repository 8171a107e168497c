#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QSignalSpy>

#include "ExtendDialog.h"
#include "ExtendLineEdit.h"
#include "UssdTest.h"

class ExtendDialogTest : public UssdTest
{
    Q_OBJECT
private slots:
    void theCloseIsAnnouncedBeforeTheFrameIsHidden();
    void escapeClosesAsTheCloseButtonDoes();
    void aClosingFrameIsRejectedOnce();
    void theContentMayBeDeletedInsideTheSignal();
    void theFrameMayBeDeletedInsideTheSignal();
    void theContentFillsTheFrame();
    void newContentTakesThePlaceOfTheOld();
    void theSameContentAgainChangesNothing();
    void deletedContentLeavesAUsableFrame();
    void noContentIsHarmless();
    void flagsAndParentAreThoseAskedFor();
    void theLineEditIsALineEdit();
};

void ExtendDialogTest::theCloseIsAnnouncedBeforeTheFrameIsHidden()
{
    ExtendDialog frame;
    frame.show();
    bool visible = false;
    connect(&frame, &ExtendDialog::dlgCloseEvent, this, [&] { visible = frame.isVisible(); });
    QVERIFY(frame.close());
    QVERIFY(visible);
    QVERIFY(!frame.isVisible());
}

void ExtendDialogTest::escapeClosesAsTheCloseButtonDoes()
{
    ExtendDialog frame;
    frame.show();
    QSignalSpy closed(&frame, SIGNAL(dlgCloseEvent()));
    QTest::keyClick(&frame, Qt::Key_A);
    QCOMPARE(closed.count(), 0);
    QTest::keyClick(&frame, Qt::Key_Escape);
    QCOMPARE(closed.count(), 1);
    QVERIFY(!frame.isVisible());
}

void ExtendDialogTest::aClosingFrameIsRejectedOnce()
{
    ExtendDialog frame;
    frame.show();
    QSignalSpy rejected(&frame, SIGNAL(rejected()));
    frame.close();
    QCOMPARE(rejected.count(), 1);
}

void ExtendDialogTest::theContentMayBeDeletedInsideTheSignal()
{
    QPointer<ExtendDialog> frame(new ExtendDialog);
    QPointer<QWidget> content(new QLabel);
    frame->AddMainWidget(content);
    frame->show();
    connect(frame.data(), &ExtendDialog::dlgCloseEvent, this, [&] {
        delete content;
        frame->deleteLater();
    });
    frame->close();
    QVERIFY(!content);
    QTRY_VERIFY(!frame);
}

void ExtendDialogTest::theFrameMayBeDeletedInsideTheSignal()
{
    QPointer<ExtendDialog> frame(new ExtendDialog);
    frame->show();
    connect(frame.data(), &ExtendDialog::dlgCloseEvent, this, [&] { delete frame; });
    frame->close();
    QVERIFY(!frame);
}

void ExtendDialogTest::theContentFillsTheFrame()
{
    ExtendDialog frame;
    QWidget *content = new QWidget;
    frame.setFixedSize(588, 465);
    frame.AddMainWidget(content);
    frame.show();
    QCOMPARE(content->parentWidget(), &frame);
    QCOMPARE(content->geometry(), QRect(0, 0, 588, 465));
}

void ExtendDialogTest::newContentTakesThePlaceOfTheOld()
{
    ExtendDialog frame;
    QWidget *old = new QWidget;
    QWidget *content = new QWidget;
    frame.AddMainWidget(old);
    frame.resize(300, 200);
    frame.show();
    frame.AddMainWidget(content);
    QVERIFY(!old->isVisible());
    QVERIFY(content->isVisible());
    QTRY_COMPARE(content->size(), frame.size());
}

void ExtendDialogTest::theSameContentAgainChangesNothing()
{
    ExtendDialog frame;
    QWidget *content = new QWidget;
    frame.AddMainWidget(content);
    frame.AddMainWidget(content);
    frame.show();
    QVERIFY(content->isVisible());
    QCOMPARE(frame.layout()->count(), 1);
}

void ExtendDialogTest::deletedContentLeavesAUsableFrame()
{
    ExtendDialog frame;
    QWidget *content = new QWidget;
    frame.AddMainWidget(content);
    delete content;
    QWidget *next = new QWidget;
    frame.AddMainWidget(next);
    frame.show();
    QVERIFY(next->isVisible());
    QCOMPARE(frame.layout()->count(), 1);
}

void ExtendDialogTest::noContentIsHarmless()
{
    ExtendDialog frame;
    frame.AddMainWidget(nullptr);
    QCOMPARE(frame.layout()->count(), 0);
}

void ExtendDialogTest::flagsAndParentAreThoseAskedFor()
{
    QWidget parent;
    ExtendDialog frame(&parent, Qt::WindowCloseButtonHint, 1);
    QCOMPARE(frame.parentWidget(), &parent);
    QVERIFY(frame.isWindow());
    QVERIFY(frame.windowFlags() & Qt::WindowCloseButtonHint);
}

void ExtendDialogTest::theLineEditIsALineEdit()
{
    ExtendLineEdit edit;
    QTest::keyClicks(&edit, QLatin1String("*100#"));
    QCOMPARE(edit.text(), QLatin1String("*100#"));
    QCOMPARE(edit.metaObject()->className(), "ExtendLineEdit");
}

USSD_TEST_MAIN(ExtendDialogTest)
#include "extend_dialog_test.moc"
