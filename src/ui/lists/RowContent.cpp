#include "ui/lists/RowContent.h"

#include "text/L10n.h"

QString RowContent::spoken() const
{
    constexpr qsizetype maxText =
        2000; // a screen reader gets it whole from the field when the note is edited
    QStringList parts{help.isEmpty() ? header : help};
    if (!isHeader()) {
        parts = {lead, above, text.size() > maxText ? text.first(maxText) + QChar(0x2026) : text};
        for (const RowSymbol &symbol : symbols)
            parts.append(symbol.isButton ? QString() : symbol.help);
        parts.append(quote.isEmpty() ? quote : L10n::text("引用 %@", QStringList{quote.simplified()}));
        parts << link << marker << (help.isEmpty() ? trailing : help);
    }
    parts.removeAll(QString());
    return parts.join(L10n::text("，"));
}
