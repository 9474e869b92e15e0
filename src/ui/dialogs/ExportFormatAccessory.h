#pragma once

#include <QObject>

class QFileDialog;

/// The choice of the format in the dialog that asks where to export to. The extension of the name follows it.
class ExportFormatAccessory final : public QObject
{
    Q_OBJECT

public:
    enum class Format { Json, Markdown };
    [[nodiscard]] static QString extension(Format format); ///< without its dot

    /// Belongs to the dialog, and gives it @p baseName with the first format's extension.
    ExportFormatAccessory(QFileDialog &dialog, const QString &baseName);

    [[nodiscard]] Format format() const { return m_format; }

private:
    void formatChanged(const QString &filter);

    QFileDialog &m_dialog;
    Format m_format = Format::Json;
};
