#include "ui/dialogs/ExportFormatAccessory.h"

#include "text/L10n.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {
const QString jsonFilter = QStringLiteral("JSON (*.json)");
const QString markdownFilter = QStringLiteral("Markdown (*.md *.markdown)");
} // namespace

QString ExportFormatAccessory::extension(Format format)
{
    return format == Format::Json ? QStringLiteral("json") : QStringLiteral("md");
}

ExportFormatAccessory::ExportFormatAccessory(QFileDialog &dialog, const QString &baseName)
    : QObject(&dialog)
    , m_dialog(dialog)
{
    dialog.setNameFilters({jsonFilter, markdownFilter});
    dialog.setLabelText(QFileDialog::FileType, L10n::text("格式："));
    dialog.selectFile(baseName + u'.' + extension(m_format));
    connect(&dialog, &QFileDialog::filterSelected, this, &ExportFormatAccessory::formatChanged);
}

void ExportFormatAccessory::formatChanged(const QString &filter)
{
    m_format = filter == markdownFilter ? Format::Markdown : Format::Json;
    // Only the extension changes.
    const QString name = QFileInfo(m_dialog.selectedFiles().value(0)).fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    m_dialog.selectFile((dot < 0 ? name : name.first(dot)) + u'.' + extension(m_format));
}
