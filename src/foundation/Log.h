#pragma once

#include <QStringView>

namespace Log {
/// Writes "Quillet: " and the message as one line to the system log: standard error, which the journal
/// collects.
void line(QStringView message);
} // namespace Log
