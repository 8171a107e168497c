#include "SimTest.h"

#include "device/Scenarios.h"
#include "ExtendDialog.h"
#include "HostState.h"
#include "Languages.h"
#include "sim/SimWindows.h"

using namespace Dashboard;

namespace
{

const struct {
    const char *action;
    const char *name;
} ACTIONS[] = {{"Dashboard_ActionGeneral", "framed"},
               {"Dashboard_ActionPrepaid", "prepaid"},
               {"Dashboard_ActionPostpaid", "postpaid"}};

} // namespace

void SimTest::setUp()
{
    QVERIFY(HostCore::Languages::setCurrent(QLatin1String("en")));
    QVERIFY(Scenarios::use(QString()).isEmpty());
    makeLibrary();
}

void SimTest::makeLibrary()
{
    m_library.reset(new PrivatePluginFolder);
    QVERIFY(m_library->isValid());
}

void SimTest::closeDashboard()
{
    m_plugin.reset();
    m_window.reset();
    m_library.reset();
    HostCore::HostState::setShuttingDown(false);
}

void SimTest::tearDown()
{
    closeDashboard();
    QVERIFY(Scenarios::use(QString()).isEmpty());
}

bool SimTest::configure(const char *anchor, const char *before, const char *after)
{
    return m_library->change(QLatin1String("USSDPluginConfig.xml"), anchor, before, after);
}

void SimTest::openDashboard(DashboardSettings *settings)
{
    m_plugin.reset(new LoadedPlugin);
    m_window.reset(new MainWindow(m_plugin.data(), settings));
    m_window->showPage(PageId::Codes);
    m_window->show();
    const PluginFailure failure = m_window->loadPlugin();
    QVERIFY2(m_plugin->isUsable(), qPrintable(failure.text()));
}

void SimTest::useNetwork(const char *imsi, const char *keys, const char *codes)
{
    const QByteArray text = QByteArray("[Network]\nOperator=Other\nDelay=20\nIMSI=") + imsi + "\n" +
                            keys + "\n" + codes + "\n";
    const QString file = writeFile(QLatin1String("other.scenario"), text);
    if (m_window)
        QVERIFY(m_window->useScenario(file));
    else
        QCOMPARE(Scenarios::use(file), QString());
}

QAction *SimTest::action(const char *name) const
{
    return m_window->findChild<QAction *>(QLatin1String(name));
}

QPushButton *SimTest::button(const char *name) const
{
    return m_window->findChild<QPushButton *>(QLatin1String(name));
}

QString SimTest::offered() const
{
    QStringList names;
    const int windows = m_window->controller().windows();
    if (windows & SIM_WINDOW_GENERAL)
        names << QLatin1String("general");
    for (const auto &each : ACTIONS) {
        if (action(each.action)->isVisible())
            names << QLatin1String(each.name);
    }
    if (windows & SIM_WINDOW_SERVICES)
        names << QLatin1String("services");
    return names.join(QLatin1String(" "));
}

QString SimTest::paidType() const
{
    return m_window->sim().paidTypeText();
}

QWidget *SimTest::frame()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<ExtendDialog *>(widget))
            return widget;
    }
    return nullptr;
}
