#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "CommandTest.h"
#include "ExtendDialog.h"
#include "HostState.h"
#include "IUIPlugin.h"
#include "IUSSD.h"
#include "pages/MessageReader.h"
#include "window/QuestionDialog.h"

using namespace Dashboard;

/** Tests that the user can answer a menu of the network while a plug-in window is modal. */
class QuestionDialogTest : public CommandTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void withoutAFrameThePageIsEnough();
    void theQuestionComesAboveTheFrame();
    void theDialogTakesInputAboveTheFrame();
    void aChoiceAnswersAndClosesTheDialog();
    void endingTheMenuClosesTheDialog();
    void thePutOffQuestionComesBackOnlyIfItChanges();
    void theDialogGoesWithTheFrame();
    void aFrameThatOpensLaterIsCovered();
    void theFramedGeneralWindowNeedsNoDialog();

private:
    QWidget *openFrame();
    void ask(const char *text = "A gigabyte?\n1 Yes\n2 No");
    QList<QPushButton *> choices()
    {
        return m_dialog->findChild<ChoiceButtons *>()->findChildren<QPushButton *>();
    }

    QScopedPointer<QuestionDialog> m_dialog;
};

void QuestionDialogTest::setUp()
{
    CommandTest::setUp();
    HostCore::HostState::setMainWindow(&host());
    m_dialog.reset(new QuestionDialog(&monitor(), &host()));
}

void QuestionDialogTest::tearDown()
{
    m_dialog.reset();
    HostCore::HostState::setMainWindow(nullptr);
    CommandTest::tearDown();
}

QWidget *QuestionDialogTest::openFrame()
{
    plugin().ussd()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    m_dialog->look();
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<ExtendDialog *>(window))
            return window;
    }
    return nullptr;
}

void QuestionDialogTest::ask(const char *text)
{
    fakeSdkRespond(QString::fromLatin1(text).toStdU16String(), 1);
    settle();
}

void QuestionDialogTest::withoutAFrameThePageIsEnough()
{
    ask();
    QCOMPARE(state().kind, Kind::MenuOpen);
    QVERIFY(!m_dialog->isVisible());
}

void QuestionDialogTest::theQuestionComesAboveTheFrame()
{
    QVERIFY(openFrame());
    QVERIFY(!m_dialog->isVisible());
    ask();
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_dialog->findChild<QLabel *>(latin1("Dashboard_QuestionText"))
                ->text()
                .startsWith(latin1("A gigabyte?")));
    QCOMPARE(choices().size(), 2);
}

void QuestionDialogTest::theDialogTakesInputAboveTheFrame()
{
    const QWidget *frame = openFrame();
    QVERIFY(frame && frame->isModal());
    ask();
    QCOMPARE(QApplication::activeModalWidget(), m_dialog.data());
    QLineEdit *field = m_dialog->answerBox()->field();
    // A blocked window would not receive the keys.
    for (const char character : {'p', 'a', 'r', 'i', 's'})
        QTest::keyClick(m_dialog->windowHandle(), character);
    QCOMPARE(field->text(), latin1("paris"));
    QTest::keyClick(m_dialog->windowHandle(), Qt::Key_Return);
    settle();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"paris"});
}

void QuestionDialogTest::aChoiceAnswersAndClosesTheDialog()
{
    const QWidget *frame = openFrame();
    ask();
    QTest::mouseClick(choices().at(1), Qt::LeftButton);
    settle();
    QVERIFY(fakeSdkCommands() == std::vector<std::u16string>{u"2"});
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(frame->isVisible());
}

void QuestionDialogTest::endingTheMenuClosesTheDialog()
{
    openFrame();
    ask();
    QTest::mouseClick(m_dialog->findChild<QPushButton *>(latin1("Dashboard_AnswerEnd")),
                      Qt::LeftButton);
    settle();
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(state().kind, Kind::MenuEnded);
}

void QuestionDialogTest::thePutOffQuestionComesBackOnlyIfItChanges()
{
    openFrame();
    ask();
    QTest::keyClick(m_dialog.data(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(state().kind, Kind::MenuOpen); // Escape does not send anything
    m_dialog->look();
    QVERIFY(!m_dialog->isVisible());
    ask("Another question?\n1 Yes\n2 No");
    QVERIFY(m_dialog->isVisible());
}

void QuestionDialogTest::theDialogGoesWithTheFrame()
{
    QPointer<QWidget> frame = openFrame();
    ask();
    QVERIFY(m_dialog->isVisible());
    frame->close();
    drainEvents();
    m_dialog->look();
    QVERIFY(!m_dialog->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(state().kind, Kind::MenuOpen); // the codes page now shows the menu
}

void QuestionDialogTest::aFrameThatOpensLaterIsCovered()
{
    ask();
    openFrame();
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), m_dialog.data());
}

void QuestionDialogTest::theFramedGeneralWindowNeedsNoDialog()
{
    plugin().plugin()->DoModal();
    drainEvents();
    ask();
    QVERIFY(!m_dialog->isVisible());
}

USSD_TEST_MAIN(QuestionDialogTest)
#include "question_dialog_test.moc"
