#include "ProfileXml.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "ForwardXml.h"

namespace
{

const QLatin1String kItem("item");

QString fieldText(QXmlStreamReader &reader, const char *field)
{
    if (!ForwardXml::skipToBefore(reader, QLatin1String(field), kItem))
        return QString();
    return ForwardXml::text(reader);
}

bool isXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xFFFE : unit == 0x09 || unit == 0x0A || unit == 0x0D;
}

/// The text without what XML 1.0 cannot hold: control characters, halves of surrogate pairs.
QString xmlText(const QString &text)
{
    QString result;
    result.reserve(text.length());
    for (int i = 0; i < text.length(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.length() && text.at(i + 1).isLowSurrogate())
            result.append(unit).append(text.at(++i));
        else if (!unit.isHighSurrogate() && !unit.isLowSurrogate() &&
                 isXmlCharacter(unit.unicode()))
            result.append(unit);
    }
    return result;
}

QString boolText(bool value)
{
    return QLatin1String(value ? "true" : "false");
}

/// A bare carriage return would be read back as a line feed.
void writeField(QXmlStreamWriter &writer, const char *field, const QString &text)
{
    const QStringList parts = xmlText(text).split(QLatin1Char('\r'));
    writer.writeStartElement(QLatin1String(field));
    for (int i = 0; i < parts.count(); ++i) {
        if (i > 0)
            writer.writeEntityReference(QLatin1String("#13"));
        writer.writeCharacters(parts.at(i));
    }
    writer.writeEndElement();
}

void writeProfile(QXmlStreamWriter &writer, const USSDProfile &profile)
{
    writer.writeStartElement(kItem);
    writeField(writer, "name", profile.name);
    writeField(writer, "value", profile.value.trimmed());
    writeField(writer, "readonly", boolText(profile.readonly));
    writeField(writer, "showButton", boolText(profile.showButton));
    writeField(writer, "langID", profile.langID.trimmed());
    writeField(writer, "desLangID", profile.desLangID.trimmed());
    writer.writeEndElement();
}

} // namespace

namespace ProfileXml
{

bool readNext(QXmlStreamReader &reader, USSDProfile &profile)
{
    if (!ForwardXml::skipTo(reader, kItem))
        return false;
    profile = USSDProfile();
    profile.name = fieldText(reader, "name");
    profile.value = fieldText(reader, "value");
    profile.readonly = ForwardXml::isTrue(fieldText(reader, "readonly"));
    profile.showButton = ForwardXml::isTrue(fieldText(reader, "showButton"));
    profile.langID = fieldText(reader, "langID");
    profile.desLangID = fieldText(reader, "desLangID");
    return true;
}

void write(QIODevice &device, const QList<USSDProfile> &profiles)
{
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("tksvdoc"));
    writer.writeAttribute(QLatin1String("type"), QLatin1String("USSDProfile"));
    for (int i = 0; i < profiles.count(); ++i)
        writeProfile(writer, profiles.at(i));
    writer.writeEndElement();
    writer.writeEndDocument();
}

} // namespace ProfileXml
