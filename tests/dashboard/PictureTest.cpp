#include "PictureTest.h"

#include <QDir>
#include <QFontInfo>

using namespace Dashboard;

namespace
{

const char FONT[] = "DejaVu Sans";
const int EM = 14; // in pixels
const int SMALLEST_FILE = 0;

// Versions of the font library differ slightly in how they draw the edges of letters.
const int SAME_SHADE = 40;      // the permitted difference of a colour component (0 to 255)
const double TOLERANCE = 0.002; // share of the pixels that may differ

bool isAccepting()
{
    return qEnvironmentVariableIsSet("USSD_ACCEPT_PICTURES");
}

QString expectedFile(const QString &name)
{
    return QLatin1String(PICTURES "/") + name + QLatin1String(".png");
}

QString outputFile(const QString &name)
{
    QDir().mkpath(QLatin1String(PICTURES_OUTPUT));
    return QLatin1String(PICTURES_OUTPUT "/") + name + QLatin1String(".png");
}

bool differ(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) > SAME_SHADE || qAbs(qGreen(a) - qGreen(b)) > SAME_SHADE ||
           qAbs(qBlue(a) - qBlue(b)) > SAME_SHADE;
}

} // namespace

void PictureTest::setUpClass()
{
    QApplication::setCursorFlashTime(0);
    QFont font{QLatin1String(FONT)};
    font.setPixelSize(EM);
    QCOMPARE(QFontInfo(font).family(), QLatin1String(FONT));
    QApplication::setFont(font);
    Look::instance().setTheme(ThemeChoice::Light);
    Look::instance().start();
}

void PictureTest::tearDown()
{
    use(Shade::Light);
}

void PictureTest::use(Shade shade, Qt::LayoutDirection direction)
{
    QGuiApplication::setLayoutDirection(direction);
    Look::instance().setTheme(shade == Shade::Dark ? ThemeChoice::Dark : ThemeChoice::Light);
}

void PictureTest::compare(QWidget *widget, const QString &name)
{
    drainEvents();
    const QImage actual = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (isAccepting()) {
        QVERIFY(actual.save(expectedFile(name), "PNG", SMALLEST_FILE));
        return;
    }
    const QImage expected(expectedFile(name));
    QVERIFY2(!expected.isNull(), qPrintable(expectedFile(name)));
    QImage marked;
    const int found = differences(actual, expected, &marked);
    if (found >= 0 && found <= TOLERANCE * actual.width() * actual.height())
        return;
    actual.save(outputFile(name));
    marked.save(outputFile(name + QLatin1String("-differences")));
    QFAIL(qPrintable(QString(latin1("%1 differs from %2 in %3 pixels"))
                         .arg(outputFile(name), expectedFile(name))
                         .arg(found)));
}

int PictureTest::differences(const QImage &actual, const QImage &expected, QImage *marked)
{
    if (actual.size() != expected.size())
        return -1;
    QImage picture = actual.convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < actual.height(); ++y)
        for (int x = 0; x < actual.width(); ++x)
            if (differ(actual.pixel(x, y), expected.pixel(x, y))) {
                picture.setPixel(x, y, qRgb(255, 0, 255));
                ++count;
            }
    if (marked)
        *marked = picture;
    return count;
}
