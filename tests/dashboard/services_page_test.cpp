#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "CommonUtils.h"
#include "HostState.h"
#include "IUSSD.h"
#include "Languages.h"
#include "look/Controls.h"
#include "pages/ActionCard.h"
#include "pages/AppActions.h"
#include "pages/ServicesPage.h"
#include "plugin/LoadedPlugin.h"
#include "plugin/PrivatePluginFolder.h"
#include "plugin/ServiceList.h"
#include "UssdTest.h"

using namespace Dashboard;

namespace
{

/** Records the actions that the page requests. */
class RecordedActions : public AppActions
{
public:
    void showPage(PageId) override {}
    void sendCode(const QString &) override {}
    void runChain(const QString &) override {}
    void typeCode(const QString &) override {}
    void topUp() override {}
    void openAccountWindow() override {}
    void openServicesWindow(int row) override { rows << row; }
    void editCodes() override {}
    void perform(Remedy remedy) override { remedies << remedy; }

    QList<int> rows;
    QList<Remedy> remedies;
};

Situation situation(Situation::Kind kind, bool canSend)
{
    Situation result;
    result.kind = kind;
    result.title = latin1("Title");
    result.text = latin1("Text.");
    result.icon = "lock";
    result.tone = Tone::Warn;
    result.remedies = {Remedy::EnterPin, Remedy::LookAgain};
    result.canSend = canSend;
    return result;
}

} // namespace

/**
 * Tests the service cards, from reading the configuration to selecting a row in the services
 * window.
 */
class ServicesPageTest : public UssdTest
{
    Q_OBJECT
protected:
    void setUp() override;
    void tearDown() override;

private slots:
    void theServicesAreThoseOfTheWindow();
    void whatAServiceAsksForIsRead();
    void damagedServicesAreLeftOut();
    void theCardsAreGrouped();
    void aCardOpensItsRow();
    void theRowIsSelectedInTheRealWindow();
    void aSendingWindowKeepsItsRow();
    void theCardsFollowTheLanguage();
    void withoutServicesThePageSaysSo();
    void aBlockedPageShowsItsWayOut();
    void anOpenMenuBlocksThePage();
    void unknownCodesAreExplained();
    void theColumnsFollowTheWidth();

private:
    QWidget *openWindow();
    ActionCard *card(int row);
    QLabel *label(const char *name) { return m_page->findChild<QLabel *>(latin1(name)); }
    QStringList shownTitles();

    RecordedActions m_actions;
    QScopedPointer<PrivatePluginFolder> m_library;
    QScopedPointer<LoadedPlugin> m_plugin;
    QScopedPointer<ServicesPage> m_page;
};

void ServicesPageTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("en")));
    m_actions = RecordedActions();
    m_page.reset(new ServicesPage(&m_actions));
    m_page->resize(900, 700);
    m_page->show();
}

void ServicesPageTest::tearDown()
{
    m_page.reset();
    m_plugin.reset();
    m_library.reset();
    HostCore::HostState::setShuttingDown(false);
}

ActionCard *ServicesPageTest::card(int row)
{
    return m_page->findChild<ActionCard *>(latin1("Dashboard_Service_%1").arg(row));
}

QWidget *ServicesPageTest::openWindow()
{
    m_plugin.reset(new LoadedPlugin);
    m_plugin->load(LoadedPlugin::installedFile());
    if (!m_plugin->isUsable())
        return nullptr;
    m_plugin->ussd()->DoPrePostPaidModal(PAID_TYPE_USSD_SMS);
    for (QWidget *frame : QApplication::topLevelWidgets()) {
        if (frame->isVisible() && frame->findChild<QTreeWidget *>())
            return frame;
    }
    return nullptr;
}

void ServicesPageTest::theServicesAreThoseOfTheWindow()
{
    const QList<Service> services = readServices(CommonUtils::GetPluginLibraryPath());
    QCOMPARE(services.size(), 12);
    const QWidget *window = openWindow();
    QVERIFY(window);
    const QTreeWidgetItem *root = window->findChild<QTreeWidget *>()->topLevelItem(0);
    QCOMPARE(root->childCount(), 12);
    for (const Service &service : services)
        QCOMPARE(service.name, root->child(service.row)->text(0));
}

void ServicesPageTest::whatAServiceAsksForIsRead()
{
    const QList<Service> services = readServices(CommonUtils::GetPluginLibraryPath());
    QCOMPARE(services.at(0).name, latin1("Data, one day"));
    QCOMPARE(services.at(0).code, latin1("*124*1#"));
    QVERIFY(services.at(0).input == Service::Input::None);
    QCOMPARE(services.at(0).icon, "data");
    QVERIFY(services.at(7).input == Service::Input::Number);
    QVERIFY(!services.at(9).isByCode);
    QCOMPARE(services.at(9).number, latin1("1200"));
    QCOMPARE(services.at(11).icon, "bell");
}

void ServicesPageTest::damagedServicesAreLeftOut()
{
    QVERIFY(readServices(QString()).isEmpty());
    QVERIFY(readServices(folder()).isEmpty());
    QVERIFY(QDir().mkpath(folder() + latin1("/plugins/USSDUIPlugin")));
    const QByteArray control("<control/>");
    const QByteArray button("<control type='ussd'><command>*1#</command></control>");
    const QByteArray whole = control + control + control + button + control;
    writeFile(latin1("plugins/USSDUIPlugin/USSDPluginConfig.xml"),
              "<r><SMSUSSD><Tree><item name='0' parent='0' id='R' type='root'/>"
              "<item name='5' parent='0' id='FIVE'/><item name='1' parent='0' id='ONE'/>"
              "<item name='3' parent='0' id='THREE'/></Tree><Dialog><item parent='5'>" +
                  whole + "</item><item parent='1'>" + control + "</item><item parent='3'>" +
                  whole + "</item></Dialog></SMSUSSD><broken");
    const QList<Service> services = readServices(folder());
    QCOMPARE(services.size(), 2);
    QCOMPARE(services.at(0).row, 1); // the window sorts the services by number
    QCOMPARE(services.at(1).row, 2);
}

QStringList ServicesPageTest::shownTitles()
{
    QStringList texts;
    for (const ServiceGroup *group : m_page->findChildren<ServiceGroup *>()) {
        if (group->isVisible())
            texts << group->findChild<QLabel *>()->text();
    }
    return texts;
}

void ServicesPageTest::theCardsAreGrouped()
{
    QCOMPARE(shownTitles(), (QStringList{latin1("By code"), latin1("By text message")}));
    QVERIFY(card(0)->mapTo(m_page.data(), QPoint()).y() <
            card(9)->mapTo(m_page.data(), QPoint()).y());
    QCOMPARE(card(0)->accessibleName(), latin1("Data, one day"));
    QVERIFY(card(0)->accessibleDescription().contains(latin1("*124*1#")));
    QCOMPARE(card(7)->accessibleDescription(), latin1("asks for a number"));
    QVERIFY(card(9)->accessibleDescription().contains(latin1("1200")));
    m_page->setOperatorName(latin1("Meridian Mobile"));
    QVERIFY(label("Dashboard_ServicesIntro")->text().contains(latin1("of Meridian Mobile.")));
}

void ServicesPageTest::aCardOpensItsRow()
{
    QTest::mouseClick(card(7), Qt::LeftButton);
    card(0)->setFocus();
    QTest::keyClick(card(0), Qt::Key_Space);
    QCOMPARE(m_actions.rows, (QList<int>{7, 0}));
    QCOMPARE(m_page->firstFocus(), card(0));
}

void ServicesPageTest::theRowIsSelectedInTheRealWindow()
{
    const QWidget *window = openWindow();
    QVERIFY(window);
    const QTreeWidget *tree = window->findChild<QTreeWidget *>();
    const QLabel *info = window->findChild<QLabel *>(latin1("USSDUIPlugin_SMSDialog_InfoLabel"));
    for (int row : {3, 0, 11}) {
        QVERIFY(selectServiceInFrame(row));
        QCOMPARE(tree->selectedItems(),
                 (QList<QTreeWidgetItem *>{tree->topLevelItem(0)->child(row)}));
    }
    QVERIFY(info->isVisible());
    QVERIFY(!selectService(window, 12));
    QVERIFY(!selectService(window, -1));
    QVERIFY(!selectService(nullptr, 0));
}

void ServicesPageTest::aSendingWindowKeepsItsRow()
{
    const QWidget *window = openWindow();
    QVERIFY(window && selectService(window, 0));
    window->findChild<QPushButton *>(latin1("USSDUIPlugin_SMSDialog_SendButton"))->click();
    QVERIFY(!window->findChild<QTreeWidget *>()->isEnabled());
    QVERIFY(!selectServiceInFrame(3));
}

void ServicesPageTest::theCardsFollowTheLanguage()
{
    QVERIFY(HostCore::Languages::setCurrent(latin1("de")));
    m_page->retranslate();
    drainEvents(); // deletes the previous cards
    QVERIFY(card(0)->accessibleName() != latin1("Data, one day"));
    QCOMPARE(shownTitles().first(), latin1("Per Code"));
}

void ServicesPageTest::withoutServicesThePageSaysSo()
{
    QVERIFY(!label("Dashboard_ServicesNone")->isVisible());
    m_library.reset(new PrivatePluginFolder);
    QVERIFY(m_library->change(latin1("USSDPluginConfig.xml"), nullptr, "<SMSUSSD>", "<Other>"));
    QVERIFY(m_library->change(latin1("USSDPluginConfig.xml"), nullptr, "</SMSUSSD>", "</Other>"));
    m_page->readServices();
    QCOMPARE(label("Dashboard_ServicesNone")->text(),
             latin1("Your operator has no services here."));
    QVERIFY(label("Dashboard_ServicesNone")->isVisible());
    QVERIFY(shownTitles().isEmpty());
    QVERIFY(!m_page->firstFocus());
}

void ServicesPageTest::aBlockedPageShowsItsWayOut()
{
    m_page->setSituation(situation(Situation::Kind::SimLocked, false));
    QCOMPARE(label("Dashboard_ServicesNoticeTitle")->text(), latin1("Title"));
    QVERIFY(!card(0)->isEnabled());
    QList<QPushButton *> buttons = m_page->findChildren<QPushButton *>();
    // The only button is that of the first remedy.
    QCOMPARE(buttons.size(), 1);
    QCOMPARE(m_page->firstFocus(), buttons.first());
    QTest::mouseClick(buttons.first(), Qt::LeftButton);
    QVERIFY(m_actions.remedies == QList<Remedy>{Remedy::EnterPin});
    m_page->setSituation(situation(Situation::Kind::Ready, true));
    QVERIFY(card(0)->isEnabled());
    QVERIFY(!label("Dashboard_ServicesNoticeTitle")->isVisible());
}

void ServicesPageTest::anOpenMenuBlocksThePage()
{
    m_page->setSituation(situation(Situation::Kind::Ready, true));
    m_page->setMenuOpen(true);
    QVERIFY(!card(0)->isEnabled());
    QCOMPARE(label("Dashboard_ServicesNoticeText")->text(), latin1("End the menu first."));
    m_page->setMenuOpen(false);
    QVERIFY(card(0)->isEnabled());
}

void ServicesPageTest::unknownCodesAreExplained()
{
    m_page->setSituation(situation(Situation::Kind::CodesUnknown, true));
    QVERIFY(label("Dashboard_ServicesNoticeTitle")->isVisible());
    QVERIFY(!label("Dashboard_ServicesNone")->isVisible());
}

void ServicesPageTest::theColumnsFollowTheWidth()
{
    const auto isBeside = [this] { return card(0)->y() == card(1)->y(); };
    drainEvents();
    QVERIFY(isBeside());
    m_page->setForm(Form::Narrow);
    m_page->resize(360, 700);
    drainEvents();
    QVERIFY(!isBeside());
    QVERIFY(card(0)->mapTo(m_page.data(), QPoint(card(0)->width(), 0)).x() <= 360);
}

USSD_TEST_MAIN(ServicesPageTest)
#include "services_page_test.moc"
