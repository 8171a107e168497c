#include "FileCheck.h"

#include <QDir>

#include <initializer_list>

#include "ConfigurationCheck.h"
#include "ElementCheck.h"
#include "FileSchema.h"
#include "InputFile.h"
#include "LayoutCheck.h"
#include "PluginFiles.h"
#include "ProfilesCheck.h"
#include "ReplyPatternCheck.h"
#include "ScenarioCheck.h"
#include "Spelling.h"
#include "TextsCheck.h"
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

bool isXml(const QByteArray &content)
{
    QByteArray start = content.left(1000).trimmed();
    if (start.startsWith("\xef\xbb\xbf")) // byte order mark
        start = start.mid(3);
    return start.startsWith('<');
}

/// Returns true if the document has a section with one of these names or with a similar name.
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

void checkLayoutSection(const XmlElements &elements, CheckReport &report)
{
    const int count = elements.childrenOf(0, XmlName::SMS_USSD).count();
    if (elements.list.at(0).name == QLatin1String(XmlName::SMS_USSD) || count == 1)
        return;
    const QString section = QString::fromLatin1("<%1>").arg(QLatin1String(XmlName::SMS_USSD));
    ElementCheck(elements, report)
        .find(-1, "missing",
              section + QLatin1String(count == 0 ? " is missing: the services window is empty"
                                                 : " is given more than once"));
}

/// Returns true if the finding is a consequence of the XML error: the element is incomplete, or the
/// missing element may follow the error.
bool isConsequenceOfError(const CheckFinding &finding, const XmlElements &elements)
{
    if (finding.rule == QLatin1String("missing") || finding.rule == QLatin1String("button"))
        return true;
    for (int i = 0; i < elements.list.count(); ++i) {
        const XmlElement &element = elements.list.at(i);
        if (!element.isWhole && element.line == finding.line && element.column == finding.column)
            return true;
    }
    return false;
}

void dropConsequencesOfError(const XmlElements &elements, CheckReport &report)
{
    QList<CheckFinding> kept;
    for (int i = 0; i < report.findings.count(); ++i) {
        const CheckFinding &finding = report.findings.at(i);
        const bool isCause =
            finding.rule == QLatin1String("xml") || finding.rule == QLatin1String("name");
        if (isCause || !isConsequenceOfError(finding, elements))
            kept << finding;
    }
    report.findings = kept;
}

/// Checks a document after its misspelt names have been corrected.
void checkSections(const QByteArray &xml, CheckReport &report)
{
    const XmlElements elements = readXmlElements(xml);
    if (report.kind == QLatin1String("profiles")) {
        checkProfiles(elements, report);
    } else {
        checkLayoutSection(elements, report);
        if (report.kind == QLatin1String("configuration"))
            checkConfiguration(elements, report);
        checkLayout(elements, xml, report);
    }
    if (!elements.error.isEmpty())
        dropConsequencesOfError(elements, report);
}

/// Returns the values that the plug-in reads from the original document, including its misspelt
/// names.
QList<CheckTable> tablesOf(const QByteArray &xml, const QString &kind)
{
    if (kind == QLatin1String("profiles"))
        return profileTables(xml);
    if (kind == QLatin1String("configuration"))
        return configurationTables(xml) << layoutTable(xml);
    return QList<CheckTable>() << layoutTable(xml);
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
    const KnownNames known = knownNames(report.kind);
    ElementCheck(elements, report).names(known);
    checkSections(spellingCorrected(content, known), report);
    report.tables = tablesOf(content, report.kind);
}

} // namespace

CheckReport checkContent(const QByteArray &content, const QString &file)
{
    CheckReport report;
    report.file = file;
    if (areReplyPatterns(content)) {
        report.kind = QLatin1String("patterns");
        checkReplyPatterns(content, report);
    } else if (isXml(content)) {
        checkXml(content, report);
    } else if (isTexts(content)) {
        report.kind = QLatin1String("texts");
        checkTexts(content, report);
    } else if (content.contains('[')) {
        report.kind = QLatin1String("scenario");
        checkScenario(content, report);
    } else {
        report.error =
            QLatin1String("this is neither XML nor a scenario file nor a file of reply patterns");
    }
    sortFindings(report);
    return report;
}

QList<CheckReport> checkPath(const QString &path)
{
    QStringList files;
    const QDir plugin(path + PluginFiles::FOLDER);
    const QStringList names = plugin.entryList(
        QStringList() << QLatin1String("*.xml") << QLatin1String("ussdtexts.ini"), QDir::Files);
    for (int i = 0; i < names.count(); ++i)
        files << path + PluginFiles::FOLDER + QLatin1Char('/') + names.at(i);
    const QStringList scenarios =
        QDir(path).entryList(QStringList() << QLatin1String("*.scenario"), QDir::Files);
    for (int i = 0; i < scenarios.count(); ++i)
        files << path + QLatin1Char('/') + scenarios.at(i);
    QList<CheckReport> reports;
    for (int i = 0; i < files.count(); ++i)
        reports << checkFile(files.at(i));
    return reports.isEmpty() ? QList<CheckReport>() << checkFile(path) : reports;
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
