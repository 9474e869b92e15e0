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

/// The address of the accessibility bus, as soon as the launcher is on the session bus.
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
    if (role == wanted)
        found.append(*this);
    for (const Node &child : children)
        found += child.all(wanted);
    return found;
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

ScreenReader::Node ScreenReader::application(const QString &name) const
{
    for (const Object &object :
        childrenOf({registry, QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)})) {
        if (describe(object).name == name)
            return read(object);
    }
    return {};
}

void ScreenReader::act(const Object &object, const QString &actionName) const
{
    for (int action = 0;; ++action) {
        const QDBusReply<QString> name = ask(object, actionInterface, u"GetName"_s, {action});
        if (!name.isValid())
            qFatal("there is no action %s", qPrintable(actionName));
        if (name.value() == actionName) {
            (void)ask(object, actionInterface, u"DoAction"_s, {action}, QDBus::NoBlock);
            return;
        }
    }
}

void ScreenReader::hear(const QDBusMessage &event)
{
    // Read at once, as a screen reader does: the object may soon be gone.
    const QString detail = event.arguments().value(0).toString();
    m_heard.append({detail.isEmpty() ? event.member() : event.member() + u':' + detail,
        event.arguments().value(1).toInt(), describe({event.service(), QDBusObjectPath(event.path())})});
}

QDBusMessage ScreenReader::ask(const Object &object, const QString &interface, const QString &method,
    const QVariantList &arguments, QDBus::CallMode mode) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    call.setArguments(arguments);
    return m_bus.call(call, mode);
}

QList<ScreenReader::Object> ScreenReader::childrenOf(const Object &object) const
{
    return QDBusReply<QList<Object>>(ask(object, accessibleInterface, u"GetChildren"_s)).value();
}

ScreenReader::Node ScreenReader::describe(const Object &object) const
{
    Node node;
    node.object = object;
    node.role = QDBusReply<QString>(ask(object, accessibleInterface, u"GetRoleName"_s)).value();
    const QDBusReply<QDBusVariant> name = ask(object, properties, u"Get"_s, {accessibleInterface, u"Name"_s});
    node.name = name.value().variant().toString();
    const QDBusReply<QList<uint>> states = ask(object, accessibleInterface, u"GetState"_s);
    if (states.value().size() == 2)
        node.states = quint64(states.value()[1]) << 32 | states.value()[0];
    return node;
}

ScreenReader::Node ScreenReader::read(const Object &object) const
{
    Node node = describe(object);
    for (const Object &child : childrenOf(object))
        node.children.append(read(child));
    return node;
}
