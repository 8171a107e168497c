#include "ForwardXml.h"

#include <QXmlStreamReader>

namespace ForwardXml
{

bool skipTo(QXmlStreamReader &reader, const QString &name)
{
    return skipToBefore(reader, name, name);
}

bool skipToBefore(QXmlStreamReader &reader, const QString &name, const QString &fence)
{
    const bool fenced = name != fence;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && reader.name() == name)
            return true;
        if (fenced && token == QXmlStreamReader::EndElement && reader.name() == fence)
            return false;
    }
    return false;
}

QString text(QXmlStreamReader &reader)
{
    return reader.readElementText(QXmlStreamReader::IncludeChildElements);
}

int number(QXmlStreamReader &reader)
{
    return text(reader).toInt();
}

QString attribute(const QXmlStreamReader &reader, QLatin1String name)
{
    return reader.attributes().value(name).toString();
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
    return text == QLatin1String("true");
}

} // namespace ForwardXml
