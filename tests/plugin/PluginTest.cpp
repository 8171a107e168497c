#include "PluginTest.h"

#include <QDir>
#include <QFile>

#include "fake_tksv.h"
#include "requests/USSDLogic.h"
#include "windows/USSDService.h"

namespace
{

void replaceFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    file.remove();
    if (content.isEmpty())
        return;
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

void PluginTest::setUp()
{
    fakeSdkReset();
    qputenv("USSD_PLUGIN_LIBRARY_PATH", QFile::encodeName(folder()));
    QVERIFY(QDir().mkpath(pluginFolder()));
    QVERIFY(QDir().mkpath(userFolder()));
    fakeSdkSetUserDataDirectory(userFolder().toStdU16String());
    writeConfig(completeConfig());
    writeSystemProfiles(profileFile(QByteArray()));
    const ReplyTimes shipped = {30000, 3000};
    USSDLogic::setReplyTimes(shipped);
}

void PluginTest::tearDown()
{
    if (CUSSDService *service = CUSSDService::instance())
        service->unSDKRegisterEvent();
    CUSSDService::Destroy();
    drainEvents();
    fakeSdkReset();
}

QString PluginTest::pluginFolder()
{
    return folder() + QLatin1String("/plugins/USSDUIPlugin");
}

QString PluginTest::userFolder()
{
    return folder() + QLatin1String("/user/");
}

void PluginTest::writeConfig(const QByteArray &xml)
{
    replaceFile(pluginFolder() + QLatin1String("/USSDPluginConfig.xml"), xml);
}

void PluginTest::writeSystemProfiles(const QByteArray &xml)
{
    replaceFile(pluginFolder() + QLatin1String("/ussdsysprofile.xml"), xml);
}

QByteArray PluginTest::completeConfig()
{
    static const char paidItems[] =
        "<item name='Balance' value='true' pos='0'><command>*100#</command></item>"
        "<item name='Charge' value='true' pos='1'><command>*101*%s#</command><length>16</length>"
        "<minlenth>12</minlenth><ReturnStyle>1</ReturnStyle><LimitText>0-9</LimitText></item>"
        "<item name='OnlineCharge' value='true' pos='2'><URL>www.example.com/topup</URL></item>"
        "<item name='MSISDN' value='true' pos='3'><command>*102#</command>"
        "<UpdateButton>1</UpdateButton></item>";
    return QByteArray("<config>"
                      "<PrePostDiffer value='true'><command>*103#</command>"
                      "<ReturnPattern>\"\\d\"</ReturnPattern><style>1</style></PrePostDiffer>"
                      "<Prepaid>") +
           paidItems + "</Prepaid><Postpaid>" + paidItems +
           "</Postpaid>"
           "<send><yHeight>200</yHeight><yOffset>2</yOffset>"
           "<color red='0' green='0' blue='255'/></send>"
           "<recevie><yHeight>240</yHeight><yOffset>3</yOffset>"
           "<color red='255' green='0' blue='16'/></recevie>"
           "<clearHistory visible='true' showConfirmDialog='false'/>"
           "<cmdEdit visible='true'><readonlycolor red='1' green='2' blue='3'/>"
           "<commoncolor red='4' green='5' blue='6'/><headcolor red='7' green='8' blue='9'/>"
           "</cmdEdit>"
           "<autoUSSD valid='true'><item imsi='00101' ussd='Prepaid/Postpaid'/>"
           "<item imsi='0010123' ussd='Advanced'/></autoUSSD>"
           "</config>";
}

QByteArray PluginTest::profileItem(const QByteArray &name, const QByteArray &value,
                                   const QByteArray &readonly, const QByteArray &showButton,
                                   const QByteArray &langID, const QByteArray &desLangID)
{
    return "<item><name>" + name + "</name><value>" + value + "</value><readonly>" + readonly +
           "</readonly><showButton>" + showButton + "</showButton><langID>" + langID +
           "</langID><desLangID>" + desLangID + "</desLangID></item>";
}

QByteArray PluginTest::profileFile(const QByteArray &items)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><tksvdoc type=\"USSDProfile\">" + items +
           "</tksvdoc>";
}
