#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QObject>
#include <QProcess>
#include <QStringList>

#include <memory>

class PrivateSession;

/// A client of AT-SPI, the protocol of screen readers. It starts the session's accessibility bus, switches
/// accessibility on, records what programs announce, and reads their trees of accessible objects.
class ScreenReader final : public QObject
{
    Q_OBJECT

public:
    /// The numbers of AtspiStateType.
    enum class State { Focused = 12, Showing = 25 };

    /// An accessible object as AT-SPI addresses it.
    struct Object {
        QString service;
        QDBusObjectPath path;
    };
    /// An object as it was when it was read; empty when it was gone by then.
    struct Node {
        QString role; ///< as AT-SPI spells it: "list item"
        QString name;
        quint64 states = 0;
        Object object;
        QList<Node> children;

        [[nodiscard]] bool is(State state) const { return states >> int(state) & 1; }
        /// The nodes of a role among this one and its descendants, parents first.
        [[nodiscard]] QList<Node> all(const QString &role) const;
    };
    struct Event {
        QString kind;   ///< "StateChanged:focused", "ChildrenChanged:add", "Activate"
        int detail = 0; ///< for a state: 1 when it was entered
        Node source;    ///< without children
    };

    /// Whether this machine has the programs.
    [[nodiscard]] static bool isPossible();
    explicit ScreenReader(const PrivateSession &session);
    ~ScreenReader() override;
    Q_DISABLE_COPY_MOVE(ScreenReader)

    [[nodiscard]] const QList<Event> &heard() const { return m_heard; }
    void forget() { m_heard.clear(); }

    /// The tree of the application of this name, including what does not show; empty when there is none.
    /// Menus are in no tree: they are known only from events.
    [[nodiscard]] Node application(const QString &name) const;
    /// Triggers the object's action of this name ("Press", "ShowMenu") without waiting for the result.
    void act(const Object &object, const QString &actionName) const;

private Q_SLOTS:
    void hear(const QDBusMessage &event);

private:
    [[nodiscard]] QDBusMessage ask(const Object &object, const QString &interface, const QString &method,
        const QVariantList &arguments = {}, QDBus::CallMode mode = QDBus::Block) const;
    [[nodiscard]] QList<Object> childrenOf(const Object &object) const;
    [[nodiscard]] Node describe(const Object &object) const; ///< without children
    /// The object with its descendants.
    [[nodiscard]] Node read(const Object &object) const;

    std::unique_ptr<QProcess> m_launcher;
    QDBusConnection m_bus{QString()};
    QList<Event> m_heard;
};

QDBusArgument &operator<<(QDBusArgument &argument, const ScreenReader::Object &object);
const QDBusArgument &operator>>(const QDBusArgument &argument, ScreenReader::Object &object);
Q_DECLARE_METATYPE(ScreenReader::Object)
