#pragma once

#include "probe/Arguments.h"

#include <QHash>
#include <QJsonValue>
#include <QString>

#include <functional>

using Operation = std::function<QJsonValue(Arguments &)>;

/// The operation that passes the texts under these keys to the function.
template <typename Function, typename... Keys>
[[nodiscard]] Operation onTexts(Function function, const Keys &...keys)
{
    return [=](Arguments &request) { return Answer::of(function(request.text(keys)...)); };
}

/// What the probe can be asked, by name.
[[nodiscard]] QHash<QString, Operation> reminderOperations();
[[nodiscard]] QHash<QString, Operation> textOperations();
[[nodiscard]] QHash<QString, Operation> searchOperations();
[[nodiscard]] QHash<QString, Operation> storeOperations();
