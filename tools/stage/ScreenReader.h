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

/// A screen reader that records instead of speaking. It starts the session's accessibility bus, switches
/// accessibility on, records what programs announce over AT-SPI, and asks what they show.
class ScreenReader final : public QObject
{
    Q_OBJECT

public:
    /// The numbers of AtspiStateType.
    enum class State { Active = 1, Focused = 12, Showing = 25 };

    /// An accessible object as AT-SPI addresses it.
    struct Object {
        QString service;
        QDBusObjectPath path;
    };
    /// An object as it was when it was asked; empty when it was gone.
    struct Node {
        QString role; ///< as AT-SPI spells it: "list item"
        QString name;
        QString description;
        quint64 states = 0;
        Object object;
        QList<Node> children;

        [[nodiscard]] bool is(State state) const { return states >> int(state) & 1; }
        [[nodiscard]] QString spoken() const { return role + QStringLiteral(": ") + name; }
        /// This node and what is below it, parents first; all of them, or those of a role.
        [[nodiscard]] QList<Node> all(const QString &role = {}) const;
        [[nodiscard]] QString outline(int depth = 0) const; ///< a line for each node, for messages
    };
    struct Action {
        QString name; ///< "Press", "ShowMenu"
        QString key;  ///< empty when the program does not report one
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
    /// What was said when the focus moved, oldest first: "list item: buy milk".
    [[nodiscard]] QStringList focused() const;

    /// Everything that the application of this name has, shown or not; empty when there is none.
    [[nodiscard]] Node application(const QString &name) const;
    /// The object with everything in it; for popups too, which are in no application's tree.
    [[nodiscard]] Node read(const Object &object) const;
    [[nodiscard]] QList<Action> actions(const Object &object) const;
    /// Asks the object to do what its action of this name does; does not wait until it is done.
    void act(const Object &object, const QString &actionName) const;

private Q_SLOTS:
    void hear(const QDBusMessage &event);

private:
    [[nodiscard]] QDBusMessage ask(const Object &object, const QString &interface, const QString &method,
        const QVariantList &arguments = {}) const;
    [[nodiscard]] QList<Object> childrenOf(const Object &object) const;
    [[nodiscard]] Node describe(const Object &object) const;
    void addChildren(Node &node) const;

    std::unique_ptr<QProcess> m_launcher;
    QDBusConnection m_bus{QString()};
    QList<Event> m_heard;
};

QDBusArgument &operator<<(QDBusArgument &argument, const ScreenReader::Object &object);
const QDBusArgument &operator>>(const QDBusArgument &argument, ScreenReader::Object &object);
Q_DECLARE_METATYPE(ScreenReader::Object)
