#include "TextSize.h"

#include <QGuiApplication>

namespace Dashboard
{

namespace
{

const char FONT_DPI[] = "QT_FONT_DPI";
const int DPI_AT_100_PERCENT = 96;

void scaleWithScreen()
{
#if QT_VERSION < 0x060000 // always the case in Qt 6
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
#endif
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

} // namespace

void applyTextSize(int percent)
{
    scaleWithScreen();
    if (percent > 100 && !qEnvironmentVariableIsSet(FONT_DPI))
        qputenv(FONT_DPI, QByteArray::number(DPI_AT_100_PERCENT * percent / 100));
}

} // namespace Dashboard
