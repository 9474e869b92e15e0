#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The interface language and its texts. The key of each text is the text itself in Simplified Chinese.
namespace L10n {
/// The first of the user's preferred languages that Quillet offers; "zh-Hans" if there is none.
[[nodiscard]] const QString &currentLanguage();

/// The ICU locale for the dates of an interface language: "zh-Hans" => "zh_CN", "pt-BR" => "pt_PT".
[[nodiscard]] QByteArray locale(QStringView languageCode);

/// The text in that language, or the key itself if there is no translation.
[[nodiscard]] QString text(const char *key, const QString &languageCode = currentLanguage());

/// The text with each "%@" replaced by the next argument.
[[nodiscard]] QString text(
    const char *key, const QStringList &arguments, const QString &languageCode = currentLanguage());
} // namespace L10n
