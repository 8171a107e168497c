#ifndef PROVISIONRECORD_H
#define PROVISIONRECORD_H

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/**
 * What was written into a folder, and for whom: kept beside the files, so that it is known later
 * whether a person has changed them.
 */
struct ProvisionRecord {
    QString country;
    QString provider;
    QString network;                 // empty when it was not known
    QMap<QString, QByteArray> files; // name to checksum, SHA-1 in hexadecimal digits

    bool isValid() const { return !files.isEmpty(); }
};

QByteArray provisionRecordText(const ProvisionRecord &record);
/// Invalid when the text is no record, or a damaged one.
ProvisionRecord provisionRecordFrom(const QByteArray &text);

QByteArray provisionChecksum(const QByteArray &content);

/// The name of the record's file.
QString provisionRecordName();

#endif
