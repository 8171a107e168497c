#include "AccessibleTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>

#include <algorithm>
#include <iterator>

namespace
{

const int LIMIT = 20000; // ms
const int MOST_CHILDREN = 200;
const char ROOT[] = "/org/a11y/atspi/accessible/root";
const char REGISTRY[] = "org.a11y.atspi.Registry";
const char ACCESSIBLE[] = "org.a11y.atspi.Accessible";
const char ACTION[] = "org.a11y.atspi.Action";
const char COMPONENT[] = "org.a11y.atspi.Component";
const char TEXT[] = "org.a11y.atspi.Text";
const char VALUE[] = "org.a11y.atspi.Value";
const char OBJECT_EVENT[] = "org.a11y.atspi.Event.Object";

/** The values of AtspiStateType. */
enum State { Checked = 4, Enabled = 8, Expanded = 10, Selected = 23, Showing = 25, Visible = 30 };

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString quoted(const QString &value)
{
    QString shown = value;
    shown.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

bool has(quint64 states, State state)
{
    return states & (quint64(1) << state);
}

} // namespace

bool Accessible::isDisabled() const
{
    return !has(states, Enabled);
}

bool Accessible::isShown() const
{
    return has(states, Visible) && has(states, Showing);
}

bool Accessible::isSilent() const
{
    static const char *const groups[] = {"filler", "frame",       "panel",     "unknown",
                                         "label",  "scroll pane", "separator", "layered pane"};
    const bool isGroup = std::any_of(std::begin(groups), std::end(groups),
                                     [this](const char *group) { return role == text(group); });
    return isGroup && name.isEmpty() && description.isEmpty();
}

bool Accessible::isControl() const
{
    static const char *const controls[] = {"push button",  "check box", "radio button", "text",
                                           "combo box",    "slider",    "spin button",  "list",
                                           "progress bar", "page tab",  "menu item",    "table",
                                           "tree",         "entry",     "password text"};
    return std::any_of(std::begin(controls), std::end(controls),
                       [this](const char *control) { return role == text(control); });
}

QString Accessible::line() const
{
    QString line = role + QLatin1Char(' ') + quoted(name);
    if (!description.isEmpty())
        line += text(" - ") + quoted(description);
    if (isDisabled())
        line += text(" [disabled]");
    if (has(states, Checked))
        line += text(" [checked]");
    if (has(states, Selected))
        line += text(" [selected]");
    return line;
}

AccessibleTree::AccessibleTree(const QString &busAddress)
    : m_connectionName(text("accessible tree ") + busAddress),
      m_bus(QDBusConnection::connectToBus(busAddress, m_connectionName))
{
}

AccessibleTree::~AccessibleTree()
{
    QDBusConnection::disconnectFromBus(m_connectionName);
}

QDBusMessage AccessibleTree::call(const QString &service, const QString &path,
                                  const char *interface, const char *method,
                                  const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, path, text(interface), text(method));
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, LIMIT);
}

QVariant AccessibleTree::property(const Accessible &object, const char *interface,
                                  const char *name) const
{
    const QDBusMessage reply = call(object.service, object.path, "org.freedesktop.DBus.Properties",
                                    "Get", {text(interface), text(name)});
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

QList<QPair<QString, QString>> AccessibleTree::children(const QString &service,
                                                        const QString &path) const
{
    QList<QPair<QString, QString>> result;
    const QDBusMessage reply = call(service, path, ACCESSIBLE, "GetChildren");
    if (reply.type() != QDBusMessage::ReplyMessage)
        return result;
    const QDBusArgument list = reply.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString childService;
        QDBusObjectPath childPath;
        list.beginStructure();
        list >> childService >> childPath;
        list.endStructure();
        result << qMakePair(childService, childPath.path());
    }
    list.endArray();
    return result;
}

Accessible AccessibleTree::read(const QString &service, const QString &path) const
{
    Accessible object;
    object.service = service;
    object.path = path;
    const QDBusMessage state = call(service, path, ACCESSIBLE, "GetState");
    if (state.type() != QDBusMessage::ReplyMessage)
        return object;
    QList<uint> words;
    state.arguments().value(0).value<QDBusArgument>() >> words;
    if (words.size() == 2)
        object.states = words.at(0) | (quint64(words.at(1)) << 32);
    object.role = call(service, path, ACCESSIBLE, "GetRoleName").arguments().value(0).toString();
    object.name = property(object, ACCESSIBLE, "Name").toString();
    object.description = property(object, ACCESSIBLE, "Description").toString();
    return object;
}

/// Returns true for a hidden item view. Qt 5 reports it as visible, but with an empty rectangle.
bool AccessibleTree::isHiddenView(const Accessible &object) const
{
    const bool isView =
        object.role == text("list") || object.role == text("table") || object.role == text("tree");
    return isView && place(object).isEmpty();
}

void AccessibleTree::addVisible(QList<Accessible> &list, const QString &service,
                                const QString &path) const
{
    const Accessible object = read(service, path);
    if (!object.isShown() || isHiddenView(object))
        return;
    if (!object.isSilent())
        list << object;
    if (object.role == text("push button") || object.role == text("page tab"))
        return; // screen readers do not read the parts of a button
    const QList<QPair<QString, QString>> below = children(service, path);
    for (const QPair<QString, QString> &child : below.mid(0, MOST_CHILDREN))
        addVisible(list, child.first, child.second);
}

QList<Accessible> AccessibleTree::visible() const
{
    QList<Accessible> list;
    for (const QPair<QString, QString> &program : children(text(REGISTRY), text(ROOT))) {
        for (const QPair<QString, QString> &window : children(program.first, program.second))
            addVisible(list, window.first, window.second);
    }
    return list;
}

QStringList AccessibleTree::lines() const
{
    QStringList result;
    for (const Accessible &object : visible())
        result << object.line();
    return result;
}

Accessible AccessibleTree::find(const QRegularExpression &line) const
{
    for (const Accessible &object : visible()) {
        if (line.match(object.line()).hasMatch())
            return object;
    }
    return Accessible();
}

bool AccessibleTree::press(const Accessible &object) const
{
    return call(object.service, object.path, ACTION, "DoAction", {0}).arguments().value(0).toBool();
}

bool AccessibleTree::setFocus(const Accessible &object) const
{
    return call(object.service, object.path, COMPONENT, "GrabFocus").arguments().value(0).toBool();
}

QRect AccessibleTree::place(const Accessible &object) const
{
    const uint onScreen = 0;
    QRect place;
    const QDBusMessage reply =
        call(object.service, object.path, COMPONENT, "GetExtents", {onScreen});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return place;
    reply.arguments().value(0).value<QDBusArgument>() >> place;
    return place;
}

double AccessibleTree::value(const Accessible &object) const
{
    bool isNumber = false;
    const double value = property(object, VALUE, "CurrentValue").toDouble(&isNumber);
    return isNumber ? value : -1;
}

QString AccessibleTree::content(const Accessible &object) const
{
    return call(object.service, object.path, TEXT, "GetText", {0, -1})
        .arguments()
        .value(0)
        .toString();
}

bool AccessibleTree::listen()
{
    m_bus.connect(QString(), QString(), text(OBJECT_EVENT), QString(), this,
                  SLOT(onEvent(QDBusMessage)));
    return call(text(REGISTRY), text("/org/a11y/atspi/registry"), REGISTRY, "RegisterEvent",
                {text("object:")})
               .type() == QDBusMessage::ReplyMessage;
}

// Records the event. If the name of an object has changed, the name is queried, because the event
// contains the object itself instead of the new name.
void AccessibleTree::onEvent(const QDBusMessage &message)
{
    const QString detail = message.arguments().value(0).toString();
    QStringList words = {message.member(), detail};
    if (detail == text("accessible-name")) {
        Accessible object;
        object.service = message.service();
        object.path = message.path();
        words << property(object, ACCESSIBLE, "Name").toString();
    }
    m_events << words.join(QLatin1Char(' '));
}
