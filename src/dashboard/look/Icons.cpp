#include "Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QWidget>

#include "Look.h"
#include "Resources.h"

#include <cstring>

namespace Dashboard
{

namespace
{

bool isMirrored(const char *name)
{
    if (QGuiApplication::layoutDirection() != Qt::RightToLeft)
        return false;
    for (const char *mirrored : {"chevron", "chevronL", "send", "list"})
        if (std::strcmp(name, mirrored) == 0)
            return true;
    return false;
}

QString fileOf(const char *name)
{
    return QLatin1String(":/look/icons/") + QLatin1String(name) + QLatin1String(".svg");
}

/// Draws the icon, which is black, and replaces black with the colour.
QImage draw(const char *name, const QColor &color, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int side = qMin(size.width(), size.height());
    const QRectF square((size.width() - side) / 2.0, (size.height() - side) / 2.0, side, side);
    QSvgRenderer renderer(fileOf(name));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, square);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    return isMirrored(name) ? image.mirrored(true, false) : image;
}

QString cacheKey(const char *name, const QColor &color, const QSize &size)
{
    return QString::fromLatin1("look/%1/%2/%3x%4/%5")
        .arg(QLatin1String(name), color.name())
        .arg(size.width())
        .arg(size.height())
        .arg(isMirrored(name));
}

/// Returns the icon as a pixmap. `size` is in device pixels.
QPixmap pixmapOf(const char *name, const QColor &color, const QSize &size)
{
    if (size.isEmpty())
        return QPixmap();
    const QString key = cacheKey(name, color, size);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(draw(name, color, size));
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

/// Reads the file without detecting its format. To detect the format, Qt would ask each of its
/// image format plug-ins.
QPixmap pngPixmap(const QString &file)
{
    QImageReader reader(file, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

class TokenIconEngine : public QIconEngine
{
public:
    TokenIconEngine(const char *name, Token token, Token whenOn)
        : m_name(name), m_token(token), m_whenOn(whenOn)
    {
    }

    QIconEngine *clone() const override { return new TokenIconEngine(*this); }
    QString key() const override { return QLatin1String("TokenIconEngine"); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return pixmapOf(m_name, Look::instance().color(tokenFor(mode, state)), size);
    }

private:
    Token tokenFor(QIcon::Mode mode, QIcon::State state) const
    {
        if (mode == QIcon::Disabled)
            return Token::DisabledText;
        return state == QIcon::On ? m_whenOn : m_token;
    }

    const char *m_name; // a string literal
    Token m_token;
    Token m_whenOn;
};

} // namespace

QIcon icon(const char *name, Token token)
{
    return icon(name, token, token);
}

QIcon icon(const char *name, Token token, Token whenOn)
{
    return QIcon(new TokenIconEngine(name, token, whenOn));
}

QIcon applicationIcon()
{
    openResources();
    QIcon icon;
    for (const char *size : {"16", "32", "48", "128"})
        icon.addPixmap(
            pngPixmap(QString::fromLatin1(":/look/application-%1.png").arg(QLatin1String(size))));
    return icon;
}

QPixmap iconPixmap(const char *name, Token token, int size, const QWidget *widget)
{
    const double ratio = widget->devicePixelRatioF();
    QPixmap pixmap = pixmapOf(name, Look::instance().color(token), QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace Dashboard
