#ifndef QTCOMPAT_H
#define QTCOMPAT_H

/*
 * The differences between Qt 4 (4.6 to 4.8) and Qt 5.15 that affect the plug-in and the core
 * library. No other file in these two components checks the Qt version.
 */

#include <QFontMetrics>
#include <QPixmap>
#include <QString>
#include <QtGlobal>
#include <QWidget>

/*
 * In Qt 4, the entry point qt_plugin_instance() must be defined by hand. In Qt 5, moc generates it
 * from Q_PLUGIN_METADATA.
 */
#if QT_VERSION < 0x050000
#include <QTextDocument>
#include <QtPlugin>
#define Q_PLUGIN_METADATA(metadata)
#define USSD_QT4_PLUGIN_INSTANCE(Class)                                                            \
    extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance();                                        \
    QObject *qt_plugin_instance() Q_PLUGIN_INSTANCE(Class)
#else
#define USSD_QT4_PLUGIN_INSTANCE(Class)
#endif

namespace QtCompat
{

/// Returns an image of the widget as it appears on the screen. QWidget::render() does not mirror
/// the widget in a right-to-left layout.
inline QPixmap pictureOf(QWidget *widget)
{
#if QT_VERSION < 0x050000
    return QPixmap::grabWidget(widget);
#else
    return widget->grab();
#endif
}

/// Returns the width of a line of text in pixels.
inline int textWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION < 0x050B00
    return metrics.width(text);
#else
    return metrics.horizontalAdvance(text);
#endif
}

/// Returns the string with the special characters of HTML replaced with entities.
inline QString escapeHtml(const QString &text)
{
#if QT_VERSION < 0x050000
    return Qt::escape(text);
#else
    return text.toHtmlEscaped();
#endif
}

/// The type of a function that receives a Qt log message. `text` is in the local 8-bit encoding.
typedef void (*MessageHandler)(QtMsgType type, const char *text);

#if QT_VERSION < 0x050000
inline void installMessageHandler(MessageHandler handler)
{
    qInstallMsgHandler(handler);
}
#else
namespace Private
{
inline MessageHandler &currentMessageHandler()
{
    static MessageHandler handler = nullptr;
    return handler;
}

inline void forwardMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (MessageHandler handler = currentMessageHandler())
        handler(type, text.toLocal8Bit().constData());
}
} // namespace Private

/// Passes every Qt log message to `handler`, which is called from the thread that logs the message.
/// Null restores Qt's default handler.
inline void installMessageHandler(MessageHandler handler)
{
    Private::currentMessageHandler() = handler;
    qInstallMessageHandler(handler ? Private::forwardMessage : nullptr);
}
#endif

} // namespace QtCompat

#endif
