#pragma once

#include "ui/dialogs/ExportFormatAccessory.h"

#include <QString>

#include <optional>

/// The dialogs for choosing a file. A test answers them in advance.
namespace FileDialogs {
struct Target {
    QString path; ///< as entered by the user
    ExportFormatAccessory::Format format = ExportFormatAccessory::Format::Json;
};
/// Nothing when the user cancels.
[[nodiscard]] std::optional<Target> askForTarget(const QString &title, const QString &baseName);
/// A JSON or Markdown file to import.
[[nodiscard]] std::optional<QString> askForSource(const QString &title);

/// The answer of the next dialog, which is then not shown; nothing means that it was cancelled.
void setNextTarget(const std::optional<Target> &target);
void setNextSource(const std::optional<QString> &path);
} // namespace FileDialogs
