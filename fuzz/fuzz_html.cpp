// A title is one trimmed line. The first line of the input is the Content-Type.
#include "FuzzInput.h"
#include "text/WebLink.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzInput input(data, size);
    const QString contentType = input.lineAndRest().first;
    const auto html = WebLink::decodeHTML(input.bytes(), contentType);
    const auto title = html ? WebLink::parseTitle(*html) : std::nullopt;
    if (title)
        require(!title->isEmpty() && title->trimmed() == *title);
    (void)WebLink::decodeEntities(input.text());
    (void)WebLink::detect(input.text());
    return 0;
}
