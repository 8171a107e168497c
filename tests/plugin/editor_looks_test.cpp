#include <QLabel>

#include "ProfileEditorTest.h"

/** Tests the appearance of the profile editor and how the general dialog opens it. */
class EditorLooksTest : public ProfileEditorTest
{
    Q_OBJECT

private slots:
    // ---- appearance
    void columnsAndSizesAreFixed();
    void marginsAreFixed();
    void hintIsCompleteInEveryLanguage();
    void cellsAreColouredAndNotSelected();
    void frameHasATitleAndACloseButton();
    void frameInMiniModeKeepsItsFlags();
    void messagesInMiniModeStandOverTheEditor_data();
    void messagesInMiniModeStandOverTheEditor();
    void doubleClickActivatesTheWindow_data();
    void doubleClickActivatesTheWindow();
    void codeReadsLeftToRightInArabic();
    void headsStandWhereTheirColumnsBegin_data();
    void headsStandWhereTheirColumnsBegin();
    void codeIsPaintedLeftToRightAtTheRightInArabic();
    void upAndDownStayInsideTheCell();

    // ---- opened by the general dialog
    void editButtonFollowsTheConfiguration();
    void savedNamesAppearOnTheButtonsAtOnce();
    void hostMayShutDownWhileTheEditorIsOpen_data();
    void hostMayShutDownWhileTheEditorIsOpen();
    void hostMayShutDownWhileTheQuestionIsOpen();
    void hostMayShutDownWhileTheDuplicateMessageIsOpen_data() { waysToLeave(); }
    void hostMayShutDownWhileTheDuplicateMessageIsOpen();
    void hostMayShutDownBeforeTheDuplicateMessageOpens();
};

// ---- appearance ---------------------------------------------------------------------------------

void EditorLooksTest::columnsAndSizesAreFixed()
{
    openEditor();
    QCOMPARE(table()->rowCount(), 100);
    QCOMPARE(table()->columnWidth(0), 177);
    QCOMPARE(table()->columnWidth(1), 177);
    QCOMPARE(table()->rowHeight(50), 19);
    QCOMPARE(table()->height(), 310);
    QWidget *container = find<QWidget>("USSDUIPlugin_ProfileWidget");
    QCOMPARE(container->size(), QSize(420, 440));
    QCOMPARE(container->windowModality(), Qt::WindowModal);
    QCOMPARE(table()->window()->windowTitle(),
             USSDLogic::tr(QStringLiteral("IDC_TITLE_EDITCOMMAND")));
}

void EditorLooksTest::marginsAreFixed()
{
    openEditor();
    const QLayout *column = find<QWidget>("USSDUIPlugin_ProfileWidget")->layout();
    QCOMPARE(column->contentsMargins(), QMargins(20, 32, 20, 5));
    QCOMPARE(column->count(), 3);
    const QLayout *buttons = column->itemAt(2)->layout();
    QVERIFY(buttons);
    QCOMPARE(buttons->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(buttons->alignment(), Qt::AlignRight);
    QCOMPARE(buttons->itemAt(0)->widget(), saveButton());
}

/// Tests that the hint is not cut off in any language.
void EditorLooksTest::hintIsCompleteInEveryLanguage()
{
    for (const QString &language : HostCore::Languages::codes()) {
        QVERIFY(HostCore::Languages::setCurrent(language));
        openEditor();
        const QLabel *hint = find<QLabel>("USSDUIPlugin_ProfileDialog_InfoLabel");
        QVERIFY2(hint->text().contains(QStringLiteral("%s")), qPrintable(language));
        QVERIFY2(hint->heightForWidth(hint->width()) <= hint->height(), qPrintable(language));
    }
}

void EditorLooksTest::cellsAreColouredAndNotSelected()
{
    openEditor();
    QCOMPARE(table()->selectionMode(), QAbstractItemView::NoSelection);
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(table()->horizontalHeaderItem(column)->background().color(), QColor(7, 8, 9));
        QCOMPARE(table()->item(0, column)->background().color(), QColor(1, 2, 3));
        QCOMPARE(table()->item(1, column)->background().color(), QColor(4, 5, 6));
        doubleClick(1, column);
        QTest::keyClick(cellEditor(), Qt::Key_Escape);
        QVERIFY(table()->selectedItems().isEmpty());
    }
    QVERIFY(table()->verticalHeader()->isHidden());
    QVERIFY(!table()->horizontalHeader()->stretchLastSection());
    QCOMPARE(table()->horizontalHeader()->textElideMode(), Qt::ElideRight);
    QCOMPARE(table()->textElideMode(), Qt::ElideRight);
    QVERIFY(!table()->wordWrap());
    QVERIFY(table()->hasMouseTracking());
}

void EditorLooksTest::frameHasATitleAndACloseButton()
{
    openEditor();
    QCOMPARE(table()->window()->parentWidget(), m_mainWindow.data());
    QDialog plain(m_mainWindow.data()); // for comparison, because Qt sets additional flags
    plain.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint |
                         Qt::WindowCloseButtonHint);
    QCOMPARE(table()->window()->windowFlags(), plain.windowFlags());
}

void EditorLooksTest::frameInMiniModeKeepsItsFlags()
{
    HostCore::HostState::setMiniMode(true);
    openEditor();
    QCOMPARE(table()->window()->parentWidget(), m_mainWindow.data());
    const QDialog plain(m_mainWindow.data(), Qt::WindowCloseButtonHint);
    QCOMPARE(table()->window()->windowFlags(), plain.windowFlags());
    QVERIFY(!(plain.windowFlags() & Qt::CustomizeWindowHint));
}

void EditorLooksTest::messagesInMiniModeStandOverTheEditor_data()
{
    QTest::addColumn<bool>("mini");
    QTest::newRow("mini mode") << true;
    QTest::newRow("otherwise") << false;
}

/// Tests that, in mini mode, the editor is the parent of the message about a duplicate and of the
/// message box that asks for confirmation before saving. Otherwise, they have no parent.
void EditorLooksTest::messagesInMiniModeStandOverTheEditor()
{
    QFETCH(bool, mini);
    HostCore::HostState::setMiniMode(mini);
    openEditor();
    QWidget *parent = mini ? find<QWidget>("USSDUIPlugin_ProfileWidget") : nullptr;
    const auto look = [this, parent](const char *buttonKey) {
        whenMessageOpens([this, parent, buttonKey](QMessageBox *box) {
            QCOMPARE(box->parentWidget(), parent);
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->windowTitle(), USSDLogic::tr(QStringLiteral("IDS_PROMPT_CAPTION")));
            press(box, QLatin1String(buttonKey));
        });
    };
    look("IDS_OK");
    type(1, 0, QStringLiteral("Balance"));
    look("IDS_NO");
    saveButton()->click();
    QCOMPARE(m_messages, 2);
}

void EditorLooksTest::doubleClickActivatesTheWindow_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("read-only cell") << 0;
    QTest::newRow("cell") << 1;
    QTest::newRow("empty row") << 5;
}

void EditorLooksTest::doubleClickActivatesTheWindow()
{
    QFETCH(int, row);
    openEditor();
    m_otherWindow.reset(new QWidget);
    m_otherWindow->show();
    QApplication::setActiveWindow(m_otherWindow.data());
    table()->setCurrentCell(row, 0);
    const QPoint centre = table()->visualRect(table()->currentIndex()).center();
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    drainEvents();
    QCOMPARE(QApplication::activeWindow(), table()->window());
}

void EditorLooksTest::codeReadsLeftToRightInArabic()
{
    HostCore::Languages::setCurrent(QStringLiteral("ar"));
    openEditor();
    QCOMPARE(table()->layoutDirection(), Qt::RightToLeft);
    doubleClick(3, 1);
    QCOMPARE(cellEditor()->layoutDirection(), Qt::LeftToRight);
}

void EditorLooksTest::headsStandWhereTheirColumnsBegin_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("fromTheRight");
    QTest::newRow("English") << QStringLiteral("en") << false;
    QTest::newRow("Arabic") << QStringLiteral("ar") << true;
}

/// Tests that each column title is painted at the start of its column. Compares screenshots,
/// because render() does not mirror the header in right-to-left languages.
void EditorLooksTest::headsStandWhereTheirColumnsBegin()
{
    QFETCH(QString, language);
    QFETCH(bool, fromTheRight);
    QVERIFY(HostCore::Languages::setCurrent(language));
    openEditor();
    QHeaderView *header = table()->horizontalHeader();
    QCOMPARE(header->isRightToLeft(), fromTheRight);
    const QImage written = header->grab().toImage();
    for (int column = 0; column < 2; ++column)
        table()->horizontalHeaderItem(column)->setText(QString());
    const QImage blank = header->grab().toImage();
    for (int column = 0; column < 2; ++column) {
        const QRect section(header->sectionViewportPosition(column), 0, header->sectionSize(column),
                            header->height());
        const QRect ink = differenceOf(written, blank, section);
        QVERIFY(!ink.isEmpty());
        const int left = ink.left() - section.left();
        const int right = section.right() - ink.right();
        QVERIFY2((fromTheRight ? right : left) < 10, qPrintable(QString::number(left)));
        QVERIFY2((fromTheRight ? left : right) > 30, qPrintable(QString::number(right)));
        QVERIFY(qAbs(ink.center().y() - section.center().y()) < 4);
    }
    QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

/// Tests that the code *123# is painted with the star on the left, although the language is written
/// from right to left. In the screenshot, the hash is recognised because it extends further down.
void EditorLooksTest::codeIsPaintedLeftToRightAtTheRightInArabic()
{
    QVERIFY(HostCore::Languages::setCurrent(QStringLiteral("ar")));
    openEditor();
    const QRect cell = table()->visualItemRect(table()->item(1, 1));
    const QImage written = table()->viewport()->grab(cell).toImage();
    table()->item(1, 1)->setText(QString());
    const QImage blank = table()->viewport()->grab(cell).toImage();
    const QRect ink = differenceOf(written, blank, blank.rect());
    QVERIFY2(ink.left() > cell.width() / 2, qPrintable(QString::number(ink.left())));
    const int glyph = ink.width() / 6;
    const QRect first = differenceOf(written, blank, QRect(ink.left(), 0, glyph, cell.height()));
    const QRect last =
        differenceOf(written, blank, QRect(ink.right() - glyph, 0, glyph, cell.height()));
    QVERIFY(first.bottom() < last.bottom());
}

void EditorLooksTest::upAndDownStayInsideTheCell()
{
    ProfileLineEdit edit;
    edit.setText(QStringLiteral("*100#"));
    edit.setCursorPosition(2);
    QTest::keyClick(&edit, Qt::Key_Up);
    QCOMPARE(edit.cursorPosition(), 1);
    QTest::keyClick(&edit, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(edit.selectedText(), QStringLiteral("1"));
    QTest::keyClick(&edit, Qt::Key_Delete);
    QCOMPARE(edit.text(), QStringLiteral("*00#"));
}

// ---- opened by the general dialog ---------------------------------------------------------------

void EditorLooksTest::editButtonFollowsTheConfiguration()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QVERIFY(editButton(m_mainWindow.data())->isVisible());
    CUSSDService::Destroy();
    writeConfig(completeConfig().replace("<cmdEdit visible='true'>", "<cmdEdit visible='false'>"));
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QVERIFY(!editButton(m_mainWindow.data())->isVisible());
}

void EditorLooksTest::savedNamesAppearOnTheButtonsAtOnce()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        type(1, 0, QStringLiteral("My menu"));
        answerNextMessage(QStringLiteral("IDS_YES"));
        saveButton()->click();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()), Qt::LeftButton);
    QStringList texts;
    for (QPushButton *button : m_mainWindow->findChildren<QPushButton *>(
             QStringLiteral("USSDUIPlugin_AdvancedDialog_PreButton")))
        texts << button->text();
    QCOMPARE(texts, QStringList() << QStringLiteral("Balance") << QStringLiteral("My menu"));
}

void EditorLooksTest::hostMayShutDownWhileTheEditorIsOpen_data()
{
    QTest::addColumn<bool>("framed");
    QTest::newRow("over the embedded window") << false;
    QTest::newRow("over the framed window") << true;
}

void EditorLooksTest::hostMayShutDownWhileTheEditorIsOpen()
{
    QFETCH(bool, framed);
    QRect rect(0, 0, 640, 560);
    if (framed)
        CUSSDService::instance()->DoModal();
    else
        CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    bool wasOpen = false;
    QTimer::singleShot(0, this, [this, &wasOpen] {
        wasOpen = table() && table()->isVisible();
        CUSSDService::Destroy();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()),
                      Qt::LeftButton); // returns after the editor has closed
    QVERIFY(wasOpen);
    drainEvents();
    QVERIFY(!table());
}

/// Tests that a host may shut the plug-in down while a message box without a parent is open.
void EditorLooksTest::hostMayShutDownWhileTheQuestionIsOpen()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    bool wasOpen = false;
    QTimer::singleShot(0, this, [this, &wasOpen] {
        type(1, 0, QStringLiteral("My menu"));
        QTimer::singleShot(0, this, [&wasOpen] {
            wasOpen = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            CUSSDService::Destroy();
        });
        saveButton()->click();
    });
    QTest::mouseClick(editButton(m_mainWindow.data()),
                      Qt::LeftButton); // returns after the editor has closed
    QVERIFY(wasOpen);
    drainEvents();
    QVERIFY(!table());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(savedProfiles().at(1).name, QStringLiteral("Menu"));
}

void EditorLooksTest::hostMayShutDownWhileTheDuplicateMessageIsOpen()
{
    QFETCH(int, way);
    QFETCH(bool, mini);
#if QT_VERSION >= 0x060000
    // After Return, the delegate reports the end of editing in a later event, when the view no
    // longer exists.
    allowWarning("called with an editor that does not belong to this view");
#endif
    HostCore::HostState::setMiniMode(mini);
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this, way] {
        whenMessageOpens([this](QMessageBox *) { shutDown(); });
        typeAndLeave(1, 0, QStringLiteral("Balance"), way);
    });
    editButton(m_mainWindow.data())->click(); // returns after the editor has closed
    drainEvents();
    QCOMPARE(m_messages, 1);
    QVERIFY(!m_mainWindow);
    QVERIFY(!QApplication::activeModalWidget());
}

void EditorLooksTest::hostMayShutDownBeforeTheDuplicateMessageOpens()
{
    QRect rect(0, 0, 640, 560);
    CUSSDService::instance()->showWindow(m_mainWindow.data(), rect, PAID_TYPE_GENERAL);
    QTimer::singleShot(0, this, [this] {
        typeAndLeave(1, 0, QStringLiteral("Balance"), Tab);
        shutDown();
    });
    editButton(m_mainWindow.data())->click();
    drainEvents(); // a message box would block the test here
    QVERIFY(!m_mainWindow);
}

USSD_TEST_MAIN(EditorLooksTest)
#include "editor_looks_test.moc"
