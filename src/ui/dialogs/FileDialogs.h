#pragma once

#include "ui/dialogs/ExportFormatAccessory.h"

#include <QString>

#include <optional>

/// The dialogs in which a file is chosen. A test answers in advance.
namespace FileDialogs {
struct Target {
    QString path; ///< as the person wrote it
    ExportFormatAccessory::Format format = ExportFormatAccessory::Format::Json;
};
/// Nothing when the person thinks better of it.
[[nodiscard]] std::optional<Target> askForTarget(const QString &title, const QString &baseName);
/// A JSON or Markdown file to be read.
[[nodiscard]] std::optional<QString> askForSource(const QString &title);

/// What the next dialog answers, without being shown; nothing is a dialog that was cancelled.
void setNextTarget(const std::optional<Target> &target);
void setNextSource(const std::optional<QString> &path);
} // namespace FileDialogs
