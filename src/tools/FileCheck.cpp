#include "FileCheck.h"

#include "ConfigurationCheck.h"
#include "ElementCheck.h"
#include "InputFile.h"
#include "LayoutCheck.h"
#include "ProfilesCheck.h"
#include "ScenarioCheck.h"

namespace
{

QStringList words(const char *blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

QStringList sectionNames()
{
    return words("PrePostDiffer Prepaid Postpaid send recevie cmdEdit autoUSSD clearHistory");
}

QStringList configurationNames()
{
    return sectionNames() << words("command ReturnPattern style item length minlenth ReturnStyle "
                                   "LimitText URL UpdateButton yHeight yOffset color "
                                   "readonlycolor commoncolor headcolor");
}

QStringList layoutNames()
{
    return words("SMSUSSD MainSize TreeSize Tree Dialog item control LimitText length minlenth "
                 "command number");
}

bool isXml(const QByteArray &content)
{
    QByteArray start = content.left(1000).trimmed();
    if (start.startsWith("\xef\xbb\xbf")) // byte order mark
        start = start.mid(3);
    return start.startsWith('<');
}

/// Any section of the name, also misspelt.
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
    if (root == QLatin1String("tksvdoc"))
        return true;
    const QList<int> items = elements.childrenOf(0, "item");
    return !items.isEmpty() && !elements.childrenOf(items.first(), "value").isEmpty();
}

QString kindOf(const XmlElements &elements)
{
    if (elements.list.isEmpty())
        return QString();
    if (isProfiles(elements))
        return QLatin1String("profiles");
    if (hasSection(elements, sectionNames()))
        return QLatin1String("configuration");
    if (hasSection(elements, words("SMSUSSD")))
        return QLatin1String("layout");
    return QString();
}

void checkNames(const XmlElements &elements, CheckReport &report)
{
    ElementCheck check(elements, report);
    check.names(configurationNames() + layoutNames());
    if (elements.list.at(0).name == QLatin1String("SMSUSSD") ||
        elements.childrenOf(0, "SMSUSSD").count() == 1)
        return;
    check.find(-1, "missing",
               QLatin1String(elements.childrenOf(0, "SMSUSSD").isEmpty()
                                 ? "<SMSUSSD> is missing: the services window is empty"
                                 : "<SMSUSSD> stands there more than once"));
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
                   elements.error + QLatin1String(" What is behind this place is not read."));
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
