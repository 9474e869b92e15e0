#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The interface language and its texts. Each text on screen is its own key, in Simplified Chinese.
namespace L10n {
/// The code of the first language that Quillet offers and the person prefers; "zh-Hans" if there is none.
[[nodiscard]] const QString &currentLanguage();

/// The ICU locale that formats dates for an interface language: "zh-Hans" => "zh_CN", "pt-BR" => "pt_PT".
[[nodiscard]] QByteArray locale(QStringView languageCode);

/// The text in that language, or the key itself where there is no translation.
[[nodiscard]] QString text(const char *key, const QString &languageCode = currentLanguage());

/// The text with each "%@" filled in, in their order.
[[nodiscard]] QString text(
    const char *key, const QStringList &arguments, const QString &languageCode = currentLanguage());
} // namespace L10n
