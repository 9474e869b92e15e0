#pragma once

#include "foundation/Instant.h"

#include <QString>
#include <QUuid>

#include <optional>

/// One line that was written down.
struct Note {
    QUuid id;
    QString text;                 ///< trimmed; its tags are the "#words" in it
    std::optional<QString> quote; ///< a reply's copy of the quoted text, as it was when the reply was written
    std::optional<QUuid> quoteID; ///< the quoted note, which may be in the trash or gone
    std::optional<QString> link;  ///< an address, absolute and encoded, unchanged from the file
    Instant createdAt;
    bool operator==(const Note &) const = default;
};
