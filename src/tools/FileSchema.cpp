#include "FileSchema.h"

#include <QXmlStreamWriter>

#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

/** How the parts of a schema rule are combined; see Rule. */
enum Combination { InOrder, AnyOrder, OneOf };

/**
 * A rule describes an element, or only a combination of other rules if `element` is null. `parts`
 * contains the names of rules, separated by blanks. A part that ends with "?" is optional, one that
 * ends with "*" is repeated any number of times, and one that ends with a digit is repeated that
 * number of times. `attributes` contains the names of the attributes and their types. An attribute
 * that ends with "?" is optional.
 */
struct Rule {
    const char *name;
    const char *element;
    const char *attributes;
    const char *text; // the type of the text; empty if the element contains only elements
    Combination combination;
    const char *parts;
};

const char ANY_NAME[] = ""; // the root element may have any name

const Rule RULES[] = {
    // ---- the configuration
    {"configuration", ANY_NAME, "", "", InOrder, "beforeCards autoUSSD"},
    {"beforeCards", nullptr, "", "", AnyOrder, "sections clearHistory SMSUSSD"},
    {"sections", nullptr, "", "", InOrder, "PrePostDiffer Prepaid Postpaid send recevie cmdEdit"},
    {"PrePostDiffer", XmlName::PRE_POST_DIFFER, "value:bool", "", InOrder,
     "command ReturnPattern style"},
    {"ReturnPattern", XmlName::RETURN_PATTERN, "", "text", InOrder, ""},
    {"style", XmlName::STYLE, "", "number", InOrder, ""},
    {"Prepaid", XmlName::PREPAID, "", "", InOrder, "component4"},
    {"Postpaid", XmlName::POSTPAID, "", "", InOrder, "component4"},
    {"component", nullptr, "", "", OneOf, "balance charge onlineCharge msisdn"},
    {"balance", XmlName::ITEM, "name=Balance value:bool pos:number", "", InOrder, "command"},
    {"charge", XmlName::ITEM, "name=Charge value:bool pos:number", "", InOrder,
     "codeWithInput length minlenth ReturnStyle LimitText"},
    {"onlineCharge", XmlName::ITEM, "name=OnlineCharge value:bool pos:number", "", InOrder, "URL"},
    {"msisdn", XmlName::ITEM, "name=MSISDN value:bool pos:number", "", InOrder,
     "command UpdateButton"},
    {"command", XmlName::COMMAND, "", "code", InOrder, ""},
    {"codeWithInput", XmlName::COMMAND, "", "codeWithInput", InOrder, ""},
    {"length", XmlName::LENGTH, "", "number", InOrder, ""},
    {"minlenth", XmlName::MIN_LENGTH, "", "number", InOrder, ""},
    {"ReturnStyle", XmlName::RETURN_STYLE, "", "number", InOrder, ""},
    {"LimitText", XmlName::LIMIT_TEXT, "", "characters", InOrder, ""},
    {"URL", XmlName::URL, "", "text", InOrder, ""},
    {"UpdateButton", XmlName::UPDATE_BUTTON, "", "number", InOrder, ""},
    {"send", XmlName::SENT_CHAR, "", "", InOrder, "yHeight yOffset color"},
    {"recevie", XmlName::RECEIVED_CHAR, "", "", InOrder, "yHeight yOffset color"},
    {"yHeight", XmlName::Y_HEIGHT, "", "fontSize", InOrder, ""},
    {"yOffset", XmlName::Y_OFFSET, "", "number", InOrder, ""},
    {"color", XmlName::COLOR, "red:colour green:colour blue:colour", "", InOrder, ""},
    {"clearHistory", XmlName::CLEAR_HISTORY, "visible:bool showConfirmDialog:bool", "", InOrder,
     ""},
    {"cmdEdit", XmlName::CMD_EDIT, "visible:bool", "", InOrder,
     "readonlycolor commoncolor headcolor"},
    {"readonlycolor", XmlName::READONLY_COLOR, "red:colour green:colour blue:colour", "", InOrder,
     ""},
    {"commoncolor", XmlName::COMMON_COLOR, "red:colour green:colour blue:colour", "", InOrder, ""},
    {"headcolor", XmlName::HEAD_COLOR, "red:colour green:colour blue:colour", "", InOrder, ""},
    {"autoUSSD", XmlName::AUTO_USSD, "valid:bool", "", InOrder, "card*"},
    {"card", XmlName::ITEM, "imsi:imsi ussd:windows", "", InOrder, ""},
    // ---- the services
    {"layout", nullptr, "", "", OneOf, "SMSUSSD layoutInRoot"},
    {"layoutInRoot", ANY_NAME, "", "", InOrder, "SMSUSSD"},
    {"SMSUSSD", XmlName::SMS_USSD, "", "", InOrder, "MainSize TreeSize Tree Dialog"},
    {"MainSize", XmlName::MAIN_SIZE, "width:number height:number", "", InOrder, ""},
    {"TreeSize", XmlName::TREE_SIZE, "posx:number posy:number width:number height:number", "",
     InOrder, ""},
    {"Tree", XmlName::TREE, "", "", InOrder, "entry*"},
    {"entry", XmlName::ITEM, "name:number parent:number id:text type?=root", "", InOrder, ""},
    {"Dialog", XmlName::DIALOG, "", "", InOrder, "service*"},
    {"service", XmlName::ITEM, "name:number parent:number", "", InOrder, "control5"},
    {"control", XmlName::CONTROL,
     "id?:text type?:sending visible?:bool posx?:number posy?:number width?:number height?:number",
     "", InOrder, "LimitText? length? minlenth? message? number?"},
    {"message", XmlName::COMMAND, "", "text", InOrder, ""},
    {"number", XmlName::NUMBER, "", "text", InOrder, ""},
    // ---- the profiles
    {"profiles", ANY_NAME, "type?=USSDProfile", "", InOrder, "profile*"},
    {"profile", XmlName::ITEM, "", "", InOrder, "name value readonly showButton langID desLangID"},
    {"name", XmlName::NAME, "", "text", InOrder, ""},
    {"value", XmlName::VALUE, "", "codeWithInput", InOrder, ""},
    {"readonly", XmlName::READONLY, "", "bool", InOrder, ""},
    {"showButton", XmlName::SHOW_BUTTON, "", "bool", InOrder, ""},
    {"langID", XmlName::LANG_ID, "", "text", InOrder, ""},
    {"desLangID", XmlName::DESCRIPTION_LANG_ID, "", "text", InOrder, ""},
};

/** A value type: its base type in XML Schema, and the name and value of each restriction. */
struct Type {
    const char *name;
    const char *base;
    const char *limits[4];
};

const Type TYPES[] = {
    {"text", "string", {}},
    {"bool", "string", {"pattern", "true|false"}},
    {"number", "int", {}},
    {"colour", "int", {"minInclusive", "0", "maxInclusive", "255"}},
    {"fontSize", "int", {"minInclusive", "1", "maxInclusive", "4000"}},
    {"code", "token", {"pattern", "([*#][0-9*#]*#)?", "maxLength", "91"}},
    {"codeWithInput", "token", {"pattern", "([*#]([0-9*#]|%s)*#)?", "maxLength", "91"}},
    {"characters", "string", {"maxLength", "1000"}},
    {"sending", "string", {"pattern", "ussd|sms"}},
    {"imsi", "string", {"pattern", "[0-9]{1,15}"}},
    {"windows",
     "string",
     {"pattern", "/*(Prepaid|Postpaid|Commonpaid|Advanced)(/+(Prepaid|Postpaid|Commonpaid|"
                 "Advanced))*/*"}},
};

/** A part of a rule, or an attribute of its element. */
struct Part {
    QString name;
    bool isOptional = false;
    bool isRepeated = false;
    int count = 1;
};

QStringList wordsOf(const char *text)
{
    const QString whole = QLatin1String(text);
    return whole.isEmpty() ? QStringList() : whole.split(QLatin1Char(' '));
}

Part partOf(const QString &word)
{
    Part part;
    const QChar last = word.at(word.length() - 1);
    part.isOptional = last == QLatin1Char('?');
    part.isRepeated = last == QLatin1Char('*');
    part.count = last.isDigit() ? last.digitValue() : 1;
    const bool hasSuffix = part.isOptional || part.isRepeated || last.isDigit();
    part.name = hasSuffix ? word.left(word.length() - 1) : word;
    return part;
}

/// Returns the index of the separator between the name of an attribute and its type (':') or its
/// only value ('=').
int separatorIn(const QString &attribute)
{
    return qMax(attribute.indexOf(QLatin1Char(':')), attribute.indexOf(QLatin1Char('=')));
}

const Rule *ruleOf(const QString &name)
{
    for (const Rule &rule : RULES) {
        if (name == QLatin1String(rule.name))
            return &rule;
    }
    return nullptr;
}

/// Appends the rule and all rules that it uses to the list.
void collect(const QString &name, QList<const Rule *> &rules)
{
    const Rule *rule = ruleOf(name);
    if (!rule || rules.contains(rule))
        return;
    rules << rule;
    const QStringList words = wordsOf(rule->parts);
    for (int i = 0; i < words.count(); ++i)
        collect(partOf(words.at(i)).name, rules);
}

QList<const Rule *> rulesFor(const QString &kind)
{
    QList<const Rule *> rules;
    if (schemaKinds().contains(kind))
        collect(kind, rules);
    return rules;
}

/** Writes a schema. */
class SchemaWriter
{
public:
    explicit SchemaWriter(QByteArray &output) : m_xml(&output)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(2);
    }
    void write(const QString &kind);

private:
    void empty(const char *element) { m_xml.writeEmptyElement(QLatin1String(element)); }
    void start(const char *element) { m_xml.writeStartElement(QLatin1String(element)); }
    void end() { m_xml.writeEndElement(); }
    void define(const Rule &rule);
    void element(const Rule &rule);
    void attribute(const QString &text);
    void parts(const Rule &rule);
    void part(const Part &part);
    void type(const QString &name);

    QXmlStreamWriter m_xml;
};

void SchemaWriter::write(const QString &kind)
{
    m_xml.writeStartDocument();
    m_xml.writeComment(QString::fromLatin1(" Generated by \"ussd-config schema %1\". ").arg(kind));
    start("grammar");
    m_xml.writeAttribute(QLatin1String("xmlns"),
                         QLatin1String("http://relaxng.org/ns/structure/1.0"));
    m_xml.writeAttribute(QLatin1String("datatypeLibrary"),
                         QLatin1String("http://www.w3.org/2001/XMLSchema-datatypes"));
    start("start");
    part(partOf(kind));
    end();
    const QList<const Rule *> rules = rulesFor(kind);
    for (int i = 0; i < rules.count(); ++i)
        define(*rules.at(i));
    end();
    m_xml.writeEndDocument();
}

void SchemaWriter::define(const Rule &rule)
{
    start("define");
    m_xml.writeAttribute(QLatin1String("name"), QLatin1String(rule.name));
    if (rule.element)
        element(rule);
    else
        parts(rule);
    end();
}

void SchemaWriter::element(const Rule &rule)
{
    start("element");
    if (*rule.element)
        m_xml.writeAttribute(QLatin1String("name"), QLatin1String(rule.element));
    else
        empty("anyName");
    const QStringList attributes = wordsOf(rule.attributes);
    for (int i = 0; i < attributes.count(); ++i)
        attribute(attributes.at(i));
    if (*rule.text)
        type(QLatin1String(rule.text));
    else if (*rule.parts)
        parts(rule);
    else if (attributes.isEmpty())
        empty("empty");
    end();
}

void SchemaWriter::attribute(const QString &text)
{
    const int separator = separatorIn(text);
    const Part name = partOf(text.left(separator));
    if (name.isOptional)
        start("optional");
    start("attribute");
    m_xml.writeAttribute(QLatin1String("name"), name.name);
    if (text.at(separator) == QLatin1Char('='))
        m_xml.writeTextElement(QLatin1String("value"), text.mid(separator + 1));
    else
        type(text.mid(separator + 1));
    end();
    if (name.isOptional)
        end();
}

void SchemaWriter::parts(const Rule &rule)
{
    static const char *const combinations[] = {"group", "interleave", "choice"};
    start(combinations[rule.combination]);
    const QStringList words = wordsOf(rule.parts);
    for (int i = 0; i < words.count(); ++i)
        part(partOf(words.at(i)));
    end();
}

void SchemaWriter::part(const Part &part)
{
    const bool isWrapped = part.isOptional || part.isRepeated;
    if (isWrapped)
        start(part.isOptional ? "optional" : "zeroOrMore");
    for (int i = 0; i < part.count; ++i) {
        empty("ref");
        m_xml.writeAttribute(QLatin1String("name"), part.name);
    }
    if (isWrapped)
        end();
}

void SchemaWriter::type(const QString &name)
{
    for (const Type &type : TYPES) {
        if (name != QLatin1String(type.name))
            continue;
        start("data");
        m_xml.writeAttribute(QLatin1String("type"), QLatin1String(type.base));
        for (int i = 0; i < 4 && type.limits[i]; i += 2) {
            start("param");
            m_xml.writeAttribute(QLatin1String("name"), QLatin1String(type.limits[i]));
            m_xml.writeCharacters(QLatin1String(type.limits[i + 1]));
            end();
        }
        end();
    }
}

} // namespace

QStringList schemaKinds()
{
    return QStringList() << QLatin1String("configuration") << QLatin1String("layout")
                         << QLatin1String("profiles");
}

KnownNames knownNames(const QString &kind)
{
    KnownNames known;
    const QList<const Rule *> rules = rulesFor(kind);
    for (int i = 0; i < rules.count(); ++i) {
        const char *element = rules.at(i)->element;
        if (element && *element && !known.elements.contains(QLatin1String(element)))
            known.elements << QLatin1String(element);
        if (!element || !*element)
            continue; // the plug-in does not read the attributes of the root
        const QStringList attributes = wordsOf(rules.at(i)->attributes);
        for (int a = 0; a < attributes.count(); ++a) {
            const QString name = partOf(attributes.at(a).left(separatorIn(attributes.at(a)))).name;
            if (!known.attributes.contains(name))
                known.attributes << name;
        }
    }
    return known;
}

QByteArray relaxNgSchema(const QString &kind)
{
    QByteArray schema;
    if (schemaKinds().contains(kind))
        SchemaWriter(schema).write(kind);
    return schema;
}

} // namespace Tools
