#pragma once

#include "foundation/Instant.h"

#include <QString>
#include <QUuid>

/// A notification that is due for a note.
struct Reminder {
    QUuid id; ///< also the identifier of the notification request
    QUuid noteID;
    QString text;     ///< what the notification says: the note without its date and time
    QString fullText; ///< the whole note when the reminder was made
    Instant fireAt;
    Instant createdAt;
    bool operator==(const Reminder &) const = default;
};
