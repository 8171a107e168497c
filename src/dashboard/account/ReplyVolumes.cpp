#include "ReplyVolumes.h"

#include <QRegularExpression>

#include "ReplyNumbers.h"

namespace Dashboard
{

namespace
{

const qint64 KILO = 1024;

/** A data volume in a reply. */
struct Volume {
    int start = 0;
    int end = 0;
    qint64 bytes = -1; // -1 if the number is ambiguous
};

struct Unit {
    const char *names;
    qint64 bytes;
};

const Unit UNITS[] = {
    {"kb|ko|kib|кб|كيلوبايت|ك.ب", KILO},
    {"mb|mo|mib|megas|mbs|мб|ميجابايت|ميغابايت|ميجا|ميغا|م.ب|megabytes|megabyte|兆", KILO *KILO},
    {"gb|go|gib|gigas|gbs|гб|جيجابايت|غيغابايت|جيجا|غيغا|ج.ب|gigabytes|gigabyte", KILO *KILO *KILO},
    {"tb|to|tib|тб|تيرابايت", KILO *KILO *KILO *KILO},
};

qint64 unitOf(const QString &name)
{
    for (const Unit &unit : UNITS) {
        for (const QString &each : QString::fromUtf8(unit.names).split(QLatin1Char('|'))) {
            if (plainForm(each).toLower() == name)
                return unit.bytes;
        }
    }
    return 0;
}

/// Returns a pattern that matches a unit only at the offset at which the search starts.
QString unitPattern()
{
    QString names;
    for (const Unit &unit : UNITS) {
        for (const QString &each : QString::fromUtf8(unit.names).split(QLatin1Char('|')))
            names += QRegularExpression::escape(plainForm(each).toLower()) + QLatin1Char('|');
    }
    names.chop(1);
    return QLatin1String("\\G[ \\x{00a0}]?(") + names + QLatin1String(")(?!\\p{L})(?!/s)(?!ps)");
}

/** Finds the data volumes in a reply and determines which one is the remaining volume. */
class VolumeReader
{
public:
    explicit VolumeReader(const ReplyText &text) : m_text(text) {}
    std::optional<DataVolume> left();
    /// Returns the size in bytes if the reply contains exactly one volume. Otherwise, returns -1.
    qint64 only();

private:
    void find();
    Volume volumeOf(const ReplyNumber &number, const QRegularExpressionMatch &unit) const;
    bool isTouched(int position) const;
    bool hasDataWords(int start, int end) const;
    bool areOnePair() const;
    bool isLeft(const Volume &volume) const;
    qint64 total(const Volume &left) const;
    ReplyPart wordsOf(const Volume &volume) const;
    std::optional<DataVolume> leftOfPair() const;

    const ReplyText m_text;
    QList<Volume> m_volumes;
};

void VolumeReader::find()
{
    static const QRegularExpression unit(unitPattern());
    for (const ReplyNumber &number : replyNumbers(m_text.plain())) {
        const QRegularExpressionMatch match = unit.match(m_text.folded(), number.end);
        if (match.hasMatch())
            m_volumes << volumeOf(number, match);
    }
}

/// Returns true if the character before the number shows that the number is a part of something
/// else.
bool VolumeReader::isTouched(int position) const
{
    const QChar before = position > 0 ? m_text.plain().at(position - 1) : QChar(QLatin1Char(' '));
    const bool isWord = before.isLetter() && before.script() != QChar::Script_Han;
    return isWord || QString::fromUtf8(".,-−+~<>*#≈").contains(before);
}

Volume VolumeReader::volumeOf(const ReplyNumber &number, const QRegularExpressionMatch &unit) const
{
    Volume volume;
    volume.start = number.start;
    volume.end = unit.capturedEnd();
    qint64 units = 0;
    int decimals = 0;
    const bool isClear = !number.text.contains(QLatin1Char(' ')) && !isTouched(number.start);
    if (isClear && number.read(Grouping::Unknown, &units, &decimals))
        volume.bytes = qint64(double(units) / Money::UNITS * double(unitOf(unit.captured(1))));
    return volume;
}

/// Returns the part of the clause that refers to this volume and not to other volumes.
ReplyPart VolumeReader::wordsOf(const Volume &volume) const
{
    ReplyPart part = m_text.clauseAt(volume.start);
    for (const Volume &other : m_volumes) {
        if (other.end <= volume.start)
            part.start = qMax(part.start, other.end);
        else if (other.start >= volume.end && other.start < part.end)
            part.end = volume.end;
    }
    return part;
}

/// Returns true if the words between two positions only refer to data in general.
bool VolumeReader::hasDataWords(int start, int end) const
{
    return hasOnlyWords(m_text.folded(start, end),
                        {Word::Left, Word::Have, Word::Link, Word::Data, Word::Total});
}

bool VolumeReader::isLeft(const Volume &volume) const
{
    const ReplyPart words = wordsOf(volume);
    return m_text.holds(words, Word::Left) && !m_text.holds(words, Word::Used) &&
           !m_text.holds(words, Word::Total) && hasDataWords(words.start, volume.start);
}

/// Returns true if the reply contains exactly two volumes in the form "A of B".
bool VolumeReader::areOnePair() const
{
    if (m_volumes.size() != 2)
        return false;
    const QString between = m_text.folded(m_volumes.at(0).end, m_volumes.at(1).start).trimmed();
    return wordLengthAt(between, 0, Word::Of) == between.length() && !between.isEmpty();
}

std::optional<DataVolume> VolumeReader::leftOfPair() const
{
    DataVolume volume;
    volume.left = m_volumes.at(0).bytes;
    volume.total = m_volumes.at(1).bytes;
    const bool isSane = volume.left >= 0 && volume.total > 0 && volume.left <= volume.total;
    const int start = m_text.clauseAt(m_volumes.at(0).start).start;
    if (!isSane || !m_text.holds(Word::Left) || m_text.holds(Word::Used) ||
        !hasDataWords(start, m_volumes.at(0).start))
        return std::nullopt;
    return volume;
}

/// Returns the total volume to which the remaining volume belongs, in bytes. Returns 0 if the reply
/// does not contain it.
qint64 VolumeReader::total(const Volume &left) const
{
    qint64 bytes = 0;
    for (const Volume &volume : m_volumes) {
        if (volume.start == left.start || !m_text.holds(wordsOf(volume), Word::Total))
            continue;
        if (bytes > 0)
            return 0;
        bytes = volume.bytes;
    }
    return bytes >= left.bytes ? bytes : 0;
}

std::optional<DataVolume> VolumeReader::left()
{
    find();
    if (m_volumes.isEmpty() || m_text.holds(Word::Offer))
        return std::nullopt;
    if (areOnePair())
        return leftOfPair();
    const Volume *found = nullptr;
    for (const Volume &volume : m_volumes) {
        if (!isLeft(volume))
            continue;
        if (found || volume.bytes < 0)
            return std::nullopt;
        found = &volume;
    }
    if (!found)
        return std::nullopt;
    DataVolume volume;
    volume.left = found->bytes;
    volume.total = total(*found);
    return volume;
}

qint64 VolumeReader::only()
{
    find();
    return m_volumes.size() == 1 ? m_volumes.first().bytes : -1;
}

} // namespace

qint64 bytesOf(const QString &volume)
{
    return VolumeReader(ReplyText(volume)).only();
}

std::optional<DataVolume> readVolume(const ReplyText &text)
{
    return VolumeReader(text).left();
}

} // namespace Dashboard
