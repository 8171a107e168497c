#include "FileCheck.h"

#include <initializer_list>

#include "ConfigurationCheck.h"
#include "ElementCheck.h"
#include "InputFile.h"
#include "LayoutCheck.h"
#include "ProfilesCheck.h"
#include "ScenarioCheck.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

QStringList listOf(std::initializer_list<const char *> names)
{
    QStringList list;
    for (const char *name : names)
        list << QLatin1String(name);
    return list;
}

QStringList sectionNames()
{
    return listOf({XmlName::PRE_POST_DIFFER, XmlName::PREPAID, XmlName::POSTPAID,
                   XmlName::SENT_CHAR, XmlName::RECEIVED_CHAR, XmlName::CMD_EDIT,
                   XmlName::AUTO_USSD, XmlName::CLEAR_HISTORY});
}

QStringList configurationNames()
{
    return sectionNames() << listOf({XmlName::COMMAND, XmlName::RETURN_PATTERN, XmlName::STYLE,
                                     XmlName::ITEM, XmlName::LENGTH, XmlName::MIN_LENGTH,
                                     XmlName::RETURN_STYLE, XmlName::LIMIT_TEXT, XmlName::URL,
                                     XmlName::UPDATE_BUTTON, XmlName::Y_HEIGHT, XmlName::Y_OFFSET,
                                     XmlName::COLOR, XmlName::READONLY_COLOR, XmlName::COMMON_COLOR,
                                     XmlName::HEAD_COLOR});
}

QStringList layoutNames()
{
    return listOf({XmlName::SMS_USSD, XmlName::MAIN_SIZE, XmlName::TREE_SIZE, XmlName::TREE,
                   XmlName::DIALOG, XmlName::ITEM, XmlName::CONTROL, XmlName::LIMIT_TEXT,
                   XmlName::LENGTH, XmlName::MIN_LENGTH, XmlName::COMMAND, XmlName::NUMBER});
}

bool isXml(const QByteArray &content)
{
    QByteArray start = content.left(1000).trimmed();
    if (start.startsWith("\xef\xbb\xbf")) // byte order mark
        start = start.mid(3);
    return start.startsWith('<');
}

/// Returns true if the document has a section with one of the names, or with a similar name.
bool hasSection(const XmlElements &elements, const QStringList &names)
{
    for (int i = 0; i < elements.list.count(); ++i) {
        const QString &name = elements.list.at(i).name;
        if (names.contains(name) || !likelyName(name, names).isEmpty())
            return true;
    }
    return false;
}

bool isProfiles(const XmlElements &elements)
{
    const QString root = elements.list.value(0).name;
    if (root == QLatin1String(XmlName::PROFILES))
        return true;
    const QList<int> items = elements.childrenOf(0, XmlName::ITEM);
    return !items.isEmpty() && !elements.childrenOf(items.first(), XmlName::VALUE).isEmpty();
}

QString kindOf(const XmlElements &elements)
{
    if (elements.list.isEmpty())
        return QString();
    if (isProfiles(elements))
        return QLatin1String("profiles");
    if (hasSection(elements, sectionNames()))
        return QLatin1String("configuration");
    if (hasSection(elements, listOf({XmlName::SMS_USSD})))
        return QLatin1String("layout");
    return QString();
}

void checkNames(const XmlElements &elements, CheckReport &report)
{
    ElementCheck check(elements, report);
    check.names(configurationNames() + layoutNames());
    if (elements.list.at(0).name == QLatin1String(XmlName::SMS_USSD) ||
        elements.childrenOf(0, XmlName::SMS_USSD).count() == 1)
        return;
    check.find(-1, "missing",
               QLatin1String(elements.childrenOf(0, XmlName::SMS_USSD).isEmpty()
                                 ? "<SMSUSSD> is missing: the services window is empty"
                                 : "<SMSUSSD> is given more than once"));
}

void checkXml(const QByteArray &content, CheckReport &report)
{
    const XmlElements elements = readXmlElements(content);
    report.kind = kindOf(elements);
    if (report.kind.isEmpty()) {
        report.error = elements.error.isEmpty()
                           ? QString::fromLatin1("there is nothing in it that the plug-in reads")
                           : elements.error;
        return;
    }
    if (!elements.error.isEmpty())
        addFinding(report, elements.errorLine, elements.errorColumn, "xml",
                   elements.error + QLatin1String(" The rest of the file is not read."));
    if (elements.isDangerous)
        return;
    if (report.kind == QLatin1String("profiles"))
        return checkProfiles(elements, content, report);
    checkNames(elements, report);
    if (report.kind == QLatin1String("configuration")) {
        checkConfiguration(elements, report);
        report.tables << configurationTables(content);
    }
    checkLayout(elements, content, report);
}

} // namespace

CheckReport checkContent(const QByteArray &content, const QString &file)
{
    CheckReport report;
    report.file = file;
    if (isXml(content)) {
        checkXml(content, report);
    } else if (content.contains('[')) {
        report.kind = QLatin1String("scenario");
        checkScenario(content, report);
    } else {
        report.error = QLatin1String("this is neither XML nor a scenario file");
    }
    sortFindings(report);
    return report;
}

CheckReport checkFile(const QString &path)
{
    CheckReport report;
    report.file = path;
    QByteArray content;
    if (InputFile::read(path, content, report.error))
        return checkContent(content, path);
    return report;
}

} // namespace Tools
