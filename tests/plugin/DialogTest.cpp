#include "DialogTest.h"

#include "Change.h"
#include "fake_tksv.h"
#include "Languages.h"

namespace
{

const int DESCRIPTION_HEIGHT = 112; // distinguishes two labels without object names

} // namespace

void DialogTest::tearDown()
{
    delete m_dialog;
    m_page.reset();
    PluginTest::tearDown();
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void DialogTest::open(WINDOW_MODEL model)
{
    delete m_dialog;
    m_page.reset(model == WINDOW_MODEL_EMBEDDED ? new QWidget : nullptr);
    m_dialog = new USSDGeneralDlg;
    m_dialog->InitDialog(m_page.data(), model);
    if (m_page) {
        m_page->resize(800, 600);
        m_dialog->resize(m_page->size());
        m_page->show();
    }
    m_dialog->show();
    drainEvents();
}

QList<QLabel *> DialogTest::namelessLabels()
{
    QList<QLabel *> labels;
    for (QLabel *label : m_dialog->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (label->objectName().isEmpty())
            labels << label;
    }
    return labels;
}

QLabel *DialogTest::promptLabel()
{
    for (QLabel *label : namelessLabels()) {
        if (label->maximumHeight() != DESCRIPTION_HEIGHT)
            return label;
    }
    return missing<QLabel>("prompt");
}

QLabel *DialogTest::descriptionLabel()
{
    for (QLabel *label : namelessLabels()) {
        if (label->maximumHeight() == DESCRIPTION_HEIGHT)
            return label;
    }
    return missing<QLabel>("description");
}

QList<QPushButton *> DialogTest::presetButtons()
{
    return m_dialog->findChildren<QPushButton *>(USSDGeneralDlg::objectNameOf("PreButton"));
}

void DialogTest::click(QPushButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

void DialogTest::send(const QString &command)
{
    QTest::keyClicks(commandEdit(), command);
    click(sendButton());
}

void DialogTest::networkSays(const QString &text)
{
    fakeSdkRespond(text.toStdU16String());
    QVERIFY(fakeSdkWaitIdle());
    drainEvents();
}

QStringList DialogTest::requests()
{
    QStringList texts;
    for (const std::u16string &command : fakeSdkCommands())
        texts << QString::fromStdU16String(command);
    return texts;
}

QStringList DialogTest::shownLines()
{
    const QString shown = history()->toPlainText();
    return shown.isEmpty() ? QStringList() : shown.split(QLatin1Char('\n'));
}

bool DialogTest::isWaiting()
{
    bool anyPreset = false;
    for (QPushButton *button : presetButtons())
        anyPreset = anyPreset || button->isEnabled();
    return promptLabel()->text() == text("IDS_TOP_PROMPT") && !sendButton()->isEnabled() &&
           !commandEdit()->isEnabled() && !paymentEdit()->isEnabled() && !anyPreset;
}

bool DialogTest::isIdle()
{
    return promptLabel()->text().isEmpty() && !sendButton()->isEnabled() &&
           commandEdit()->isEnabled() && commandEdit()->text().isEmpty() &&
           paymentEdit()->isEnabled() && paymentEdit()->text().isEmpty() && combo()->isEnabled();
}

QString DialogTest::text(const char *key)
{
    return Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String(key));
}

QString DialogTest::sentLine(const QString &command)
{
    return text("IDS_USSD_SEND") + command;
}

QString DialogTest::receivedLine(const QString &reply)
{
    return text("IDS_USSD_RECEIVED") + reply;
}
