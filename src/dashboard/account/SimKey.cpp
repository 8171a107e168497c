#include "SimKey.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>

#include <unistd.h>

#include "InputFile.h"
#include "ProvisionWriter.h"

namespace Dashboard
{

namespace
{

const char SALT_FILE[] = "sim-salt";
const int SALT_BYTES = 32;

QByteArray newSalt()
{
    quint32 words[SALT_BYTES / int(sizeof(quint32))];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char *>(words), int(sizeof(words)));
}

/// Stores a new salt, unless another process has stored a salt in the meantime. Returns true if the
/// file exists afterwards.
bool writeSalt(const QString &path)
{
    const QString temporary = path + QString::fromLatin1(".%1").arg(getpid());
    QFile file(temporary);
    const QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                           file.setPermissions(ownerOnly) && file.write(newSalt()) == SALT_BYTES &&
                           file.flush() && fsync(file.handle()) == 0;
    file.close();
    const bool isLinked = isWritten && link(QFile::encodeName(temporary).constData(),
                                            QFile::encodeName(path).constData()) == 0;
    QFile::remove(temporary);
    return isLinked || QFile::exists(path);
}

QString saltFile(const QString &folder)
{
    return folder + QLatin1Char('/') + QLatin1String(SALT_FILE);
}

QByteArray saltIn(const QString &folder)
{
    const QString path = saltFile(folder);
    QByteArray salt = InputFile::content(path);
    if (salt.size() == SALT_BYTES)
        return salt;
    QFile::remove(path); // the salt is damaged, so earlier entries cannot be found anyway
    if (!QDir().mkpath(folder) || !writeSalt(path))
        return QByteArray();
    salt = InputFile::content(path);
    return salt.size() == SALT_BYTES ? salt : QByteArray();
}

} // namespace

QString simKey(const QString &imsi, const QString &folder)
{
    if (imsi.isEmpty())
        return QString();
    const QByteArray salt = saltIn(folder);
    if (salt.isEmpty())
        return QString();
    return QString::fromLatin1(
        QMessageAuthenticationCode::hash(imsi.toUtf8(), salt, QCryptographicHash::Sha256).toHex());
}

QString simKey(const QString &imsi)
{
    return simKey(imsi, Provisioning::userDataHome());
}

bool forgetSimKeys(const QString &folder)
{
    const QString path = saltFile(folder);
    return !QFile::exists(path) || QFile::remove(path);
}

bool forgetSimKeys()
{
    return forgetSimKeys(Provisioning::userDataHome());
}

} // namespace Dashboard
