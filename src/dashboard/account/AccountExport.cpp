#include "AccountExport.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "AccountDatabase.h"
#include "base/DashboardText.h"
#include "base/PrivateFile.h"

namespace Dashboard
{

namespace
{

const char CSV[] = ".csv";
const char JSON[] = ".json";

struct Field {
    const char *name;
    QString value; // empty if the reply does not contain this value
};

QString bytesText(qint64 bytes)
{
    return bytes > 0 ? QString::number(bytes) : QString();
}

QList<Field> fieldsOf(int sim, const AccountEntry &entry)
{
    const ReplyReading &reading = entry.reading;
    return {{"sim", QString::number(sim)},
            {"time", entry.askedAt.toUTC().toString(Qt::ISODate)},
            {"code", entry.code},
            {"amount", reading.amount ? plainAmount(*reading.amount) : QString()},
            {"currency", reading.amount ? reading.amount->currency : QString()},
            {"valid_until", reading.date ? reading.date->toString(Qt::ISODate) : QString()},
            {"number_end", reading.number ? reading.number->mid(1) : QString()},
            {"data_left_bytes", reading.data ? QString::number(reading.data->left) : QString()},
            {"data_total_bytes", reading.data ? bytesText(reading.data->total) : QString()},
            {"reply", entry.text}};
}

/// Returns the value of a CSV cell. Spreadsheet programs execute text that starts like a formula,
/// so an apostrophe is inserted before such text.
QString csvCell(const Field &field)
{
    QString value = field.value;
    const bool isText = qstrcmp(field.name, "reply") == 0 || qstrcmp(field.name, "code") == 0;
    if (isText && !value.isEmpty() && QLatin1String("=+-@\t\r").contains(value.at(0)))
        value.prepend(QLatin1Char('\''));
    return QLatin1Char('"') + value.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QByteArray csvRow(const QList<Field> &fields, bool areNames)
{
    QStringList cells;
    for (const Field &field : fields)
        cells << (areNames ? QString::fromLatin1(field.name) : csvCell(field));
    return cells.join(QLatin1Char(',')).toUtf8() + "\r\n"; // RFC 4180
}

/** Collects the entries and formats them as CSV or JSON. */
class Collector
{
public:
    explicit Collector(bool isJson) : m_isJson(isJson)
    {
        if (!isJson)
            m_csv = csvRow(fieldsOf(0, AccountEntry()), true);
    }

    bool add(const QString &sim, const AccountEntry &entry)
    {
        if (!m_sims.contains(sim))
            m_sims.insert(sim, m_sims.size() + 1);
        const QList<Field> fields = fieldsOf(m_sims.value(sim), entry);
        if (!m_isJson) {
            m_csv += csvRow(fields, false);
            return true;
        }
        QJsonObject object;
        for (const Field &field : fields)
            object.insert(QLatin1String(field.name), field.value);
        m_json.append(object);
        return true;
    }

    QByteArray content() const { return m_isJson ? QJsonDocument(m_json).toJson() : m_csv; }

private:
    const bool m_isJson;
    QHash<QString, int> m_sims;
    QByteArray m_csv;
    QJsonArray m_json;
};

} // namespace

bool isExportName(const QString &file)
{
    return file.endsWith(QLatin1String(CSV), Qt::CaseInsensitive) ||
           file.endsWith(QLatin1String(JSON), Qt::CaseInsensitive);
}

QString exportAccountTo(const QString &file, const QString &database)
{
    if (!isExportName(file))
        return dashboardText("ACCOUNT_EXPORT_NAME").arg(file);
    Collector collector(file.endsWith(QLatin1String(JSON), Qt::CaseInsensitive));
    AccountDatabase entries(database);
    const bool isRead =
        entries.forEach(QString(), [&collector](const QString &sim, const AccountEntry &entry) {
            return collector.add(sim, entry);
        });
    const QString damaged = entries.takeDamagedFile();
    if (!damaged.isEmpty())
        return dashboardText("ACCOUNT_DAMAGED").arg(damaged);
    if (!isRead)
        return dashboardText("ACCOUNT_NOT_READ").arg(database);
    const QString error = writePrivateFile(file, collector.content());
    return error.isEmpty() ? error : dashboardText("ACCOUNT_NOT_EXPORTED").arg(file, error);
}

} // namespace Dashboard
