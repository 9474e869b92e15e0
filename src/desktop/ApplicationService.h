#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// The D-Bus service org.freedesktop.Application, by which the desktop, a launcher or a second start opens
/// the panel of the running program.
class ApplicationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationService(QObject *parent = nullptr);

    /// Registers the service on the session bus. A failure is logged.
    void publish();

    enum class Call { Activate, Toggle };
    /// Asks the running process to open its panel, or to toggle it. Blocks for at most five seconds.
    static void callRunning(Call call);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
    void toggled();
};
