#include "ProfileXml.h"

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "ForwardXml.h"
#include "XmlName.h"

namespace Formats
{

namespace
{

QString fieldText(QXmlStreamReader &reader, const char *field)
{
    if (!ForwardXml::skipToBefore(reader, QLatin1String(field), QLatin1String(XmlName::ITEM)))
        return QString();
    return ForwardXml::text(reader);
}

bool isXmlCharacter(ushort unit)
{
    return unit >= 0x20 ? unit < 0xFFFE : unit == 0x09 || unit == 0x0A || unit == 0x0D;
}

/// Returns the string without the characters that XML 1.0 forbids, such as control characters and
/// unpaired surrogates.
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
    return QLatin1String(value ? XmlName::ON : XmlName::OFF);
}

/// Writes the field. A carriage return is written as a character reference, because a parser reads
/// a plain carriage return as a line feed.
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
    writer.writeStartElement(QLatin1String(XmlName::ITEM));
    writeField(writer, XmlName::NAME, profile.name);
    writeField(writer, XmlName::VALUE, profile.value.trimmed());
    writeField(writer, XmlName::READONLY, boolText(profile.readonly));
    writeField(writer, XmlName::SHOW_BUTTON, boolText(profile.showButton));
    writeField(writer, XmlName::LANG_ID, profile.langID.trimmed());
    writeField(writer, XmlName::DESCRIPTION_LANG_ID, profile.desLangID.trimmed());
    writer.writeEndElement();
}

} // namespace

namespace ProfileXml
{

bool readNext(QXmlStreamReader &reader, USSDProfile &profile)
{
    if (!ForwardXml::skipTo(reader, QLatin1String(XmlName::ITEM)))
        return false;
    profile = USSDProfile();
    profile.name = fieldText(reader, XmlName::NAME);
    profile.value = fieldText(reader, XmlName::VALUE);
    profile.readonly = ForwardXml::isTrue(fieldText(reader, XmlName::READONLY));
    profile.showButton = ForwardXml::isTrue(fieldText(reader, XmlName::SHOW_BUTTON));
    profile.langID = fieldText(reader, XmlName::LANG_ID);
    profile.desLangID = fieldText(reader, XmlName::DESCRIPTION_LANG_ID);
    return true;
}

void write(QIODevice &device, const QList<USSDProfile> &profiles)
{
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String(XmlName::PROFILES));
    writer.writeAttribute(QLatin1String(XmlName::TYPE), QLatin1String(XmlName::PROFILES_TYPE));
    for (int i = 0; i < profiles.count(); ++i)
        writeProfile(writer, profiles.at(i));
    writer.writeEndElement();
    writer.writeEndDocument();
}

} // namespace ProfileXml

} // namespace Formats
