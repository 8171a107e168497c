#include "ElementCheck.h"

#include <QFileInfo>

#include "KeyTexts.h"
#include "UssdCode.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int LONGEST_ANSWER = 2; // in digits; also the maximum length of a short code

/// Returns true if a network accepts the string as a code or as a short code (3GPP TS 22.030).
bool isAccepted(const QString &code)
{
    const bool isShort = code.length() <= LONGEST_ANSWER && isDialable(code);
    return isUssdCode(code) || isShort;
}

} // namespace

void ElementCheck::find(int place, const char *rule, const QString &text)
{
    if (place < 0)
        return addFinding(m_report, 0, 0, rule, text);
    addFinding(m_report, at(place).line, at(place).column, rule, text);
}

void ElementCheck::boolText(int place, const QString &what, const QString &text)
{
    if (text != QLatin1String(XmlName::ON) && text != QLatin1String(XmlName::OFF))
        find(place, "bool",
             QString::fromLatin1("%1 %2 reads as false; only \"true\" is true")
                 .arg(what, quotedPart(text)));
}

void ElementCheck::boolAttribute(int place, const char *name)
{
    if (!at(place).has(name))
        return find(
            place, "bool",
            QString::fromLatin1("%1 is missing and reads as false").arg(QLatin1String(name)));
    boolText(place, QLatin1String(name), at(place).attribute(name));
}

int ElementCheck::numberText(int place, const QString &what, const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber)
        find(place, "number",
             QString::fromLatin1("%1 %2 is no number and reads as 0").arg(what, quotedPart(text)));
    return number;
}

int ElementCheck::numberAttribute(int place, const char *name)
{
    if (at(place).has(name))
        return numberText(place, QLatin1String(name), at(place).attribute(name));
    find(place, "number",
         QString::fromLatin1("%1 is missing and reads as 0").arg(QLatin1String(name)));
    return 0;
}

int ElementCheck::colour(int place, const char *name)
{
    const int value = numberAttribute(place, name);
    if (value < 0 || value > 255)
        find(place, "colour",
             QString::fromLatin1("%1 %2 is no part of a colour (0 to 255)")
                 .arg(QLatin1String(name))
                 .arg(value));
    return value;
}

void ElementCheck::command(int place, const QString &command, int inputLength)
{
    const int length = commandLength(command, qMax(0, inputLength));
    if (length > LONGEST_COMMAND)
        find(place, "command",
             QString::fromLatin1("%1 has up to %2 UTF-16 code units; one of more than %3 is not "
                                 "sent")
                 .arg(quotedPart(command))
                 .arg(length)
                 .arg(LONGEST_COMMAND));
    QString sample = command.trimmed();
    sample.replace(INPUT_PLACEHOLDER, QLatin1String("0"));
    if (!isAccepted(sample))
        find(place, "command",
             quotedPart(command) +
                 QLatin1String(" is no code: a code consists of digits, * and #, begins with * or "
                               "#, and ends with #"));
}

void ElementCheck::key(int place, const QString &key)
{
    const QStringList missing = KeyTexts::languagesWithout(key, QFileInfo(m_report.file).path());
    if (!missing.isEmpty())
        find(place, "key",
             QString::fromLatin1("%1 has no text in %2 and is shown as it is")
                 .arg(quotedPart(key), missing.join(QLatin1String(", "))));
}

void ElementCheck::names(const KnownNames &known)
{
    for (int i = 1; i < m_elements.list.count(); ++i) { // the root may have any name
        const XmlElement &element = at(i);
        const QString meant = meantElement(element, known);
        if (!known.elements.contains(element.name))
            find(i, "name",
                 QString::fromLatin1("<%1> is not read").arg(element.name) +
                     (meant.isEmpty() ? QString()
                                      : QString::fromLatin1("; is <%1> meant?").arg(meant)));
        attributeNames(i, known);
    }
}

void ElementCheck::attributeNames(int place, const KnownNames &known)
{
    const XmlElement &element = at(place);
    for (int i = 0; i < element.attributes.count(); ++i) {
        const QString name = element.attributes.at(i).qualifiedName().toString();
        if (known.attributes.contains(name) || name.contains(QLatin1Char(':')))
            continue;
        const QString meant = meantAttribute(element, name, known);
        find(place, "name",
             QString::fromLatin1("the attribute %1 is not read").arg(name) +
                 (meant.isEmpty() ? QString() : QString::fromLatin1("; is %1 meant?").arg(meant)));
    }
}

} // namespace Tools
