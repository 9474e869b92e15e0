#include "ui/dialogs/FileDialogs.h"

#include "text/L10n.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {
std::optional<std::optional<FileDialogs::Target>> s_nextTarget;
std::optional<std::optional<QString>> s_nextSource;

QString startFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}
} // namespace

void FileDialogs::setNextTarget(const std::optional<Target> &target)
{
    s_nextTarget = target;
}

void FileDialogs::setNextSource(const std::optional<QString> &path)
{
    s_nextSource = path;
}

std::optional<FileDialogs::Target> FileDialogs::askForTarget(const QString &title, const QString &baseName)
{
    if (s_nextTarget)
        return *std::exchange(s_nextTarget, std::nullopt);
    QFileDialog dialog(nullptr, title, startFolder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const auto *accessory = new ExportFormatAccessory(dialog, baseName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return Target{dialog.selectedFiles().first(), accessory->format()};
}

std::optional<QString> FileDialogs::askForSource(const QString &title)
{
    if (s_nextSource)
        return *std::exchange(s_nextSource, std::nullopt);
    QFileDialog dialog(nullptr, title, startFolder());
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({QStringLiteral("JSON, Markdown (*.json *.md *.markdown)")});
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}
