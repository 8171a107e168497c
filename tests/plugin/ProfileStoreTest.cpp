#include "ProfileStoreTest.h"

#include <QBuffer>
#include <QFile>
#include <QXmlStreamReader>

#include "ProfileXml.h"

USSDProfile profile(const QString &name, const QString &value)
{
    USSDProfile result;
    result.name = name;
    result.value = value;
    return result;
}

void ProfileStoreTest::write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}

QList<USSDProfile> ProfileStoreTest::list(USSDEditCmd &store)
{
    QList<USSDProfile> profiles;
    store.GetProfileList(profiles);
    return profiles;
}

QList<USSDProfile> ProfileStoreTest::loaded()
{
    USSDEditCmd store;
    return list(store);
}

QStringList ProfileStoreTest::codes(const QList<USSDProfile> &profiles)
{
    QStringList result;
    for (const USSDProfile &each : profiles)
        result << (each.isSystem ? latin1("system ") : QString()) + each.value;
    return result;
}

QList<USSDProfile> ProfileStoreTest::readBack(QByteArray xml, QString *error)
{
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&buffer);
    QList<USSDProfile> profiles;
    USSDProfile next;
    while (ProfileXml::readNext(reader, next))
        profiles << next;
    if (error)
        *error = reader.hasError() ? reader.errorString() : QString();
    return profiles;
}
