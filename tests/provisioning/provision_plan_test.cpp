#include "ProfileXml.h"
#include "ProvisionFiles.h"
#include "UssdCode.h"
#include "UssdTemplate.h"
#include "UssdTest.h"

#include <QBuffer>
#include <QFile>
#include <QXmlStreamReader>

using namespace Formats;
using namespace Provisioning;

/// Tests how an operator's codes are distributed among the windows, and the files that are
/// generated for them.
class ProvisionPlanTest : public UssdTest
{
    Q_OBJECT

private slots:
    void templates_data();
    void templates();
    void longestInputFillsTheCommand();
    void firstUsableCodeGoesIntoTheAccountWindow();
    void topUpWithoutReplacementIsACodeOnly();
    void plainCodesGetButtonsBeforeTwoPaymentButtons();
    void placeholdersSendNothing();
    void messagesBecomeServices();
    void callsAndAnswersAreNoted();
    void networkOfTheSimBecomesAPrefix();
    void nameCannotEndTheComment();
    void profilesHaveTheBytesThatTheEditorWrites();
    void brokenShippedConfigurationIsSaid_data();
    void brokenShippedConfigurationIsSaid();
};

namespace
{
ProviderCode code(const char *text, ProviderCode::Way way = ProviderCode::Ussd)
{
    ProviderCode result;
    result.way = way;
    result.code = latin1(text);
    return result;
}

ProviderCode replaced(const char *text, const char *replacement)
{
    ProviderCode result = code(text);
    result.takesInput = true;
    result.replacement = latin1(replacement);
    return result;
}

ProviderCode message(const char *number, const char *text)
{
    ProviderCode result = code(number, ProviderCode::Sms);
    result.smsText = latin1(text);
    return result;
}

Provider provider(const char *name = "One")
{
    Provider result;
    result.country = latin1("de");
    ProviderName providerName;
    providerName.text = latin1(name);
    result.names << providerName;
    result.networks << latin1("26207") << latin1("26203");
    return result;
}

QStringList shown(const ProvisionPlan &plan)
{
    QStringList codes;
    for (const USSDProfile &profile : plan.profiles) {
        if (profile.showButton)
            codes << profile.value;
    }
    return codes;
}

QByteArray shippedConfiguration()
{
    QFile file(QLatin1String(SHIPPED_DATA_DIR "/USSDPluginConfig.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

void ProvisionPlanTest::templates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("takesInput");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("expected"); // empty if the code cannot be used
    const auto plain = [](const char *text, const char *expected) {
        QTest::newRow(text) << latin1(text) << false << QString() << latin1(expected);
    };
    const auto with = [](const char *text, const char *replacement, const char *expected) {
        QTest::newRow((QByteArray(text) + ' ' + replacement).constData())
            << latin1(text) << true << latin1(replacement) << latin1(expected);
    };
    plain("*101#", "*101#");
    plain("#123#", "#123#");
    plain("*#10#", "*#10#");
    plain("*101*CODE#", ""); // CODE is replaced only if the attribute is set
    plain("*101*%s#", "");
    plain("*101", "");
    plain("101#", "");
    plain("#", "");
    plain("*101#\"", "");
    plain("*101;1#", "");
    with("*103*CODE#", "CODE", "*103*%s#");
    with("#151*PIN#", "PIN", "#151*%s#");
    with("*103*CODE*CODE#", "CODE", "*103*%s*%s#");
    with("*103*CODE#", "code", "");
    with("*103*CODE#", "", "");
    with("*103*CODE#", "COD", "");
    with("*103*CODE#", "*103*CODE#", "");
    with("*103*7777#", "7777", "*103*%s#");
    with("*103*7#7#", "7", "");
    with("*103#", "CODE", "");
    QTest::newRow("91") << latin1("*") + QString(89, QLatin1Char('1')) + latin1("#") << false
                        << QString() << latin1("*") + QString(89, QLatin1Char('1')) + latin1("#");
    QTest::newRow("92") << latin1("*") + QString(90, QLatin1Char('1')) + latin1("#") << false
                        << QString() << QString();
}

void ProvisionPlanTest::templates()
{
    QFETCH(QString, text);
    QFETCH(bool, takesInput);
    QFETCH(QString, replacement);
    QFETCH(QString, expected);
    ProviderCode asked;
    asked.code = text;
    asked.takesInput = takesInput;
    asked.replacement = replacement;
    const UssdTemplate result = ussdTemplate(asked);
    QCOMPARE(result.code, expected);
    QCOMPARE(result.problem.isEmpty(), !expected.isEmpty());
    QCOMPARE(result.takesInput, expected.contains(latin1("%s")));
}

void ProvisionPlanTest::longestInputFillsTheCommand()
{
    QString command = latin1("*103*%s#");
    const int length = longestInput(command);
    command.replace(latin1("%s"), QString(length, QLatin1Char('1')));
    QCOMPARE(command.length(), 91);
    QCOMPARE(longestInput(latin1("*1*%s*%s#")), 43);
    QCOMPARE(longestInput(latin1("*1#")), 0);
}

void ProvisionPlanTest::firstUsableCodeGoesIntoTheAccountWindow()
{
    Provider asked = provider();
    asked.balance << code("bad") << code("*1#") << code("*2#") << code("*1#");
    asked.ownNumber << code("*3#");
    asked.topUp << replaced("*4*X#", "X");
    const ProvisionPlan plan = provisionPlan(asked);
    QCOMPARE(plan.balance, latin1("*1#"));
    QCOMPARE(plan.ownNumber, latin1("*3#"));
    QCOMPARE(plan.topUp, latin1("*4*%s#"));
    QCOMPARE(plan.profiles.count(), 5); // includes a placeholder before the top-up
    QCOMPARE(plan.profiles.at(0).langID, latin1("IDS_PROFILE_BALANCE"));
    QCOMPARE(plan.profiles.at(1).langID, QString());
    QCOMPARE(plan.profiles.at(1).name, latin1("*2#"));
    QCOMPARE(plan.notes.count(), 1);
}

void ProvisionPlanTest::topUpWithoutReplacementIsACodeOnly()
{
    Provider asked = provider();
    asked.topUp << code("*4#");
    const ProvisionPlan plan = provisionPlan(asked);
    QCOMPARE(plan.topUp, QString());
    QCOMPARE(shown(plan), QStringList() << latin1("*4#") << QString() << QString());
}

void ProvisionPlanTest::plainCodesGetButtonsBeforeTwoPaymentButtons()
{
    Provider asked = provider();
    asked.topUp << replaced("*4*X#", "X");
    QCOMPARE(shown(provisionPlan(asked)), QStringList() << latin1("*4*%s#"));
    asked.topUp.clear();
    asked.balance << code("*1#") << code("*2#");
    QCOMPARE(shown(provisionPlan(asked)), QStringList()
                                              << latin1("*1#") << latin1("*2#") << QString()
                                              << QString()); // the list ends with two placeholders
    asked.topUp << replaced("*4*X#", "X");
    QCOMPARE(shown(provisionPlan(asked)),
             QStringList() << latin1("*1#") << latin1("*2#") << QString() << latin1("*4*%s#"));
    asked.topUp << replaced("*5*X#", "X") << replaced("*6*X#", "X");
    QCOMPARE(shown(provisionPlan(asked)), QStringList() << latin1("*1#") << latin1("*2#")
                                                        << latin1("*4*%s#") << latin1("*5*%s#"));
    for (int i = 0; i < 12; ++i)
        asked.balance << code(qPrintable(QString::fromLatin1("*9%1#").arg(i)));
    const ProvisionPlan many = provisionPlan(asked);
    QCOMPARE(shown(many).count(), 11);
    QCOMPARE(shown(many).mid(9), QStringList() << latin1("*4*%s#") << latin1("*5*%s#"));
    QCOMPARE(many.profiles.count(), 17);
    QCOMPARE(many.profiles.at(9).value, latin1("*4*%s#"));
}

void ProvisionPlanTest::placeholdersSendNothing()
{
    Provider asked = provider();
    asked.balance << code("*1#");
    const ProvisionPlan plan = provisionPlan(asked);
    QCOMPARE(plan.profiles.count(), 3);
    for (const USSDProfile &profile : plan.profiles.mid(1)) {
        QCOMPARE(profile.name, placeholderName());
        QVERIFY(profile.value.isEmpty() && profile.langID.isEmpty() && profile.readonly);
    }
}

void ProvisionPlanTest::messagesBecomeServices()
{
    Provider asked = provider();
    asked.balance << message("18258", "SALDO");
    ProvisionPlan plan = provisionPlan(asked);
    QCOMPARE(plan.messages.count(), 1);
    QCOMPARE(plan.messages.at(0).textKey, latin1("IDS_PROFILE_BALANCE"));
    asked.balance << message("18258", "PAKETTI") << message("1", "") << message("1", "A%sB")
                  << message("a", "A") << message("+", "A");
    plan = provisionPlan(asked);
    QCOMPARE(plan.messages.count(), 2);
    QCOMPARE(plan.messages.at(0).textKey, plan.messages.at(0).explanation);
    QVERIFY(plan.messages.at(0).textKey != plan.messages.at(1).textKey);
    QCOMPARE(plan.notes.count(), 4);
}

void ProvisionPlanTest::callsAndAnswersAreNoted()
{
    Provider asked = provider();
    asked.balance << code("800", ProviderCode::Dtmf) << code("4", ProviderCode::UssdResponse);
    QVERIFY(provisionPlan(asked).isEmpty());
    QCOMPARE(provisionPlan(asked).notes.count(), 2);
    asked.balance << code("*100#", ProviderCode::UssdResponse);
    const ProvisionPlan plan = provisionPlan(asked);
    QCOMPARE(shown(plan).value(0), latin1("*100#"));
    QCOMPARE(plan.balance, QString()); // the account window does not support menus
}

void ProvisionPlanTest::networkOfTheSimBecomesAPrefix()
{
    QCOMPARE(provisionPlan(provider(), latin1("26207")).imsiPrefixes,
             QStringList() << latin1("26203") << latin1("26207"));
    QCOMPARE(provisionPlan(provider(), latin1("26299")).imsiPrefixes,
             QStringList() << latin1("26203") << latin1("26207") << latin1("26299"));
}

void ProvisionPlanTest::nameCannotEndTheComment()
{
    Provider asked = provider("--><Prepaid/><!-- & \"");
    asked.balance << code("*1#");
    const ProvisionFiles files = provisionFiles(provisionPlan(asked), shippedConfiguration());
    QCOMPARE(files.error, QString());
    QXmlStreamReader reader(files.configuration);
    QStringList sections;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            sections << reader.name().toString();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(sections.count(latin1("Prepaid")), 1);
}

/// Tests that the generated file is identical to the file that the editor would save, even if the
/// name contains characters that are invalid in XML. Saving without changes must not count as a
/// change.
void ProvisionPlanTest::profilesHaveTheBytesThatTheEditorWrites()
{
    ProvisionPlan plan;
    USSDProfile profile;
    profile.name = QLatin1String("one\rtwo\x01");
    profile.value = latin1("*100#");
    plan.profiles << profile;
    const QByteArray written = provisionFiles(plan, shippedConfiguration()).profiles;
    QVERIFY2(written.contains("<name>one&#13;two</name>"), written.constData());
    QBuffer saved;
    saved.open(QIODevice::WriteOnly);
    ProfileXml::write(saved, plan.profiles);
    QCOMPARE(written, saved.data());
}

void ProvisionPlanTest::brokenShippedConfigurationIsSaid_data()
{
    QTest::addColumn<QByteArray>("shipped");
    QTest::addColumn<QString>("why");
    QTest::newRow("empty") << QByteArray() << latin1("line 1");
    QTest::newRow("cut off") << shippedConfiguration().left(4000) << latin1("line ");
    QTest::newRow("no looks") << QByteArray("<a/>") << latin1("\"send\"");
    QTest::newRow("deep") << QByteArray("<a><send>") + QByteArray("<b>").repeated(1000)
                          << latin1("nested too deeply");
}

void ProvisionPlanTest::brokenShippedConfigurationIsSaid()
{
    QFETCH(QByteArray, shipped);
    QFETCH(QString, why);
    const ProvisionFiles files = provisionFiles(provisionPlan(provider()), shipped);
    QVERIFY2(files.error.contains(why), qPrintable(files.error));
    QVERIFY(files.configuration.isEmpty() && files.profiles.isEmpty());
}

USSD_TEST_MAIN(ProvisionPlanTest)
#include "provision_plan_test.moc"
