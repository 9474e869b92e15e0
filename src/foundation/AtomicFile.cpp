#include "foundation/AtomicFile.h"

#include "foundation/Files.h"

#include <QDir>
#include <QFileInfo>

namespace {
QString stagedPath(const QString &path)
{
    return path + QStringLiteral(".staged");
}

QStringList behindLinks(Files &files, const QStringList &paths)
{
    QStringList targets;
    for (const QString &path : paths)
        targets.append(files.behindLinks(path));
    return targets;
}

bool hasContent(const AtomicFile::Content &content, FileCalls &calls)
{
    const auto found = AtomicFile::read(content.path, calls);
    if (!found || !found.value())
        return false;
    QByteArrayView rest = *found.value();
    bool isSame = true;
    content.bytes([&](QByteArrayView piece) {
        isSame = isSame && rest.startsWith(piece);
        if (isSame)
            rest = rest.sliced(piece.size());
    });
    return isSame && rest.isEmpty();
}

/// Also syncs what an earlier attempt has renamed already.
void renameStaged(Files &files, const QStringList &targets)
{
    for (const QString &target : targets) {
        files.rename(stagedPath(target), target);
        files.syncFolderOf(target);
    }
}

void recoverTargets(Files &files, const QStringList &targets)
{
    QList<bool> areStaged;
    for (const QString &target : targets)
        areStaged.append(files.exists(stagedPath(target)));
    if (!areStaged.contains(true))
        return;
    const bool renamingHadBegun = !areStaged.first();
    if (renamingHadBegun) {
        renameStaged(files, targets);
        return;
    }
    // In reverse order: a half-written later file must never be found alone, as if renaming had begun.
    for (auto target = targets.crbegin(); target != targets.crend(); ++target) {
        files.remove(stagedPath(*target));
        files.syncFolderOf(*target);
    }
}
} // namespace

Outcome AtomicFile::replace(const QList<Content> &contents, FileCalls &calls)
{
    Files files(calls);
    QStringList targets;
    for (const Content &content : contents)
        targets.append(files.behindLinks(content.path));
    if (!files.outcome())
        return files.outcome();
    while (targets.size() > 1 && hasContent(contents[targets.size() - 1], calls))
        targets.removeLast();
    for (qsizetype i = 0; i < targets.size(); ++i) {
        files.write(stagedPath(targets[i]), contents[i].bytes);
        if (targets.size() > 1) // the rename of a single file commits it: no order to keep
            files.syncFolderOf(targets[i]);
    }
    renameStaged(files, targets);
    if (!files.outcome())
        (void)recover(targets, calls); // if this fails, settle() does it
    return files.outcome();
}

Outcome AtomicFile::recover(const QStringList &paths, FileCalls &calls)
{
    Files files(calls);
    recoverTargets(files, behindLinks(files, paths));
    return files.outcome();
}

Outcome AtomicFile::settle(const QStringList &paths, FileCalls &calls)
{
    Files files(calls);
    const QStringList targets = behindLinks(files, paths);
    recoverTargets(files, targets);
    for (const QString &target : targets)
        files.syncFolderOf(target);
    return files.outcome();
}

Outcome AtomicFile::createFolder(const QString &path, FileCalls &calls)
{
    Files files(calls);
    if (files.isFolder(path) || !files.outcome())
        return files.outcome();
    const QFileInfo folder(QDir::cleanPath(path));
    if (folder.absolutePath() != path) { // as for an empty path
        if (Outcome above = createFolder(folder.absolutePath(), calls); !above)
            return above;
    }
    files.makeFolder(folder.absoluteFilePath());
    return files.outcome();
}

Result<std::optional<QByteArray>> AtomicFile::read(const QString &path, FileCalls &calls)
{
    Files files(calls);
    const auto bytes = files.read(path);
    if (!files.outcome())
        return files.outcome().failure();
    return bytes;
}

Outcome AtomicFile::keepAside(const QString &path, const QString &suffix, FileCalls &calls)
{
    Files files(calls);
    const QString from = files.behindLinks(path);
    QString to = from + suffix;
    for (int number = 2; files.exists(to); ++number)
        to = from + suffix + QStringLiteral("-%1").arg(number);
    files.rename(from, to);
    // Or else a later rename to the old name might reach the disk first and take the file with it.
    files.syncFolderOf(from);
    return files.outcome();
}
