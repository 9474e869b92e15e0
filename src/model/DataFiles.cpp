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
    const Outcome recovered = AtomicFile::recover(m_paths, m_calls);
    if (recovered)
        return;
    Log::line(QStringLiteral("failed to recover an unfinished save: %1").arg(recovered.message()));
    // The files that are loaded now may lack what the unfinished save contains. Of a single file, an
    // unfinished save is always discarded.
    if (m_paths.size() > 1)
        m_toKeepAside = m_paths;
}

void DataFiles::load(qsizetype index, const std::function<bool(const QByteArray &)> &decode)
{
    const QString &path = m_paths[index];
    const auto bytes = AtomicFile::read(path, m_calls);
    const bool isMissing = bytes && !bytes.value();
    if (!isMissing && (!bytes || !decode(*bytes.value())) && !m_toKeepAside.contains(path))
        m_toKeepAside.append(path);
}

Outcome DataFiles::save(const QList<ByteSource> &contents, Instant now)
{
    const QString folder = QFileInfo(m_paths.first()).absolutePath();
    if (Outcome created = AtomicFile::createFolder(folder, m_calls); !created)
        return created;
    if (!m_areSettled) {
        if (Outcome settled = AtomicFile::settle(m_paths, m_calls); !settled)
            return settled;
    }
    while (!m_toKeepAside.isEmpty()) {
        const QString suffix = QStringLiteral(".unreadable-") + timeInFileName(now);
        if (Outcome kept = AtomicFile::keepAside(m_toKeepAside.first(), suffix, m_calls); !kept)
            return kept;
        m_toKeepAside.removeFirst();
    }
    QList<AtomicFile::Content> files;
    for (qsizetype i = 0; i < m_paths.size(); ++i)
        files.append({m_paths[i], contents[i]});
    Outcome saved = AtomicFile::replace(files, m_calls);
    m_areSettled = saved.hasValue();
    return saved;
}
