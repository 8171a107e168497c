#ifndef PROVISIONRECORD_H
#define PROVISIONRECORD_H

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Provisioning
{

/**
 * A record of the files that were written to a folder, and of their operator. The record is stored
 * next to the files, so that later manual changes can be detected.
 */
struct ProvisionRecord {
    QString country;
    QString provider;
    QString network;                 // MCC and MNC; empty if unknown
    QMap<QString, QByteArray> files; // checksums (SHA-1 in hexadecimal digits), keyed by file name

    bool isValid() const { return !files.isEmpty(); }
};

QByteArray provisionRecordText(const ProvisionRecord &record);
/// Parses a record. Returns an invalid record if `text` is damaged.
ProvisionRecord provisionRecordFrom(const QByteArray &text);

QByteArray provisionChecksum(const QByteArray &content);

/// Returns the file name of the record.
QString provisionRecordName();

} // namespace Provisioning

#endif
