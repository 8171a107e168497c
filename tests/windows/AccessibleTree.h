#ifndef WINDOWS_ACCESSIBLETREE_H
#define WINDOWS_ACCESSIBLETREE_H

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QRect>
#include <QRegularExpression>
#include <QStringList>

class QDBusMessage;

/** A widget or a part of a widget, as reported to a screen reader. */
struct Accessible {
    QString service;
    QString path;
    QString role;
    QString name;
    QString description;
    quint64 states = 0; // one bit for each AT-SPI state

    bool isDisabled() const;
    bool isShown() const;
    /// Returns true if the widget only groups other widgets and has neither a name nor a
    /// description.
    bool isSilent() const;
    /// Returns true if the user can press the widget, type into it or select from it.
    bool isControl() const;
    /// Returns the role, the name and the description, for example "label \"Balance\"". States that
    /// a screen reader announces are appended in brackets.
    QString line() const;
};

/**
 * Reads the accessible objects of a program from the accessibility bus, as a screen reader would,
 * and receives their events. No other program may be connected to the bus.
 */
class AccessibleTree : public QObject
{
    Q_OBJECT
public:
    explicit AccessibleTree(const QString &busAddress);
    ~AccessibleTree() override;

    /// Returns the visible widgets in all windows, in the reading order of a screen reader. The
    /// list is empty if no program is running.
    QList<Accessible> visible() const;
    QStringList lines() const;

    /// Returns the first visible widget whose line matches. If there is none, the path of the
    /// result is empty.
    Accessible find(const QRegularExpression &line) const;
    /// Performs the default action of the object, for example pressing a button. Returns false if
    /// the object has no action.
    bool press(const Accessible &object) const;
    bool setFocus(const Accessible &object) const;
    /// Returns the position and size of the widget on the screen.
    QRect place(const Accessible &object) const;
    /// Returns the current value of a progress bar, slider or spin box, or -1 if there is no value.
    double value(const Accessible &object) const;

    /// Returns the text in a text field or a transcript.
    QString content(const Accessible &object) const;

    /// Requests events from the program.
    bool listen();
    /// Returns the received events, for example "PropertyChange accessible-name Ready".
    QStringList events() const { return m_events; }
    void forgetEvents() { m_events.clear(); }

private slots:
    void onEvent(const QDBusMessage &message);

private:
    Accessible read(const QString &service, const QString &path) const;
    QList<QPair<QString, QString>> children(const QString &service, const QString &path) const;
    bool isHiddenView(const Accessible &object) const;
    void addVisible(QList<Accessible> &list, const QString &service, const QString &path) const;
    QVariant property(const Accessible &object, const char *interface, const char *name) const;
    QDBusMessage call(const QString &service, const QString &path, const char *interface,
                      const char *method, const QVariantList &arguments = QVariantList()) const;

    QString m_connectionName;
    QDBusConnection m_bus;
    QStringList m_events;
};

#endif
