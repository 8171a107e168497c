#ifndef WINDOWS_ACCESSIBLETREE_H
#define WINDOWS_ACCESSIBLETREE_H

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QRect>
#include <QRegularExpression>
#include <QStringList>

class QDBusMessage;

/** A widget, or a part of a widget, as a screen reader receives it. */
struct Accessible {
    QString service;
    QString path;
    QString role;
    QString name;
    QString description;
    quint64 states = 0; // one bit for each AT-SPI state

    bool isDisabled() const;
    bool isShown() const;
    /// Returns true if it only groups other widgets and has nothing to say.
    bool isSilent() const;
    /// Returns true if the user can press it, type into it, or choose from it.
    bool isControl() const;
    /// Returns the role, the name and the description, for example "label \"Balance\"". States that
    /// a screen reader reads aloud follow in brackets.
    QString line() const;
};

/**
 * Reads the accessible objects of a program from the accessibility bus, as a screen reader does,
 * and receives their events. There must be only one program on the bus.
 */
class AccessibleTree : public QObject
{
    Q_OBJECT
public:
    explicit AccessibleTree(const QString &busAddress);
    ~AccessibleTree() override;

    /// Returns the visible widgets of all windows in the order in which a screen reader meets them.
    /// The list is empty while there is no program.
    QList<Accessible> visible() const;
    QStringList lines() const;

    /// Returns the first visible widget whose line matches, or one with an empty path.
    Accessible find(const QRegularExpression &line) const;
    /// Performs the default action, which is to press a button. Returns false if it has no action.
    bool press(const Accessible &object) const;
    bool setFocus(const Accessible &object) const;
    /// Returns the place of the widget on the screen.
    QRect place(const Accessible &object) const;
    /// Returns the current value of a progress bar, slider or spin box, or -1.
    double value(const Accessible &object) const;

    /// Asks the program to send events from now on.
    bool listen();
    /// Returns the events that were received, for example
    /// "PropertyChange accessible-name Ready".
    QStringList events() const { return m_events; }
    void forgetEvents() { m_events.clear(); }

private slots:
    void onEvent(const QDBusMessage &message);

private:
    Accessible read(const QString &service, const QString &path) const;
    QList<QPair<QString, QString>> children(const QString &service, const QString &path) const;
    void addVisible(QList<Accessible> &list, const QString &service, const QString &path) const;
    QVariant property(const Accessible &object, const char *interface, const char *name) const;
    QDBusMessage call(const QString &service, const QString &path, const char *interface,
                      const char *method, const QVariantList &arguments = QVariantList()) const;

    QString m_connectionName;
    QDBusConnection m_bus;
    QStringList m_events;
};

#endif
