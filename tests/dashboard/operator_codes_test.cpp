#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTimer>

#include "device/DashboardSettings.h"
#include "device/Situation.h"
#include "PluginFolderChoice.h"
#include "SampleOperators.h"
#include "sim/OperatorCodes.h"
#include "SimTest.h"
#include "window/OperatorChooser.h"

using namespace Dashboard;

namespace
{

const char ALONE[] = "HomeNetwork=99901";
const char SEVERAL[] = "HomeNetwork=99902";
const char SILENT[] = "HomeNetwork=99903";

} // namespace

/**
 * Tests how the dashboard offers and installs the operator's codes, and how the plug-in loads them.
 */
class OperatorCodesTest : public SimTest
{
    Q_OBJECT
protected:
    void setUp() override;

private slots:
    void oneThatFitsIsProposedAndTaken();
    void ofSeveralNoneIsChosenSilently();
    void whoIsAskedChoosesOne();
    void anOperatorWithoutCodesIsNotProposed();
    void aSimWithoutANetworkIsLeftAlone();
    void aDemonstrationLeadsToTheModem();
    void noIsRememberedForTheNetwork();
    void whatWasTakenIsInUseTheNextTime();
    void eachNetworkHasItsOwnCodes();
    void theChoiceCanBeChangedInTheMenu();
    void theShippedCodesCanBeChosenAgain();
    void whatAPersonChangedIsNotTakenAway();
    void whatAPersonChangedIsKeptWhenSetAside();
    void aFolderChosenOutsideStays();
    void anUnreadableDatabaseProposesNothing();

private:
    void offerOperators();
    void useSim(const char *homeNetwork, const char *name = "Other");
    QString notice() { return chooser()->proposal(); }
    OperatorChooser *chooser() { return window().findChild<OperatorChooser *>(); }
    void take() { chooser()->accept(); }
    void openChooser() { action("Dashboard_ActionOperator")->trigger(); }
    void choose(const QString &name);
    QString inUse() { return window().operatorCodes().operatorInUse(); }
    QString configuration() const;
    QString changedFile();
    void answerBox(bool yes);

    QString m_asked; // the text of the last answered message box
};

void OperatorCodesTest::setUp()
{
    QFile::remove(DashboardSettings().file());
    SimTest::setUp();
    openDashboard();
    offerOperators();
    m_asked.clear();
}

void OperatorCodesTest::offerOperators()
{
    OperatorPlaces places;
    places.database = writeFile(QLatin1String("operators.xml"), SAMPLE_OPERATORS);
    places.folders = folder() + QLatin1String("/operators");
    window().operatorCodes().setPlaces(places);
}

void OperatorCodesTest::useSim(const char *homeNetwork, const char *name)
{
    const QByteArray text = QByteArray("[Network]\nDelay=20\nOperator=") + name +
                            "\nIMSI=" + (homeNetwork + qstrlen("HomeNetwork=")) + "0123456789\n" +
                            homeNetwork + "\n[*511#]\nReply=Alone has 5.00.\n";
    QVERIFY(window().useScenario(writeFile(QLatin1String("sim.scenario"), text)));
    drainEvents();
}

void OperatorCodesTest::choose(const QString &name)
{
    QListWidget *list = window().findChild<QListWidget *>(QLatin1String("Dashboard_OperatorList"));
    QVERIFY(list && list->isVisible());
    const QList<QListWidgetItem *> found = list->findItems(name, Qt::MatchStartsWith);
    QCOMPARE(found.size(), 1);
    list->setCurrentItem(found.first());
    QTest::keyClick(list, Qt::Key_Return);
    drainEvents();
}

QString OperatorCodesTest::configuration() const
{
    return HostCore::PluginFolderChoice::current() +
           QLatin1String("/plugins/USSDUIPlugin/USSDPluginConfig.xml");
}

QString OperatorCodesTest::changedFile()
{
    QFile file(configuration());
    if (!file.open(QIODevice::Append) || file.write("<!-- mine -->\n") <= 0)
        qFatal("not written: %s", qPrintable(file.fileName()));
    return file.fileName();
}

/// Answers the next message box as soon as it opens.
void OperatorCodesTest::answerBox(bool yes)
{
    QTimer *timer = new QTimer(&window());
    connect(timer, &QTimer::timeout, this, [this, timer, yes] {
        QMessageBox *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        timer->stop();
        const QPlainTextEdit *view = box->findChild<QPlainTextEdit *>();
        m_asked = view ? view->toPlainText() : box->text();
        box->buttons().value(yes ? 0 : 1)->click();
    });
    timer->start(1);
}

void OperatorCodesTest::oneThatFitsIsProposedAndTaken()
{
    useSim(ALONE, "Alone");
    QVERIFY2(notice().contains(QLatin1String("Alone")), qPrintable(notice()));
    QVERIFY(!offered().contains(QLatin1String("prepaid")));
    take();
    QCOMPARE(inUse(), QLatin1String("Alone"));
    QTRY_VERIFY2(offered().contains(QLatin1String("prepaid")), qPrintable(offered()));
    QVERIFY(notice().isEmpty());
    window().openFrame(0);
    QTRY_VERIFY(frame());
    const QList<QTextEdit *> boxes = frame()->findChildren<QTextEdit *>();
    const auto showsBalance = [&boxes] {
        for (const QTextEdit *box : boxes) {
            if (box->toPlainText().contains(QLatin1String("Alone has 5.00.")))
                return true;
        }
        return false;
    };
    QTRY_VERIFY(showsBalance());
}

void OperatorCodesTest::ofSeveralNoneIsChosenSilently()
{
    useSim(SEVERAL);
    QVERIFY(notice().contains(QLatin1String("Several")));
    take(); // the button opens a dialog first
    QCOMPARE(inUse(), QString());
    QPushButton *ok = window().findChild<QPushButton *>(QLatin1String("Dashboard_OperatorOk"));
    QVERIFY(ok && !ok->isEnabled());
    QTest::keyClick(ok->window(), Qt::Key_Escape);
    drainEvents();
    QCOMPARE(inUse(), QString());
}

void OperatorCodesTest::whoIsAskedChoosesOne()
{
    useSim(SEVERAL);
    take();
    choose(QLatin1String("Second"));
    QCOMPARE(inUse(), QLatin1String("Second"));
    QVERIFY(notice().isEmpty());
}

void OperatorCodesTest::anOperatorWithoutCodesIsNotProposed()
{
    useSim(SILENT, "Silent");
    QCOMPARE(notice(), QString());
}

void OperatorCodesTest::aSimWithoutANetworkIsLeftAlone()
{
    useNetwork("999010123456789");
    drainEvents();
    QCOMPARE(notice(), QString());
}

void OperatorCodesTest::aDemonstrationLeadsToTheModem()
{
    useNetwork("999010123456789");
    disconnect(chooser(), &OperatorChooser::remedyRequested, nullptr, nullptr);
    Remedy wanted = Remedy::None;
    connect(chooser(), &OperatorChooser::remedyRequested, this,
            [&wanted](Remedy remedy) { wanted = remedy; });
    openChooser();
    QMessageBox *box = window().findChild<QMessageBox *>(QLatin1String("Dashboard_NoNetworkBox"));
    QVERIFY(box && box->isVisible());
    QVERIFY(box->text().contains(QLatin1String("codes of its own")));
    QPushButton *wayOut = qobject_cast<QPushButton *>(box->buttons().first());
    QCOMPARE(wayOut->text(), remedyText(Remedy::UseMyModem));
    wayOut->click();
    drainEvents();
    QVERIFY(wanted == Remedy::UseMyModem);
}

void OperatorCodesTest::noIsRememberedForTheNetwork()
{
    DashboardSettings settings;
    DeviceWatcher &device = window().device();
    OperatorCodes codes(&device, &settings);
    OperatorPlaces places;
    places.database = folder() + QLatin1String("/operators.xml");
    places.folders = folder() + QLatin1String("/operators");
    useSim(SEVERAL);
    codes.setPlaces(places);
    QVERIFY(!codes.isDecided());
    codes.decline();
    QVERIFY(codes.isDecided());
    QCOMPARE(settings.operatorCodes(QLatin1String("99902")), QLatin1String("none"));
    useSim(ALONE);
    QVERIFY(!codes.isDecided());
    OperatorCodes later(&device, &settings);
    useSim(SEVERAL);
    later.setPlaces(places);
    QVERIFY(later.isDecided());
}

void OperatorCodesTest::whatWasTakenIsInUseTheNextTime()
{
    useSim(ALONE, "Alone");
    take();
    openDashboard();
    offerOperators();
    drainEvents();
    QCOMPARE(inUse(), QLatin1String("Alone"));
    QCOMPARE(notice(), QString());
    QTRY_VERIFY(offered().contains(QLatin1String("prepaid")));
}

void OperatorCodesTest::eachNetworkHasItsOwnCodes()
{
    useSim(ALONE, "Alone");
    take();
    useSim(SEVERAL);
    QCOMPARE(inUse(), QString());
    take();
    choose(QLatin1String("First"));
    useSim(ALONE, "Alone");
    QCOMPARE(inUse(), QLatin1String("Alone"));
    QCOMPARE(notice(), QString());
    useSim(SEVERAL);
    QCOMPARE(inUse(), QLatin1String("First"));
}

void OperatorCodesTest::theChoiceCanBeChangedInTheMenu()
{
    useSim(SEVERAL);
    chooser()->decline();
    QCOMPARE(notice(), QString());
    for (const char *name : {"First", "Second"}) {
        openChooser();
        choose(QLatin1String(name));
        QCOMPARE(inUse(), QLatin1String(name));
    }
}

void OperatorCodesTest::theShippedCodesCanBeChosenAgain()
{
    useSim(ALONE, "Alone");
    take();
    openChooser();
    choose(QLatin1String("The codes of the demonstration"));
    QCOMPARE(inUse(), QString());
    QCOMPARE(HostCore::PluginFolderChoice::current(), HostCore::PluginFolderChoice::installed());
    QTRY_VERIFY(!offered().contains(QLatin1String("prepaid")));
}

void OperatorCodesTest::whatAPersonChangedIsNotTakenAway()
{
    useSim(SEVERAL);
    take();
    choose(QLatin1String("First"));
    const QString file = changedFile();
    openChooser();
    answerBox(false);
    choose(QLatin1String("Second"));
    QTRY_VERIFY2(m_asked.contains(QLatin1String("USSDPluginConfig.xml")), qPrintable(m_asked));
    QCOMPARE(inUse(), QLatin1String("First"));
    QCOMPARE(configuration(), file);
}

void OperatorCodesTest::whatAPersonChangedIsKeptWhenSetAside()
{
    useSim(SEVERAL);
    take();
    choose(QLatin1String("First"));
    const QString kept = QFileInfo(changedFile()).canonicalFilePath();
    openChooser();
    answerBox(true);
    choose(QLatin1String("Second"));
    QTRY_COMPARE(inUse(), QLatin1String("Second"));
    QFile file(kept);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().endsWith("<!-- mine -->\n"));
}

void OperatorCodesTest::aFolderChosenOutsideStays()
{
    QVERIFY(!OperatorPlaces::ofUser().isFree); // the test has set $USSD_PLUGIN_LIBRARY_PATH
    window().operatorCodes().setPlaces(OperatorPlaces::ofUser());
    useSim(ALONE, "Alone");
    QCOMPARE(notice(), QString());
    answerBox(true);
    openChooser();
    QVERIFY2(m_asked.contains(QLatin1String("USSD_PLUGIN_LIBRARY_PATH")), qPrintable(m_asked));
}

void OperatorCodesTest::anUnreadableDatabaseProposesNothing()
{
    OperatorPlaces places;
    places.database = folder() + QLatin1String("/missing.xml");
    places.folders = folder() + QLatin1String("/operators");
    window().operatorCodes().setPlaces(places);
    useSim(ALONE, "Alone");
    QCOMPARE(notice(), QString());
    answerBox(true);
    openChooser();
    QVERIFY2(m_asked.contains(QLatin1String("mobile-broadband-provider-info")),
             qPrintable(m_asked));
}

USSD_TEST_MAIN(OperatorCodesTest)
#include "operator_codes_test.moc"
