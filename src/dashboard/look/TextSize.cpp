#include "TextSize.h"

#include <QGuiApplication>

#include "QtCompat.h"
#include "StartEnvironment.h"

namespace Dashboard
{

namespace
{

const char SCALE_FACTOR[] = "QT_SCALE_FACTOR";

double scaleOfUser()
{
    bool isNumber = false;
    const double scale = qgetenv(SCALE_FACTOR).toDouble(&isNumber);
    return isNumber && scale > 0 ? scale : 1;
}

} // namespace

// Sets QT_SCALE_FACTOR instead of the font resolution (QT_FONT_DPI), because QT_FONT_DPI replaces
// the resolution of the screen instead of scaling it.
void applyTextSize(int percent)
{
    QtCompat::scaleWithScreen();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    if (percent > 100)
        StartEnvironment::instance().set(SCALE_FACTOR,
                                         QByteArray::number(scaleOfUser() * percent / 100));
}

} // namespace Dashboard
