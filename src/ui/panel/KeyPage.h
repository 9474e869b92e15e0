#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

class QWidget;

/// A page over the panel with all keys.
namespace KeyPage {
struct Entry {
    QKeySequence key;
    QString text; ///< what it does
};
/// With the key that opens the panel, if not empty, and those of the modes. Returns when the page is closed.
void show(QWidget &panel, const QString &hotKey, const QList<Entry> &modes);
} // namespace KeyPage
