#include "stage/ScreenReader.h"

#include "stage/PrivateSession.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
const QString launcher = u"/usr/libexec/at-spi-bus-launcher"_s;
const QString sessionConnection = u"screen-reader-session"_s;
const QString connectionName = u"screen-reader"_s;
const QString registry = u"org.a11y.atspi.Registry"_s;
const QString accessibleInterface = u"org.a11y.atspi.Accessible"_s;
const QString actionInterface = u"org.a11y.atspi.Action"_s;
const QString properties = u"org.freedesktop.DBus.Properties"_s;

QDBusMessage call(const ScreenReader::Object &object, const QString &interface, const QString &method,
    const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    call.setArguments(arguments);
    return call;
}

/// The address of the accessibility bus, once the launcher is on the session bus.
QString accessibilityBus(const QString &sessionBus)
{
    QDBusConnection session = QDBusConnection::connectToBus(sessionBus, sessionConnection);
    QString address;
    PrivateSession::waitUntil([&] {
        const QDBusReply<QString> reply = session.call(QDBusMessage::createMethodCall(
            u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
        address = reply.value();
        return !address.isEmpty();
    });
    QDBusConnection::disconnectFromBus(sessionConnection);
    return address;
}
} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const ScreenReader::Object &object)
{
    argument.beginStructure();
    argument << object.service << object.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, ScreenReader::Object &object)
{
    argument.beginStructure();
    argument >> object.service >> object.path;
    argument.endStructure();
    return argument;
}

QList<ScreenReader::Node> ScreenReader::Node::all(const QString &wanted) const
{
    QList<Node> found;
    if (wanted.isEmpty() || role == wanted)
        found.append(*this);
    for (const Node &child : children)
        found += child.all(wanted);
    return found;
}

QString ScreenReader::Node::outline(int depth) const
{
    QString text = QString(2 * depth, u' ') + spoken();
    if (!description.isEmpty())
        text += u" (%1)"_s.arg(description);
    for (const auto &[state, word] : {std::pair(State::Showing, "showing"),
             std::pair(State::Focused, "focused"), std::pair(State::Active, "active")}) {
        if (is(state))
            text += u' ' + QLatin1StringView(word);
    }
    text += u'\n';
    for (const Node &child : children)
        text += child.outline(depth + 1);
    return text;
}

bool ScreenReader::isPossible()
{
    return QFileInfo(launcher).isExecutable();
}

ScreenReader::ScreenReader(const PrivateSession &session)
    : m_launcher(session.start(launcher, {}, {u"--launch-immediately"_s, u"--screen-reader=1"_s}))
    , m_bus(QDBusConnection::connectToBus(accessibilityBus(session.busAddress()), connectionName))
{
    qDBusRegisterMetaType<Object>();
    qDBusRegisterMetaType<QList<Object>>();
    for (const QString &kind : {u"Object"_s, u"Window"_s}) {
        if (!m_bus.connect({}, {}, u"org.a11y.atspi.Event."_s + kind, {}, this, SLOT(hear(QDBusMessage))))
            qFatal("cannot listen on the accessibility bus: %s", qPrintable(m_bus.lastError().message()));
        // Programs announce only what somebody has registered for.
        const QDBusMessage reply = ask({registry, QDBusObjectPath(u"/org/a11y/atspi/registry"_s)}, registry,
            u"RegisterEvent"_s, {kind.toLower() + u':'});
        if (reply.type() == QDBusMessage::ErrorMessage)
            qFatal("cannot register for events: %s", qPrintable(reply.errorMessage()));
    }
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(connectionName);
    PrivateSession::stop(*m_launcher);
}

QStringList ScreenReader::focused() const
{
    QStringList said;
    for (const Event &event : m_heard) {
        if (event.kind == u"StateChanged:focused"_s && event.detail == 1)
            said.append(event.source.spoken());
    }
    return said;
}

ScreenReader::Node ScreenReader::application(const QString &name) const
{
    for (const Object &object :
        childrenOf({registry, QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)})) {
        if (describe(object).name == name)
            return read(object);
    }
    return {};
}

ScreenReader::Node ScreenReader::read(const Object &object) const
{
    Node node = describe(object);
    addChildren(node);
    return node;
}

QList<ScreenReader::Action> ScreenReader::actions(const Object &object) const
{
    QList<Action> actions;
    const QDBusMessage reply = ask(object, actionInterface, u"GetActions"_s);
    const auto list = reply.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Action action;
        QString description;
        list.beginStructure();
        list >> action.name >> description >> action.key;
        list.endStructure();
        actions.append(action);
    }
    list.endArray();
    return actions;
}

void ScreenReader::act(const Object &object, const QString &actionName) const
{
    const QList<Action> actions = this->actions(object);
    for (int number = 0; number < actions.size(); ++number) {
        if (actions[number].name == actionName)
            m_bus.send(call(object, actionInterface, u"DoAction"_s, {number}));
    }
}

void ScreenReader::hear(const QDBusMessage &event)
{
    // Asked at once, as a screen reader does: what is gone by then cannot be said.
    const QString kind = event.arguments().value(0).toString();
    m_heard.append({kind.isEmpty() ? event.member() : event.member() + u':' + kind,
        event.arguments().value(1).toInt(), describe({event.service(), QDBusObjectPath(event.path())})});
}

QDBusMessage ScreenReader::ask(const Object &object, const QString &interface, const QString &method,
    const QVariantList &arguments) const
{
    return m_bus.call(call(object, interface, method, arguments));
}

QList<ScreenReader::Object> ScreenReader::childrenOf(const Object &object) const
{
    return QDBusReply<QList<Object>>(ask(object, accessibleInterface, u"GetChildren"_s)).value();
}

ScreenReader::Node ScreenReader::describe(const Object &object) const
{
    const auto property = [&](const QString &name) {
        return QDBusReply<QDBusVariant>(ask(object, properties, u"Get"_s, {accessibleInterface, name}))
            .value()
            .variant()
            .toString();
    };
    Node node;
    node.object = object;
    node.role = QDBusReply<QString>(ask(object, accessibleInterface, u"GetRoleName"_s)).value();
    node.name = property(u"Name"_s);
    node.description = property(u"Description"_s);
    const QList<uint> states =
        QDBusReply<QList<uint>>(ask(object, accessibleInterface, u"GetState"_s)).value();
    if (states.size() == 2)
        node.states = quint64(states[1]) << 32 | states[0];
    return node;
}

void ScreenReader::addChildren(Node &node) const
{
    for (const Object &object : childrenOf(node.object)) {
        node.children.append(describe(object));
        addChildren(node.children.last());
    }
}
