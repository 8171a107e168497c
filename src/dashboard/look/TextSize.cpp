#include "TextSize.h"

#include <QGuiApplication>

#include "StartEnvironment.h"

namespace Dashboard
{

namespace
{

const char SCALE_FACTOR[] = "QT_SCALE_FACTOR";

void scaleWithScreen()
{
#if QT_VERSION < 0x060000 // always the case in Qt 6
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
#endif
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

double scaleOfUser()
{
    bool isNumber = false;
    const double scale = qgetenv(SCALE_FACTOR).toDouble(&isNumber);
    return isNumber && scale > 0 ? scale : 1;
}

} // namespace

// The resolution of fonts (QT_FONT_DPI) would not do: it replaces the resolution of the screen
// instead of being multiplied with it.
void applyTextSize(int percent)
{
    scaleWithScreen();
    if (percent > 100)
        StartEnvironment::instance().set(SCALE_FACTOR,
                                         QByteArray::number(scaleOfUser() * percent / 100));
}

} // namespace Dashboard
