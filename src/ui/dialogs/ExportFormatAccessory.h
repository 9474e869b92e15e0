#pragma once

#include <QObject>

class QFileDialog;

/// The choice of the format in the export dialog. The extension of the file name follows it.
class ExportFormatAccessory final : public QObject
{
    Q_OBJECT

public:
    enum class Format { Json, Markdown };
    [[nodiscard]] static QString extension(Format format); ///< without its dot

    /// Owned by the dialog. Suggests @p baseName with the extension of the first format.
    ExportFormatAccessory(QFileDialog &dialog, const QString &baseName);

    [[nodiscard]] Format format() const { return m_format; }

private:
    void formatChanged(const QString &filter);

    QFileDialog &m_dialog;
    Format m_format = Format::Json;
};
