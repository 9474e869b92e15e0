#include "ui/FileDialogs.h"

#include "text/L10n.h"

#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace {
const QString jsonFilter = QStringLiteral("JSON (*.json)");
const QString markdownFilter = QStringLiteral("Markdown (*.md *.markdown)");

std::optional<std::optional<FileDialogs::Target>> s_nextTarget;
std::optional<std::optional<QString>> s_nextSource;

/// The name with what stands behind its last point replaced.
QString withExtension(const QString &name, FileDialogs::Format format)
{
    const qsizetype point = name.lastIndexOf(u'.');
    return (point < 0 ? name : name.first(point)) + u'.' + FileDialogs::extension(format);
}
} // namespace

QString FileDialogs::extension(Format format)
{
    return format == Format::Json ? QStringLiteral("json") : QStringLiteral("md");
}

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
    QFileDialog dialog(nullptr, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({jsonFilter, markdownFilter});
    dialog.setLabelText(QFileDialog::FileType, L10n::text("格式："));
    dialog.selectFile(baseName + u'.' + extension(Format::Json));
    const auto format = [&dialog] {
        return dialog.selectedNameFilter() == markdownFilter ? Format::Markdown : Format::Json;
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, format] {
        const QFileInfo chosen(dialog.selectedFiles().value(0));
        dialog.selectFile(withExtension(chosen.fileName(), format()));
    });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return Target{dialog.selectedFiles().first(), format()};
}

std::optional<QString> FileDialogs::askForSource(const QString &title)
{
    if (s_nextSource)
        return *std::exchange(s_nextSource, std::nullopt);
    QFileDialog dialog(nullptr, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({QStringLiteral("JSON, Markdown (*.json *.md *.markdown)")});
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}
