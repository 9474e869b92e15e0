// A tag that is replaced is gone, and its occurrences are the other's. The first line is the tag's name.
#include "FuzzInput.h"
#include "text/TagCompletion.h"
#include "text/TagEditing.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto [tag, text] = FuzzInput(data, size).lineAndRest();
    const qsizetype before = TagEditing::occurrences(tag, text);
    const qsizetype others = TagEditing::occurrences(u"other", text);
    const QString replaced = TagEditing::replacingTag(text, tag, u"other");
    if (tag != u"other") {
        require(TagEditing::occurrences(tag, replaced) == 0);
        require(TagEditing::occurrences(u"other", replaced) == before + others);
    }
    require(TagEditing::removingTag(text, tag).size() <= text.size());
    const auto token = TagCompletion::activeToken(text, text.size());
    if (token)
        require(token->range.end == text.size() && text.endsWith(token->prefix));
    return 0;
}
