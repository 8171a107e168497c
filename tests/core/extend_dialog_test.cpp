#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "ExtendLineEdit.h"
#include "QtCompat.h"
#include "UssdTest.h"

namespace
{

const QSize LARGE(3000, 2000); // larger than the screen of the "offscreen" platform

QRect screenRect()
{
    const QWidget widget;
    return QtCompat::availableGeometry(&widget);
}

} // namespace

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
    void aFrameLargerThanTheScreenScrolls_data();
    void aFrameLargerThanTheScreenScrolls();
    void aFrameThatGrowsBeyondTheScreenScrolls();
    void aFrameThatFitsDoesNotScroll();
    void scrolledContentIsReplaced();
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

void ExtendDialogTest::aFrameLargerThanTheScreenScrolls_data()
{
    QTest::addColumn<bool>("isFixed");
    QTest::newRow("frame of a fixed size") << true;
    QTest::newRow("frame with the size of its content") << false;
}

void ExtendDialogTest::aFrameLargerThanTheScreenScrolls()
{
    QFETCH(bool, isFixed);
    ExtendDialog frame;
    QWidget *content = new QWidget;
    if (isFixed)
        frame.setFixedSize(LARGE);
    else
        content->setFixedSize(LARGE);
    CommonUtils::MoveCentre(&frame);
    frame.AddMainWidget(content);
    frame.show();
    drainEvents();
    QVERIFY(screenRect().contains(frame.geometry()));
    QVERIFY(content->isVisible());
    QCOMPARE(content->size(), LARGE);
    QVERIFY(frame.isAncestorOf(content));
    const QScrollArea *area = frame.findChild<QScrollArea *>();
    QVERIFY(area);
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
    QVERIFY(area->horizontalScrollBar()->maximum() > 0);
}

void ExtendDialogTest::aFrameThatGrowsBeyondTheScreenScrolls()
{
    ExtendDialog frame;
    QWidget *content = new QWidget;
    frame.setFixedSize(200, 100);
    frame.AddMainWidget(content);
    frame.show();
    QVERIFY(!frame.findChild<QScrollArea *>());
    // A language change can also make the frame larger after it has been shown.
    for (const QSize &size : {LARGE, LARGE * 2}) {
        frame.setFixedSize(size);
        drainEvents();
        QVERIFY(screenRect().contains(frame.geometry()));
        QCOMPARE(content->size(), size);
    }
}

void ExtendDialogTest::aFrameThatFitsDoesNotScroll()
{
    ExtendDialog frame;
    frame.setFixedSize(588, 465);
    frame.AddMainWidget(new QWidget);
    frame.show();
    drainEvents();
    QVERIFY(!frame.findChild<QScrollArea *>());
    QCOMPARE(frame.size(), QSize(588, 465));
}

void ExtendDialogTest::scrolledContentIsReplaced()
{
    ExtendDialog frame;
    QWidget *old = new QWidget;
    QWidget *next = new QWidget;
    frame.setFixedSize(LARGE);
    frame.AddMainWidget(old);
    frame.show();
    frame.AddMainWidget(old); // no change, because this widget is already shown
    QVERIFY(frame.findChild<QScrollArea *>());
    frame.AddMainWidget(next);
    drainEvents();
    QVERIFY(!frame.findChild<QScrollArea *>());
    QVERIFY(next->isVisible());
    QVERIFY(!old->isVisible());
    QCOMPARE(old->parentWidget(), &frame);
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
