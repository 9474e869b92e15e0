#pragma once

#include "model/Note.h"
#include "search/SemanticSearch.h"

/// A note that answers a query, and why.
struct SemanticHit {
    Note note;
    SemanticHitKind kind = SemanticHitKind::Substring;
    bool operator==(const SemanticHit &) const = default;
};
