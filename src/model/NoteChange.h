#pragma once

#include <QList>
#include <QUuid>

/// What a change of the notes makes invalid in data derived from them. Empty where notes only moved.
struct NoteChange {
    QList<QUuid> texts;   ///< notes whose text is new, changed or no longer live
    QList<QUuid> vectors; ///< notes whose cached sentence vector must be dropped
    bool tags = false; ///< whether a live note gained, lost or reordered tags, or one with tags came or went
};
