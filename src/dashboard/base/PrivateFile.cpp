#include "PrivateFile.h"

#include <QFile>
#include <QSaveFile>

namespace Dashboard
{

QString writePrivateFile(const QString &file, const QByteArray &content)
{
    QSaveFile output(file);
    const bool isOpen = output.open(QIODevice::WriteOnly) &&
                        output.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (isOpen && output.write(content) == content.size() && output.commit())
        return QString();
    return output.errorString();
}

} // namespace Dashboard
