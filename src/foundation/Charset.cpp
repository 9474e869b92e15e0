#include "foundation/Charset.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/unistr.h>

#include <memory>

std::optional<QString> Charset::decode(QByteArrayView bytes, const QByteArray &name, Extent extent)
{
    if (name.isEmpty())
        return std::nullopt; // ICU would use its default charset
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(
        ucnv_open(name.constData(), &status), &ucnv_close);
    if (U_FAILURE(status))
        return std::nullopt;
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);

    // No encoding yields more than two UTF-16 units per byte.
    QString text(bytes.size() * 2 + 2, Qt::Uninitialized);
    auto *target = reinterpret_cast<char16_t *>(text.data());
    const char *source = bytes.data();
    ucnv_toUnicode(converter.get(), &target, target + text.size(), &source, bytes.data() + bytes.size(),
        nullptr, extent == Extent::Whole, &status);
    if (U_FAILURE(status))
        return std::nullopt;
    text.truncate(target - reinterpret_cast<const char16_t *>(text.constData()));
    return text;
}

QString Charset::decodeLeniently(QByteArrayView bytes)
{
    constexpr char mark[] = "\xEF\xBB\xBF";
    const QByteArrayView text = bytes.startsWith(mark) ? bytes.sliced(3) : bytes;
    const auto decoded = icu::UnicodeString::fromUTF8({text.data(), int32_t(text.size())});
    return QString::fromUtf16(decoded.getBuffer(), decoded.length());
}
