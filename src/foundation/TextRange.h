#pragma once

#include <QtGlobal>

/// A range of a text in UTF-16 units; @c end is one past the last unit.
struct TextRange {
    qsizetype start = 0;
    qsizetype end = 0;

    [[nodiscard]] qsizetype length() const { return end - start; }
    [[nodiscard]] bool isEmpty() const { return end <= start; }
    bool operator==(const TextRange &) const = default;
};
