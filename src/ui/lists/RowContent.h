#pragma once

#include <QList>
#include <QString>

/// A symbol at the right side of a row.
struct RowSymbol {
    QString name;          ///< under resources/symbols
    QString help;          ///< told as a tooltip
    bool isButton = false; ///< can be clicked
    bool operator==(const RowSymbol &) const = default;
};

/// What a row of a list shows.
struct RowContent {
    QString header; ///< a header of one line; the rest is empty then
    QString lead;   ///< in the column at the left: the time of day
    QString above;  ///< a small line above the text
    QString quote;  ///< the quoted note, in a block of one line above the text
    QString text;   ///< in as many lines as it takes
    QString query;  ///< whose hits in the text are coloured
    QString link;   ///< an address or a path in one line below the text
    QString linkSymbol;
    QString marker;   ///< a small line at the bottom
    QString trailing; ///< at the right side: a number
    QList<RowSymbol> symbols;
    bool isExpired = false; ///< paler than the others

    [[nodiscard]] bool isHeader() const { return !header.isEmpty(); }
    bool operator==(const RowContent &) const = default;
};

/// What of a row stands under the pointer.
struct RowPart {
    enum class Kind { None, Body, Quote, Link, Symbol };
    Kind kind = Kind::None;
    int symbol = -1; ///< its place among the symbols
    bool operator==(const RowPart &) const = default;
};
