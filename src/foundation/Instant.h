#pragma once

#include <chrono>

/// A moment in time, independent of any zone: milliseconds since 1970-01-01T00:00:00Z.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;
