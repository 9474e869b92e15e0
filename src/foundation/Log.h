#pragma once

#include <QStringView>

namespace Log {
/// Writes "Quillet: " and the message as one line to standard error, which the system journal collects.
void line(QStringView message);
} // namespace Log
