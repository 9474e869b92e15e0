#include "ui/dialogs/ImportExport.h"

#include "foundation/AtomicFile.h"
#include "foundation/Clock.h"
#include "foundation/DateFormat.h"
#include "model/NoteCoding.h"
#include "model/NoteFileCodec.h"
#include "model/NoteMarkdown.h"
#include "model/NoteStore.h"
#include "text/L10n.h"
#include "ui/dialogs/FileDialogs.h"
#include "ui/dialogs/ModalQuestion.h"

namespace {
/// With the extension of the format in place of any known one.
QString targetPath(const FileDialogs::Target &target)
{
    QString path = target.path;
    for (const QStringView known : {u".json", u".md", u".markdown"}) {
        if (path.endsWith(known, Qt::CaseInsensitive)) {
            path.chop(known.size());
            break;
        }
    }
    return path + u'.' + ExportFormatAccessory::extension(target.format);
}
} // namespace

void ImportExport::exportNotes(const NoteStore &store, const Clock &clock, QWidget *panel)
{
    const QString today = DateFormat::format(clock.now(), u"yyyy-MM-dd", "en_US_POSIX", clock.calendar());
    const auto target = FileDialogs::askForTarget(L10n::text("导出笔记"), QStringLiteral("Quillet-") + today);
    if (!target)
        return;
    const QByteArray content = target->format == ExportFormatAccessory::Format::Json
                                   ? noteEncoder::encode(store.notes())
                                   : NoteMarkdown::exported(store.notes(), clock.calendar()).toUtf8();
    const Outcome written =
        AtomicFile::replace({{targetPath(*target), [&content](const ByteSink &sink) { sink(content); }}});
    if (!written)
        ModalQuestion::inform(panel, L10n::text("导出失败"), written.message());
}

void ImportExport::importNotes(NoteStore &store, const Clock &clock, QWidget *panel)
{
    const auto path = FileDialogs::askForSource(L10n::text("导入笔记"));
    if (!path)
        return;
    const auto bytes = AtomicFile::read(*path);
    const QByteArray content = bytes && bytes.value() ? *bytes.value() : QByteArray();
    const auto decoded = NoteFileCodec::decode(content, clock.now(), clock.calendar());
    if (!decoded) {
        ModalQuestion::inform(panel, L10n::text("导入失败"),
            L10n::text("无法识别的文件格式，请选择 Quillet 导出的 JSON 或 Markdown 文件。"));
        return;
    }
    const qsizetype added = store.importNotes(decoded.value());
    if (added == 0) {
        ModalQuestion::inform(panel, L10n::text("没有可导入的笔记"), L10n::text("文件中的笔记均已存在。"));
    } else {
        ModalQuestion::inform(panel, L10n::text("导入完成"),
            L10n::text("已导入 %@ 条笔记。", QStringList{QString::number(added)}));
    }
}
