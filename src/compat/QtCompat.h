#ifndef QTCOMPAT_H
#define QTCOMPAT_H

/*
 * The differences between Qt 4 (4.6 to 4.8), Qt 5.15 and Qt 6 that affect the plug-in and the core
 * library. All other files of these two components are independent of the Qt version.
 */

#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QMutexLocker>
#include <QPixmap>
#include <QRect>
#include <QRegExp>
#include <QString>
#include <QtGlobal>
#include <QValidator>
#include <QWidget>

#if QT_VERSION < 0x060000
#include <QDesktopWidget>
#include <QRegExpValidator>
#else
#include <QCloseEvent>
#include <QScreen>
#endif

/*
 * In Qt 4, the entry point qt_plugin_instance() must be defined explicitly. In later versions, moc
 * generates it from Q_PLUGIN_METADATA.
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

#if QT_VERSION < 0x060000
typedef ::QMutexLocker MutexLocker;
typedef ::QRegExpValidator RegExpValidator;
#else
typedef ::QMutexLocker<QMutex> MutexLocker;

/** A replacement for QRegExpValidator, which is not available in Qt 6. */
class RegExpValidator : public QValidator
{
public:
    explicit RegExpValidator(QObject *parent) : QValidator(parent) {}
    RegExpValidator(const QRegExp &pattern, QObject *parent)
        : QValidator(parent), m_pattern(pattern)
    {
    }

    void setRegExp(const QRegExp &pattern)
    {
        m_pattern = pattern;
        emit changed();
    }
    const QRegExp &regExp() const { return m_pattern; }

    State validate(QString &input, int &position) const override
    {
        const QRegExp pattern(m_pattern); // a copy, because matching changes the captures
        if (pattern.exactMatch(input))
            return Acceptable;
        if (pattern.matchedLength() == input.size())
            return Intermediate;
        position = int(input.size());
        return Invalid;
    }

private:
    QRegExp m_pattern;
};
#endif

/// Returns an image of the widget as it appears on the screen. QWidget::render() is not sufficient,
/// because it does not mirror the widget in a right-to-left layout.
inline QPixmap pictureOf(QWidget *widget)
{
#if QT_VERSION < 0x050000
    return QPixmap::grabWidget(widget);
#else
    return widget->grab();
#endif
}

/// Closes the widget and always sends a close event. In Qt 6, QWidget::close() does not send a
/// close event to a hidden window, for example to a dialog that has been rejected.
inline void closeEvenIfHidden(QWidget *widget)
{
#if QT_VERSION >= 0x060000
    if (widget->isHidden()) {
        QCloseEvent event;
        QCoreApplication::sendEvent(widget, &event);
        return;
    }
#endif
    widget->close();
}

/// Returns the available area of the screen that contains `widget`.
inline QRect availableGeometry(const QWidget *widget)
{
#if QT_VERSION < 0x060000
    return QApplication::desktop()->availableGeometry(widget);
#else
    return widget->screen()->availableGeometry();
#endif
}

/// Makes Qt scale windows according to the screen resolution. Must be called before the application
/// object is created. Qt 6 always scales windows; Qt 4 does not support scaling.
inline void scaleWithScreen()
{
#if QT_VERSION >= 0x050600 && QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
#endif
}

/// Returns the folder that contains Qt's own translations.
inline QString qtTranslations()
{
#if QT_VERSION < 0x060000
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

/// Returns the width of a single line of text in pixels.
inline int textWidth(const QFontMetrics &metrics, const QString &text)
{
#if QT_VERSION < 0x050B00
    return metrics.width(text);
#else
    return metrics.horizontalAdvance(text);
#endif
}

/// Returns the string with the special characters of HTML replaced by entities.
inline QString escapeHtml(const QString &text)
{
#if QT_VERSION < 0x050000
    return Qt::escape(text);
#else
    return text.toHtmlEscaped();
#endif
}

/// A function that receives Qt log messages. `text` is in the local 8-bit encoding.
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

/// Passes all Qt log messages to `handler`, which is called from the thread that logs the message.
/// Null restores Qt's default handler.
inline void installMessageHandler(MessageHandler handler)
{
    Private::currentMessageHandler() = handler;
    qInstallMessageHandler(handler ? Private::forwardMessage : nullptr);
}
#endif

} // namespace QtCompat

#endif
