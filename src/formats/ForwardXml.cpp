#include "ForwardXml.h"

#include "XmlName.h"

#include <QXmlStreamReader>

namespace Formats
{

namespace
{

const char ENTITY_DECLARATION[] = "<!ENTITY";
const int LONGEST_DECLARATION_START = 4 * int(sizeof ENTITY_DECLARATION); // in bytes (UTF-32)
const qint64 BLOCK_SIZE = qint64(64) * 1024;

/// Reports an undeclared entity as an error. By default, the parser skips the entity, which could
/// change a USSD code into a different one.
void refuseUnknownEntity(QXmlStreamReader &reader)
{
    reader.raiseError(
        QString::fromLatin1("Entity '%1' not declared.").arg(reader.name().toString()));
}

/// Returns true if the bytes contain an entity declaration. Zero bytes are ignored, because they
/// separate the letters in UTF-16.
bool declaresEntity(QByteArray bytes)
{
    return bytes.replace('\0', "").contains(ENTITY_DECLARATION);
}

/// Returns true if the device contains an entity declaration, and restores the current position.
/// The function searches the raw bytes, because parsing the document would already expand parameter
/// entities.
bool declaresEntity(QIODevice &device)
{
    const qint64 start = device.pos();
    QByteArray end; // the end of the previous block, where a declaration may start
    bool found = false;
    while (!found && !device.atEnd()) {
        const QByteArray block = end + device.read(BLOCK_SIZE);
        found = declaresEntity(block);
        end = block.right(LONGEST_DECLARATION_START);
    }
    return !device.seek(start) || found;
}

void refuseEntities(QXmlStreamReader &reader)
{
    reader.clear();
    reader.raiseError(QLatin1String("The document declares entities, which are not supported."));
}

} // namespace

namespace ForwardXml
{

void start(QXmlStreamReader &reader, QIODevice &device)
{
    if (declaresEntity(device))
        refuseEntities(reader);
    else
        reader.setDevice(&device);
}

void start(QXmlStreamReader &reader, const QByteArray &document)
{
    reader.clear();
    if (declaresEntity(document))
        refuseEntities(reader);
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
