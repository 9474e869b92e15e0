#pragma once

#include "search/SemanticSearch.h"

/// A note that answers a query, and why.
struct SemanticHit {
    qsizetype note = 0; ///< index into NoteStore::notes()
    SemanticHitKind kind = SemanticHitKind::Substring;
    bool operator==(const SemanticHit &) const = default;
};
