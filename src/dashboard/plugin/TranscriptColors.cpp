#include "TranscriptColors.h"

#include <QFile>
#include <QXmlStreamReader>

#include "CommonUtils.h"
#include "ForwardXml.h"
#include "InputFile.h"
#include "look/Tokens.h"
#include "PluginConfig.h"
#include "PluginFiles.h"
#include "XmlName.h"

using namespace Formats;

namespace Dashboard
{

namespace
{

const double READABLE = 4.5; // the contrast that WCAG 2.1 requires of text

QString checkedAgainstPaper(const char *element, const Char &line)
{
    const QColor color(line.red, line.green, line.blue);
    if (!color.isValid())
        return QString();
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        const QColor paper = tokenColor(Token::Paper, shade);
        const double found = contrast(color, paper);
        if (found < READABLE)
            return QString::fromLatin1("%1: the colour of \"%2\", %3 on %4, has a contrast of only "
                                       "%5; text needs at least %6")
                .arg(QLatin1String(PluginFiles::CONFIGURATION), QLatin1String(element),
                     color.name(), paper.name(), QString::number(found, 'f', 1),
                     QString::number(READABLE));
    }
    return QString();
}

} // namespace

QStringList paleTranscriptColors(const PluginConfig &configuration)
{
    QStringList warnings;
    warnings << checkedAgainstPaper(XmlName::SENT_CHAR, configuration.sentChar)
             << checkedAgainstPaper(XmlName::RECEIVED_CHAR, configuration.receivedChar);
    warnings.removeAll(QString());
    return warnings;
}

void warnAboutPaleTranscript()
{
    QFile file(PluginFiles::path(CommonUtils::GetPluginLibraryPath(), PluginFiles::CONFIGURATION));
    QString problem;
    if (!InputFile::open(file, QIODevice::Text, problem))
        return;
    QXmlStreamReader reader;
    ForwardXml::start(reader, file);
    PluginConfig configuration;
    readConfiguration(reader, configuration);
    for (const QString &warning : paleTranscriptColors(configuration))
        qWarning("%s", warning.toLocal8Bit().constData());
}

} // namespace Dashboard
