#include "foundation/CaseFolding.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <vector>

namespace {
/// A text's folded form and, for each of its UTF-16 units, the start in the text of the code point it comes
/// from. Folding treats each code point separately, so the folded text is the concatenation of their forms.
struct MappedFold {
    QString folded;
    std::vector<qsizetype> origin; ///< one entry more than units: the text's length

    explicit MappedFold(QStringView text)
    {
        folded.reserve(text.size());
        origin.reserve(size_t(text.size()) + 1);
        const char16_t *units = text.utf16();
        for (qsizetype i = 0; i < text.size();) {
            const qsizetype start = i;
            U16_FWD_1(units, i, text.size());
            char16_t form[8]; // no code point folds to more than three
            UErrorCode status = U_ZERO_ERROR;
            const int32_t length =
                u_strFoldCase(form, 8, units + start, int32_t(i - start), U_FOLD_CASE_DEFAULT, &status);
            folded.append(QStringView(form, length));
            origin.insert(origin.end(), size_t(length), start);
        }
        origin.push_back(text.size());
    }

    /// Whether the position is between two code points of the text, not within the folded form of one.
    [[nodiscard]] bool isBoundary(qsizetype position) const
    {
        return position == 0 || origin[size_t(position)] != origin[size_t(position) - 1];
    }
};
} // namespace

QString CaseFolding::folded(QStringView text)
{
    // Full folding at most triples the length.
    QString result(text.size() * 3, Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = u_strFoldCase(reinterpret_cast<char16_t *>(result.data()), int32_t(result.size()),
        text.utf16(), int32_t(text.size()), U_FOLD_CASE_DEFAULT, &status);
    result.truncate(length);
    result.squeeze();
    return result;
}

qsizetype CaseFolding::indexOf(QStringView text, QStringView query)
{
    const QString whole = folded(text);
    if (whole.size() == text.size()) // so positions are the same in both, and need no map
        return query.isEmpty() ? -1 : whole.indexOf(folded(query));
    const QList<TextRange> all = occurrences(text, query);
    return all.isEmpty() ? -1 : all.front().start;
}

QList<TextRange> CaseFolding::occurrences(QStringView text, QStringView query)
{
    const QString needle = folded(query);
    QList<TextRange> ranges;
    if (needle.isEmpty())
        return ranges;
    const MappedFold map(text);
    for (qsizetype from = 0;;) {
        const qsizetype found = map.folded.indexOf(needle, from);
        if (found < 0)
            return ranges;
        const qsizetype end = found + needle.size();
        if (map.isBoundary(found) && map.isBoundary(end)) {
            ranges.append({map.origin[size_t(found)], map.origin[size_t(end)]});
            from = end;
        } else {
            from = found + 1;
        }
    }
}
