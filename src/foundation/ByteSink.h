#pragma once

#include <QByteArrayView>

#include <functional>

/// Takes bytes piece by piece; they need not outlive the call.
using ByteSink = std::function<void(QByteArrayView)>;

/// Gives its bytes, from first to last, to a sink. So a file can be written that never stands in memory as a
/// whole.
using ByteSource = std::function<void(const ByteSink &)>;
