#include "ProvisionRecord.h"

#include <QCryptographicHash>
#include <QList>
#include <QUrl>

namespace Provisioning
{

namespace
{

const char HEAD[] = "ussd-provision 1";
const char END[] = "end";
const int CHECKSUM_DIGITS = 40;

QByteArray line(const char *key, const QString &value)
{
    return QByteArray(key) + ' ' + QUrl::toPercentEncoding(value) + '\n';
}

bool isChecksum(const QByteArray &text)
{
    return text.size() == CHECKSUM_DIGITS && QByteArray::fromHex(text).toHex() == text;
}

/// Parses a line of the record. Returns false if the line is invalid.
bool takeLine(const QByteArray &line, ProvisionRecord &record)
{
    const QList<QByteArray> words = line.split(' ');
    const QString value = QUrl::fromPercentEncoding(words.value(1));
    const bool isPair = words.count() == 2;
    if (isPair && words.first() == "country")
        record.country = value;
    else if (isPair && words.first() == "provider")
        record.provider = value;
    else if (isPair && words.first() == "network")
        record.network = value;
    else if (words.count() == 3 && words.first() == "file" && isChecksum(words.at(2)))
        record.files.insert(value, words.at(2));
    else
        return false;
    return true;
}

} // namespace

QByteArray provisionRecordText(const ProvisionRecord &record)
{
    QByteArray text = QByteArray(HEAD) + '\n' + line("country", record.country) +
                      line("provider", record.provider) + line("network", record.network);
    const QStringList names = record.files.keys();
    for (int i = 0; i < names.count(); ++i)
        text += "file " + QUrl::toPercentEncoding(names.at(i)) + ' ' +
                record.files.value(names.at(i)) + '\n';
    return text + END + '\n';
}

ProvisionRecord provisionRecordFrom(const QByteArray &text)
{
    QList<QByteArray> lines = text.split('\n');
    const bool whole = lines.count() > 2 && lines.takeFirst() == HEAD &&
                       lines.takeLast().isEmpty() && lines.takeLast() == END;
    ProvisionRecord record;
    bool isGood = whole;
    for (int i = 0; isGood && i < lines.count(); ++i)
        isGood = takeLine(lines.at(i), record);
    return isGood ? record : ProvisionRecord();
}

QByteArray provisionChecksum(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
}

QString provisionRecordName()
{
    return QLatin1String("provisioned.txt");
}

} // namespace Provisioning
