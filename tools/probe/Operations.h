#pragma once

#include <QHash>
#include <QJsonValue>
#include <QString>

class Arguments;

using Operation = QJsonValue (*)(Arguments &);

/// What the probe can be asked, by name.
[[nodiscard]] QHash<QString, Operation> reminderOperations();
[[nodiscard]] QHash<QString, Operation> textOperations();
[[nodiscard]] QHash<QString, Operation> searchOperations();
[[nodiscard]] QHash<QString, Operation> storeOperations();
