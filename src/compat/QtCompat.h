#ifndef QTCOMPAT_H
#define QTCOMPAT_H

/*
 * The few places where Qt 4 (4.6 to 4.8) and Qt 5.15 differ. Nothing else in the plug-in, the core
 * library and the dashboard asks for the Qt version.
 */

#include <QFontMetrics>
#include <QPixmap>
#include <QString>
#include <QtGlobal>
#include <QWidget>

/*
 * Qt 4 finds a plug-in by its entry points alone; Qt 5 makes the instance's one from the meta data.
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

/// The widget as the screen shows it. QWidget::render() does not mirror in Arabic.
inline QPixmap pictureOf(QWidget *widget)
{
#if QT_VERSION < 0x050000
    return QPixmap::grabWidget(widget);
#else
    return widget->grab();
#endif
}

/// Width of a line of text in pixels.
inline int textWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION < 0x050B00
    return metrics.width(text);
#else
    return metrics.horizontalAdvance(text);
#endif
}

/// The text with the characters that mean something in HTML replaced by entities.
inline QString escapeHtml(const QString &text)
{
#if QT_VERSION < 0x050000
    return Qt::escape(text);
#else
    return text.toHtmlEscaped();
#endif
}

/// What a message handler does; the text is in local 8-bit form.
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

/// Every Qt message goes to `handler`, on the thread that it comes from; null restores Qt's own.
inline void installMessageHandler(MessageHandler handler)
{
    Private::currentMessageHandler() = handler;
    qInstallMessageHandler(handler ? Private::forwardMessage : nullptr);
}
#endif

} // namespace QtCompat

#endif
