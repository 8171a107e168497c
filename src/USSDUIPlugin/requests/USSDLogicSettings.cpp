/*
 * The functions of USSDLogic that read the configuration file on demand and return its settings.
 * The sections themselves are parsed by PluginConfig.cpp.
 */
#include "USSDLogic.h"

#include <QFile>
#include <QXmlStreamReader>

#include "base/PluginLog.h"
#include "CommonUtils.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "PluginFiles.h"
#include "XmlName.h"

using namespace Formats;

static const char LOG_SOURCE[] = USSD_LOG_SOURCE("USSDLogic.cpp");

namespace
{

bool isPaidType(int paidType)
{
    return static_cast<unsigned int>(paidType) <
           static_cast<unsigned int>(PluginConfig::PAID_TYPES);
}

/// Returns an attribute that all components have, or -1 if `attr` is another attribute.
template <typename Component>
int commonIntAttr(const Component &component, int attr)
{
    if (attr == ATTR_VALUE)
        return component.value ? 1 : 0;
    if (attr == ATTR_POS)
        return component.pos;
    return -1;
}

/// Opens the configuration file and passes its reader to `read`. Logs under the name `function`.
template <typename Read>
void readConfigurationFile(USSDLogic &logic, const char *function, const Read &read)
{
    USSD_LOG_SCOPE_AS(function);
    QXmlStreamReader reader;
    QFile file;
    if (logic.openXMLFile(reader, file))
        read(reader);
    else
        USSD_LOG_NO_EXIT(); // openXMLFile() has logged the reason
}

} // namespace

bool USSDLogic::openXMLFile(QXmlStreamReader &reader, QFile &file)
{
    const QString path =
        PluginFiles::path(CommonUtils::GetPluginLibraryPath(), PluginFiles::CONFIGURATION);
    USSD_LOG(" xmlFilePath = %s", path.toLocal8Bit().constData());
    file.setFileName(path);
    QString problem;
    if (!InputFile::open(file, QIODevice::Text, problem)) {
        if (file.exists())
            USSD_LOG_IMPORTANT(" %s: %s", path.toLocal8Bit().constData(),
                               problem.toLocal8Bit().constData());
        USSD_LOG_IMPORTANT(" Exit: XML File is not opened");
        return false;
    }
    ForwardXml::start(reader, file);
    if (reader.hasError())
        USSD_LOG_IMPORTANT(" %s: %s", path.toLocal8Bit().constData(),
                           reader.errorString().toLocal8Bit().constData());
    return true;
}

void USSDLogic::skipReaderTillString(QXmlStreamReader &reader, QString name)
{
    ForwardXml::skipTo(reader, name);
}

void USSDLogic::load()
{
    readConfigurationFile(
        *this, __func__, [this](QXmlStreamReader &reader) { readConfiguration(reader, m_config); });
}

void USSDLogic::loadSendCharSettings(QXmlStreamReader &reader)
{
    readCharSection(reader, XmlName::SENT_CHAR, m_config.sentChar);
}

void USSDLogic::loadRecvCharSettings(QXmlStreamReader &reader)
{
    readCharSection(reader, XmlName::RECEIVED_CHAR, m_config.receivedChar);
}

void USSDLogic::loadCmdEditSettings(QXmlStreamReader &reader)
{
    readCmdEdit(reader, m_config.cmdEdit);
}

void USSDLogic::loadClearBtnSettings(QXmlStreamReader &reader)
{
    readClearHistory(reader, m_config.clearHistory);
}

void USSDLogic::loadAutoUssdSettings(QXmlStreamReader &reader)
{
    readAutoUSSD(reader, m_config.autoUSSD);
}

void USSDLogic::GetCharSet(_CHAR_SET_COLOR which, Char &out)
{
    readConfigurationFile(*this, __func__, [&](QXmlStreamReader &reader) {
        if (which == CHAR_SET_SEND) {
            loadSendCharSettings(reader);
            out = m_config.sentChar;
        } else if (which == CHAR_SET_RECEIVE) {
            loadRecvCharSettings(reader);
            out = m_config.receivedChar;
        }
    });
}

void USSDLogic::GetClearBtnSetting(ClearHistory &out)
{
    readConfigurationFile(*this, __func__, [&](QXmlStreamReader &reader) {
        loadClearBtnSettings(reader);
        out = m_config.clearHistory;
    });
}

void USSDLogic::GetCmdEditSetting(CmdEdit &out)
{
    readConfigurationFile(*this, __func__, [&](QXmlStreamReader &reader) {
        loadCmdEditSettings(reader);
        out = m_config.cmdEdit;
    });
}

void USSDLogic::GetPrePostDiffer(PrePostDiffer &out)
{
    out = m_config.prePostDiffer;
}

int USSDLogic::GetComponentAttrInt(int paidType, int component, int attr)
{
    USSD_LOG_SCOPE();
    if (!isPaidType(paidType)) {
        USSD_LOG_EXIT(" Exit: invalid paid type");
        return -1;
    }
    switch (component) {
    case COMPONENT_BALANCE:
        return getBalanceIntAttr(paidType, attr);
    case COMPONENT_CHARGE:
        return getChargeIntAttr(paidType, attr);
    case COMPONENT_ONLINE_CHARGE:
        return getOnlineChargeIntAttr(paidType, attr);
    case COMPONENT_MSISDN:
        return getMSISDNIntAttr(paidType, attr);
    default:
        return -1;
    }
}

void USSDLogic::GetComponentAttrStr(int paidType, int component, int attr, QString &out)
{
    USSD_LOG_SCOPE();
    if (!isPaidType(paidType)) {
        USSD_LOG_EXIT(" Exit: invalid paid type");
        return;
    }
    switch (component) {
    case COMPONENT_BALANCE:
        getBalanceStrAttr(paidType, attr, out);
        break;
    case COMPONENT_CHARGE:
        getChargeStrAttr(paidType, attr, out);
        break;
    case COMPONENT_ONLINE_CHARGE:
        getOnlineChargeStrAttr(paidType, attr, out);
        break;
    case COMPONENT_MSISDN:
        getMSISDNStrAttr(paidType, attr, out);
        break;
    default:
        break;
    }
}

int USSDLogic::getBalanceIntAttr(int paidType, int attr)
{
    return commonIntAttr(m_config.balance[paidType], attr);
}

int USSDLogic::getChargeIntAttr(int paidType, int attr)
{
    const Charge &charge = m_config.charge[paidType];
    switch (attr) {
    case ATTR_LENGTH:
        return charge.length;
    case ATTR_MINLENTH:
        return charge.minlenth;
    case ATTR_RETURN_STYLE:
        return charge.returnStyle;
    default:
        return commonIntAttr(charge, attr);
    }
}

int USSDLogic::getOnlineChargeIntAttr(int paidType, int attr)
{
    return commonIntAttr(m_config.onlineCharge[paidType], attr);
}

int USSDLogic::getMSISDNIntAttr(int paidType, int attr)
{
    const MSISDN &msisdn = m_config.msisdn[paidType];
    return attr == ATTR_UPDATE_BUTTON ? msisdn.updateButton : commonIntAttr(msisdn, attr);
}

void USSDLogic::getBalanceStrAttr(int paidType, int attr, QString &out)
{
    if (attr == ATTR_COMMAND)
        out = m_config.balance[paidType].command;
}

void USSDLogic::getChargeStrAttr(int paidType, int attr, QString &out)
{
    if (attr == ATTR_COMMAND)
        out = m_config.charge[paidType].command;
    else if (attr == ATTR_LIMIT_TEXT)
        out = m_config.charge[paidType].limitText;
}

void USSDLogic::getOnlineChargeStrAttr(int paidType, int attr, QString &out)
{
    if (attr == ATTR_URL)
        out = m_config.onlineCharge[paidType].url;
}

void USSDLogic::getMSISDNStrAttr(int paidType, int attr, QString &out)
{
    if (attr == ATTR_COMMAND)
        out = m_config.msisdn[paidType].command;
}

bool USSDLogic::CheckImsiIsValid(QString const &imsi, int &flags)
{
    return matchImsi(m_config.autoUSSD.imsiMap, imsi, flags);
}

bool USSDLogic::IsImsiDynamicMatch()
{
    return m_config.autoUSSD.valid;
}

QString USSDLogic::getProfileShowText(const USSDProfile &profile)
{
    const QString translated = tr(profile.langID);
    return translated.isEmpty() ? profile.name : translated;
}
