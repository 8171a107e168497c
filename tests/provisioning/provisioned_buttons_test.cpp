#include "DialogTest.h"
#include "ProvisionWriter.h"
#include "UssdCode.h"

#include <QFile>
#include <QTest>

using namespace Formats;
using namespace Provisioning;

/// Tests the preset buttons of the general dialog for all operators in the installed database.
class ProvisionedButtonsTest : public DialogTest
{
    Q_OBJECT

protected:
    void setUpClass() override;

private slots:
    void everyCodeHasAButtonThatSendsIt_data();
    void everyCodeHasAButtonThatSendsIt();
    void ownCodeLeavesTheButtonsOfTheOperatorAsTheyAre_data();
    void ownCodeLeavesTheButtonsOfTheOperatorAsTheyAre();

private:
    void provision(const Provider &provider);
    QStringList sentByEnabledButtons();
    QStringList sentWithNumber(const QString &number);
    void checkButtons(const Provider &provider);
};

namespace
{
ProviderDatabase g_database;
QByteArray g_shipped;

const char NUMBER[] = "1234";

/// Returns the codes that a network would accept, with the number inserted if `takesInput` is true.
/// The codes are determined without the code under test.
QStringList usableCodes(const Provider &provider, bool takesInput)
{
    QStringList codes;
    for (const ProviderCode &code : provider.balance + provider.ownNumber + provider.topUp) {
        QString text = code.code;
        if (code.takesInput && !code.replacement.isEmpty())
            text.replace(code.replacement, QLatin1String(NUMBER));
        if (code.way == ProviderCode::Ussd && text.endsWith(QLatin1Char('#')) &&
            code.takesInput == takesInput)
            codes << text;
    }
    codes.removeDuplicates();
    return codes;
}

void addOperatorsWithCodes()
{
    QTest::addColumn<int>("index");
    int count = 0;
    for (int i = 0; i < g_database.providers.count(); ++i) {
        const Provider &provider = g_database.providers.at(i);
        if (usableCodes(provider, false).isEmpty() && usableCodes(provider, true).isEmpty())
            continue;
        const QString row = provider.country + QLatin1Char(' ') + provider.name();
        QTest::newRow(qPrintable(row)) << i;
        ++count;
    }
    QVERIFY(count > 100);
}
} // namespace

void ProvisionedButtonsTest::setUpClass()
{
    g_database = readProviderDatabaseFile(installedProviderDatabase());
    QVERIFY2(g_database.error.isEmpty(), qPrintable(g_database.error));
    g_shipped = contentOf(QLatin1String(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
}

void ProvisionedButtonsTest::provision(const Provider &provider)
{
    const ProvisionFiles files = provisionFiles(provisionPlan(provider), g_shipped);
    QCOMPARE(files.error, QString());
    writeConfig(files.configuration);
    writeSystemProfiles(files.profiles);
}

/// Presses all enabled preset buttons. Returns the codes that were sent.
QStringList ProvisionedButtonsTest::sentByEnabledButtons()
{
    const int before = requests().count();
    const QList<QPushButton *> buttons = presetButtons();
    for (QPushButton *button : buttons) {
        const int sent = requests().count();
        if (button->isEnabled())
            click(button);
        if (requests().count() > sent)
            networkSays(QLatin1String("reply"));
    }
    return requests().mid(before);
}

/// For each disabled preset button, enters the number and presses the button. Returns the codes
/// that were sent.
QStringList ProvisionedButtonsTest::sentWithNumber(const QString &number)
{
    const int before = requests().count();
    QList<QPushButton *> disabled;
    for (QPushButton *button : presetButtons()) {
        if (!button->isEnabled())
            disabled << button;
    }
    for (QPushButton *button : disabled) {
        const int sent = requests().count();
        QTest::keyClicks(paymentEdit(), number);
        click(button);
        if (requests().count() > sent)
            networkSays(QLatin1String("reply"));
        paymentEdit()->clear();
    }
    return requests().mid(before);
}

void ProvisionedButtonsTest::checkButtons(const Provider &provider)
{
    const QStringList balances = provisionPlan(provider).balance.isEmpty()
                                     ? QStringList()
                                     : QStringList() << provisionPlan(provider).balance;
    const QStringList atOnce = sentByEnabledButtons();
    const QStringList withNumber = sentWithNumber(QLatin1String(NUMBER));
    for (const QString &code : balances + usableCodes(provider, false))
        QVERIFY2(atOnce.contains(code), qPrintable(code));
    for (const QString &code : usableCodes(provider, true))
        QVERIFY2(withNumber.contains(code), qPrintable(code));
    for (const QString &code : atOnce + withNumber)
        QVERIFY2(isUssdCode(code), qPrintable(code));
}

void ProvisionedButtonsTest::everyCodeHasAButtonThatSendsIt_data()
{
    addOperatorsWithCodes();
}

void ProvisionedButtonsTest::everyCodeHasAButtonThatSendsIt()
{
    QFETCH(int, index);
    const Provider &provider = g_database.providers.at(index);
    provision(provider);
    open();
    QVERIFY(!presetButtons().isEmpty());
    checkButtons(provider);
}

void ProvisionedButtonsTest::ownCodeLeavesTheButtonsOfTheOperatorAsTheyAre_data()
{
    addOperatorsWithCodes();
}

/// Tests that the user's own code is appended after the operator's codes, so that it becomes the
/// last button.
void ProvisionedButtonsTest::ownCodeLeavesTheButtonsOfTheOperatorAsTheyAre()
{
    QFETCH(int, index);
    const Provider &provider = g_database.providers.at(index);
    provision(provider);
    const QString own = QLatin1String("ussdprofile.xml");
    QFile file(userFolder() + own);
    QVERIFY(QDir().mkpath(userFolder()) && file.open(QIODevice::WriteOnly));
    file.write(profileFile(profileItem("Own", "*999*9#")));
    file.close();
    open();
    checkButtons(provider);
    QCOMPARE(presetButtons().last()->text(), QLatin1String("Own"));
}

USSD_TEST_MAIN(ProvisionedButtonsTest)
#include "provisioned_buttons_test.moc"
