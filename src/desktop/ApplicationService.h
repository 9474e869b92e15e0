#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

/// What the desktop, a launcher or a second start may ask of the running program:
/// org.freedesktop.Application.
class ApplicationService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationService(QObject *parent = nullptr);

    /// Offers the service on the session bus; without a bus, or with the name taken, only a line in the log.
    void publish();

    enum class Call { Activate, Toggle };
    /// Asks the process that runs already to open its panel, or to close it where it is open.
    static void callRunning(Call call);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

Q_SIGNALS:
    void activated();
    void toggled();
};
