/*
 * Prints the folders that the core library returns, and the translation for each argument of the
 * form LANGUAGE:KEY. Tests run this program after they have copied the library to another folder.
 */
#include <QCoreApplication>
#include <QTextStream>

#include "Change.h"
#include "CommonUtils.h"
#include "InstallPaths.h"
#include "Languages.h"

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    out << CommonUtils::GetPluginLibraryPath() << '\n' << HostCore::InstallPaths::share() << '\n';
    for (const QString &argument : application.arguments().mid(1)) {
        const QStringList parts = argument.split(QLatin1Char(':'));
        if (!HostCore::Languages::setCurrent(parts.value(0)))
            out << "no " << parts.value(0) << ' ';
        out << Change::tr(QLatin1String("Test"), parts.value(1)) << '\n';
    }
    return 0;
}
