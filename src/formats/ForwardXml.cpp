#include "ForwardXml.h"

#include "XmlName.h"

#include <QBuffer>
#include <QXmlStreamReader>

namespace Formats
{

namespace
{

const char ENTITY_DECLARATION[] = "<!ENTITY";
const int LONGEST_DECLARATION_START = 4 * int(sizeof ENTITY_DECLARATION); // in bytes (UTF-32)
const qint64 BLOCK_SIZE = qint64(64) * 1024;

const char DECLARES_ENTITIES[] = "The document declares entities, which are not supported.";
const char ODD_ENCODING[] = "The encoding of the document is not supported.";

// The names of the supported encodings begin with these strings, in lower case and without hyphens
// and underscores. In these encodings, an ASCII character is always represented by its own code. In
// other encodings, such as UTF-7 and ISO-2022-JP, an entity declaration may consist of other bytes.
const char *const ENCODINGS[] = {"utf8",      "utf16",   "utf32",    "ucs2",  "iso10646ucs2",
                                 "usascii",   "ascii",   "iso8859",  "latin", "cp125",
                                 "cp866",     "windows", "ibm866",   "koi8",  "tis620",
                                 "macintosh", "gb2312",  "gbk",      "cp936", "gb18030",
                                 "big5",      "euc",     "shiftjis", "sjis",  "xsjis"};

/// Reports an undeclared entity as an error. By default, the parser skips the entity, which could
/// change a USSD code into a different one.
void refuseUnknownEntity(QXmlStreamReader &reader)
{
    reader.raiseError(
        QString::fromLatin1("Entity '%1' not declared.").arg(reader.name().toString()));
}

/// Returns the bytes without zero bytes, which separate the letters in UTF-16.
QByteArray withoutZeros(QByteArray bytes)
{
    return bytes.replace('\0', "");
}

/// Returns the name of the encoding in lower case, without hyphens and underscores, which Qt
/// ignores. An XML declaration without a name means UTF-8.
QByteArray encodingIn(const QByteArray &xmlDeclaration)
{
    const int attribute = int(xmlDeclaration.indexOf("encoding"));
    if (attribute < 0)
        return ENCODINGS[0];
    const QByteArray name = xmlDeclaration.mid(attribute).replace('\'', '"').split('"').value(1);
    return name.toLower().replace('-', "").replace('_', "");
}

/// Returns true if the encoding does not hide entity declarations. `start` contains the first bytes
/// of the document, which must include the complete XML declaration.
bool hasUsualEncoding(const QByteArray &start)
{
    const QByteArray text = withoutZeros(start);
    if (!text.contains("<?xml"))
        return true;
    const int end = int(text.indexOf("?>"));
    const QByteArray encoding = end < 0 ? QByteArray() : encodingIn(text.left(end));
    for (const char *known : ENCODINGS) {
        if (encoding.startsWith(known))
            return true;
    }
    return false;
}

/// Returns an error message if the document declares entities or has an unsupported encoding,
/// otherwise a null pointer. Restores the position of the device. The function searches the raw
/// bytes, because parsing the document would already expand parameter entities.
const char *faultIn(QIODevice &device)
{
    const qint64 start = device.pos();
    QByteArray block = device.read(BLOCK_SIZE);
    const char *fault = hasUsualEncoding(block) ? nullptr : ODD_ENCODING;
    while (!fault && !block.isEmpty()) {
        if (withoutZeros(block).contains(ENTITY_DECLARATION))
            fault = DECLARES_ENTITIES;
        // A declaration may start at the end of a block.
        const QByteArray next = device.read(BLOCK_SIZE);
        block = next.isEmpty() ? next : block.right(LONGEST_DECLARATION_START) + next;
    }
    return device.seek(start) ? fault : DECLARES_ENTITIES;
}

void refuse(QXmlStreamReader &reader, const char *fault)
{
    reader.clear();
    reader.raiseError(QLatin1String(fault));
}

} // namespace

namespace ForwardXml
{

void start(QXmlStreamReader &reader, QIODevice &device)
{
    if (const char *fault = faultIn(device))
        refuse(reader, fault);
    else
        reader.setDevice(&device);
}

void start(QXmlStreamReader &reader, const QByteArray &document)
{
    QBuffer buffer;
    buffer.setData(document);
    buffer.open(QIODevice::ReadOnly);
    reader.clear();
    if (const char *fault = faultIn(buffer))
        refuse(reader, fault);
    else
        reader.addData(document);
}

QXmlStreamReader::TokenType next(QXmlStreamReader &reader)
{
    if (reader.readNext() == QXmlStreamReader::EntityReference)
        refuseUnknownEntity(reader);
    return reader.tokenType();
}

bool skipTo(QXmlStreamReader &reader, const QString &name)
{
    return skipToBefore(reader, name, name);
}

bool skipToBefore(QXmlStreamReader &reader, const QString &name, const QString &fence)
{
    const bool fenced = name != fence;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = next(reader);
        if (token == QXmlStreamReader::StartElement && reader.name() == name)
            return true;
        if (fenced && token == QXmlStreamReader::EndElement && reader.name() == fence)
            return false;
    }
    return false;
}

/// Returns the text of the current element. The nesting depth is tracked in a loop, because
/// QXmlStreamReader::readElementText() is recursive and deep nesting would overflow the stack.
QString text(QXmlStreamReader &reader)
{
    QString text;
    int depth = reader.isStartElement() ? 1 : 0;
    while (depth > 0 && !reader.atEnd()) {
        const QXmlStreamReader::TokenType token = next(reader);
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token == QXmlStreamReader::Characters)
            text += reader.text();
    }
    return reader.hasError() ? QString() : text;
}

int number(QXmlStreamReader &reader)
{
    return text(reader).toInt();
}

QString attribute(const QXmlStreamReader &reader, QLatin1String name)
{
    return reader.hasError() ? QString() : reader.attributes().value(name).toString();
}

int numberAttribute(const QXmlStreamReader &reader, QLatin1String name)
{
    return attribute(reader, name).toInt();
}

bool boolAttribute(const QXmlStreamReader &reader, QLatin1String name)
{
    return isTrue(attribute(reader, name));
}

bool isTrue(const QString &text)
{
    return text == QLatin1String(XmlName::ON);
}

} // namespace ForwardXml

} // namespace Formats
