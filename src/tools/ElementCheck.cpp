#include "ElementCheck.h"

#include "KeyTexts.h"
#include "UssdCode.h"
#include "XmlName.h"

using namespace Formats;

namespace Tools
{

namespace
{

const int MOST_DIFFERENCES = 2; // a name with more differences is not treated as a misspelling

/// Returns the number of letters to insert, delete or replace (the Levenshtein distance).
int differences(const QString &a, const QString &b)
{
    QList<int> row;
    for (int j = 0; j <= b.length(); ++j)
        row << j;
    for (int i = 1; i <= a.length(); ++i) {
        int diagonal = row.at(0);
        row[0] = i;
        for (int j = 1; j <= b.length(); ++j) {
            const int exchanged = diagonal + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            diagonal = row.at(j);
            row[j] = qMin(exchanged, qMin(row.at(j), row.at(j - 1)) + 1);
        }
    }
    return row.last();
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
}

void ElementCheck::key(int place, const QString &key)
{
    const QStringList missing = KeyTexts::languagesWithout(key);
    if (!missing.isEmpty())
        find(place, "key",
             QString::fromLatin1("%1 has no text in %2 and is shown as it is")
                 .arg(quotedPart(key), missing.join(QLatin1String(", "))));
}

void ElementCheck::names(const QStringList &known)
{
    for (int i = 1; i < m_elements.list.count(); ++i) { // the root element may have any name
        const QString &name = at(i).name;
        if (known.contains(name))
            continue;
        const QString meant = likelyName(name, known);
        find(
            i, "name",
            QString::fromLatin1("<%1> is not read").arg(name) +
                (meant.isEmpty() ? QString() : QString::fromLatin1("; is <%1> meant?").arg(meant)));
    }
}

QString likelyName(const QString &name, const QStringList &known)
{
    QString best;
    int fewest = MOST_DIFFERENCES + 1;
    for (int i = 0; i < known.count(); ++i) {
        if (qAbs(known.at(i).length() - name.length()) > MOST_DIFFERENCES)
            continue;
        const int count = differences(name.toLower(), known.at(i).toLower());
        if (count < fewest && count < known.at(i).length() / 2) {
            fewest = count;
            best = known.at(i);
        }
    }
    return best;
}

} // namespace Tools
