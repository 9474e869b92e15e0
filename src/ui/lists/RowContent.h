#pragma once

#include <QList>
#include <QString>

/// A symbol on the right of a row.
struct RowSymbol {
    QString name;          ///< under resources/symbols
    QString help;          ///< its tooltip
    bool isButton = false; ///< can be clicked
    bool isQuiet = false;  ///< hardly seen until the row is pointed at or current
    bool operator==(const RowSymbol &) const = default;
};

/// What a row of a list shows.
struct RowContent {
    enum class Fold { Never, Folded, Unfolded };
    QString header;          ///< a header of one line; the rest but the help is empty then
    QString help;            ///< what the header or the number stands for: the full date
    QString lead;            ///< in the column on the left: the time of day
    QString above;           ///< a small line above the text
    QString quote;           ///< the quoted note, in a block of one line above the text
    QString text;            ///< wrapped into as many lines as it needs
    Fold fold = Fold::Never; ///< of a text that needs more lines than are useful in a list
    QString query;           ///< its matches in the text are coloured
    QString link;            ///< an address or a path in one line below the text
    QString linkSymbol;
    QString marker;   ///< a small line at the bottom
    QString trailing; ///< on the right: a number
    QList<RowSymbol> symbols;
    bool isExpired = false; ///< in a paler colour

    [[nodiscard]] bool isHeader() const { return !header.isEmpty(); }
    [[nodiscard]] QString spoken() const; ///< all of it in one line, as a screen reader reads it out
    bool operator==(const RowContent &) const = default;
    friend size_t qHash(const RowContent &content, size_t seed = 0)
    {
        return qHashMulti(seed, content.text, content.lead, content.query);
    }
};

/// The part of a row under a point.
struct RowPart {
    enum class Kind { None, Body, Address, Tag, Fold, Quote, Link, Symbol, Button };
    Kind kind = Kind::None;
    int symbol = -1;     ///< index among the symbols, of which some are buttons
    QString target = {}; ///< of an address or a tag in the text: the whole address, or the tag with its "#"
    bool operator==(const RowPart &) const = default;
};
