#pragma once

#include <QString>

/// A tag and how often the live notes write it; a note that writes it twice counts twice.
struct TagSummary {
    QString name; ///< without "#"
    qsizetype count = 0;
    bool operator==(const TagSummary &) const = default;
};
