#pragma once

#include <QByteArrayView>

#include <functional>

/// Receives bytes piece by piece; they are valid only during the call.
using ByteSink = std::function<void(QByteArrayView)>;

/// Passes its bytes in order to a sink, so that a file can be written without holding all of it in memory.
using ByteSource = std::function<void(const ByteSink &)>;
