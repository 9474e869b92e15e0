#include "model/DataFiles.h"

#include "foundation/InternetDateTime.h"
#include "foundation/Log.h"

#include <QFileInfo>

namespace {
/// Without colons, which some file systems refuse: "20260302T100000Z".
QString timeInFileName(Instant now)
{
    return QString::fromLatin1(InternetDateTime::format(now)).remove(u'-').remove(u':');
}
} // namespace

void DataFiles::recover()
{
    if (const Outcome recovered = AtomicFile::recover(m_paths); !recovered)
        Log::line(QStringLiteral("failed to recover an unfinished save: %1").arg(recovered.message()));
}

void DataFiles::load(qsizetype index, const std::function<bool(const QByteArray &)> &decode)
{
    const QString &path = m_paths[index];
    const auto bytes = AtomicFile::read(path);
    const bool isMissing = bytes && !bytes.value();
    if (!isMissing && (!bytes || !decode(*bytes.value())))
        m_unreadable.append(path);
}

Outcome DataFiles::save(const QList<ByteSource> &contents, Instant now)
{
    if (Outcome created = AtomicFile::createFolder(QFileInfo(m_paths.first()).absolutePath()); !created)
        return created;
    while (!m_unreadable.isEmpty()) {
        const QString suffix = QStringLiteral(".unreadable-") + timeInFileName(now);
        if (Outcome kept = AtomicFile::keepAside(m_unreadable.first(), suffix); !kept)
            return kept;
        m_unreadable.removeFirst();
    }
    QList<AtomicFile::Content> files;
    for (qsizetype i = 0; i < m_paths.size(); ++i)
        files.append({m_paths[i], contents[i]});
    return AtomicFile::replace(files);
}
