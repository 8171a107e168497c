#include "FuzzSupport.h"

#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

namespace FuzzSupport
{

void fail(const char *condition, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, condition);
    std::abort();
}

void dropMessages()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

void needApplication()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char *argv[] = {name, nullptr};
    if (qApp)
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(argc, argv);
}

QString folder()
{
    static QTemporaryDir folder;
    return folder.path();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QString units(const uint8_t *data, size_t size)
{
    return QString(
        reinterpret_cast<const QChar *>(
            QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)).constData()),
        static_cast<int>(size / 2));
}

} // namespace FuzzSupport
