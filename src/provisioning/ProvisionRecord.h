#ifndef PROVISIONRECORD_H
#define PROVISIONRECORD_H

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Provisioning
{

/**
 * Describes the operator and the files that were written to a folder. The record is stored with the
 * files and makes it possible to detect later manual changes.
 */
struct ProvisionRecord {
    QString country;
    QString provider;
    QString network;                 // MCC and MNC; empty if unknown
    QMap<QString, QByteArray> files; // SHA-1 checksums in hexadecimal digits, keyed by file name

    bool isValid() const { return !files.isEmpty(); }
};

QByteArray provisionRecordText(const ProvisionRecord &record);
/// Parses a record. If `text` is damaged, the returned record is invalid.
ProvisionRecord provisionRecordFrom(const QByteArray &text);

QByteArray provisionChecksum(const QByteArray &content);

/// Returns the file name under which the record is stored.
QString provisionRecordName();

} // namespace Provisioning

#endif
