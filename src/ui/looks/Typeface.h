#pragma once

#include <QStringList>
#include <QStringView>

/// The typeface of a text with Chinese, Japanese or Korean characters. Left to the fonts of the system, each
/// character comes from the first that has it, so that a sentence mixes regions and weights.
namespace Typeface {
enum class Region { None, Simplified, Traditional, Japanese, Korean };

/// By the text, and where it leaves a choice by the interface language; none for a text without such
/// characters.
[[nodiscard]] Region region(QStringView text, QStringView language);

/// The families for texts of @p region: the system's and the best of @p available, which have its characters.
/// The system's is the first, unless it is made for another region.
[[nodiscard]] QStringList families(Region region, const QString &system, const QStringList &available);
} // namespace Typeface
