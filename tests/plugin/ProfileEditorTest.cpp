#include "ProfileEditorTest.h"

void ProfileEditorTest::setUp()
{
    PluginTest::setUp();
    writeSystemProfiles(profileFile(profileItem("Balance", "*100#", "true") +
                                    profileItem("Menu", "*123#", "false", "true", "IDS_OK")));
    m_mainWindow.reset(new QWidget);
    m_mainWindow->resize(700, 600);
    m_mainWindow->show();
    HostCore::HostState::setMainWindow(m_mainWindow.data());
    m_message.clear();
    m_messages = 0;
}

void ProfileEditorTest::tearDown()
{
    qDeleteAll(findChildren<QTimer *>()); // timers for messages that have not been shown
    m_editor.reset();
    m_otherWindow.reset();
    HostCore::HostState::setMiniMode(false);
    HostCore::Languages::setCurrent(QStringLiteral("en"));
    PluginTest::tearDown();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

void ProfileEditorTest::openEditor()
{
    m_editor.reset(new USSDEditCmd);
    m_editor->InitDialog(m_mainWindow.data());
    table()->window()->show();
}

QString ProfileEditorTest::cell(int row, int column)
{
    const QTableWidgetItem *item = table()->item(row, column);
    return item ? item->text() : QString();
}

QLineEdit *ProfileEditorTest::cellEditor()
{
    return qobject_cast<QLineEdit *>(table()->indexWidget(table()->currentIndex()));
}

void ProfileEditorTest::doubleClick(int row, int column)
{
    table()->scrollTo(table()->model()->index(row, column));
    const QPoint centre = table()->visualRect(table()->model()->index(row, column)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
}

void ProfileEditorTest::type(int row, int column, const QString &text)
{
    doubleClick(row, column);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), text);
    QTest::keyClick(cellEditor(), Qt::Key_Return);
    drainEvents();
}

void ProfileEditorTest::whenMessageOpens(const std::function<void(QMessageBox *)> &act)
{
    QTimer *poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [this, poll, act] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        poll->deleteLater();
        poll->stop();
        ++m_messages;
        // A long message, for example one with a path, is shown in a text view.
        const QPlainTextEdit *longText = box->findChild<QPlainTextEdit *>();
        m_message = longText ? longText->toPlainText() : box->text();
        act(box);
    });
    poll->start(1);
}

void ProfileEditorTest::press(QMessageBox *box, const QString &buttonKey)
{
    const QString text = USSDLogic::tr(buttonKey);
    for (QPushButton *button : box->findChildren<QPushButton *>()) {
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    box->reject();
    QFAIL("the message has no such button");
}

void ProfileEditorTest::answerNextMessage(const QString &buttonKey)
{
    whenMessageOpens([this, buttonKey](QMessageBox *box) { press(box, buttonKey); });
}

void ProfileEditorTest::waysToLeave()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("mini");
    for (bool mini : {false, true}) {
        const char *mode = mini ? ", mini mode" : "";
        QTest::addRow("Tab%s", mode) << int(Tab) << mini;
        QTest::addRow("click on Save%s", mode) << int(ClickOnSave) << mini;
        QTest::addRow("click on another cell%s", mode) << int(ClickOnAnotherCell) << mini;
        QTest::addRow("another window activated%s", mode) << int(AnotherWindow) << mini;
        QTest::addRow("Return%s", mode) << int(Return) << mini;
    }
}

void ProfileEditorTest::typeAndLeave(int row, int column, const QString &text, int way)
{
    // The editor cannot lose the focus unless its window is active.
    QApplication::setActiveWindow(table()->window());
    doubleClick(row, column);
    QVERIFY(cellEditor());
    cellEditor()->selectAll();
    QTest::keyClicks(cellEditor(), text);
    const QModelIndex another = table()->model()->index(0, column);
    switch (way) {
    case Tab:
        return QTest::keyClick(cellEditor(), Qt::Key_Tab);
    case ClickOnSave:
        return QTest::mouseClick(saveButton(), Qt::LeftButton);
    case ClickOnAnotherCell:
        return QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                                 table()->visualRect(another).center());
    case AnotherWindow:
        m_otherWindow.reset(new QWidget);
        m_otherWindow->show();
        return QApplication::setActiveWindow(m_otherWindow.data());
    default:
        return QTest::keyClick(cellEditor(), Qt::Key_Return);
    }
}

void ProfileEditorTest::saveAndAcknowledge()
{
    whenMessageOpens([this](QMessageBox *box) {
        answerNextMessage(QStringLiteral("IDS_OK"));
        press(box, QStringLiteral("IDS_YES"));
    });
    saveButton()->click();
    QCOMPARE(m_messages, 2);
}

void ProfileEditorTest::shutDown()
{
    if (CUSSDService *service = CUSSDService::instance())
        service->unSDKRegisterEvent();
    CUSSDService::Destroy();
    HostCore::HostState::setMainWindow(nullptr);
    m_mainWindow.reset();
}

QList<USSDProfile> ProfileEditorTest::savedProfiles()
{
    QList<USSDProfile> list;
    USSDEditCmd().GetProfileList(list);
    return list;
}
