#include "foundation/AtomicFile.h"

#include "foundation/Files.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace {
QString stagedPath(const QString &path)
{
    return path + QStringLiteral(".staged");
}

Result<QStringList> behindLinks(const Files &files, const QStringList &paths)
{
    QStringList targets;
    for (const QString &path : paths) {
        const auto target = files.behindLinks(path);
        if (!target)
            return target.failure();
        targets.append(target.value());
    }
    return targets;
}

bool hasContent(const Files &files, const QString &path, const ByteSource &source)
{
    const auto found = files.read(path);
    if (!found || !found.value())
        return false;
    QByteArrayView rest = *found.value();
    bool isSame = true;
    source([&](QByteArrayView piece) {
        isSame = isSame && rest.startsWith(piece);
        if (isSame)
            rest = rest.sliced(piece.size());
    });
    return isSame && rest.isEmpty();
}

Outcome stage(const Files &files, const QStringList &targets, const QList<AtomicFile::Content> &contents)
{
    for (qsizetype i = 0; i < targets.size(); ++i) {
        Outcome staged = files.write(stagedPath(targets[i]), contents[i].bytes);
        if (staged && targets.size() > 1) // the rename of a single file commits it: no order to keep
            staged = files.syncFolderOf(targets[i]);
        if (!staged)
            return staged;
    }
    return Done{};
}

/// In reverse order: a half-written later file must never be found alone, as if renaming had begun.
Outcome discardStaged(const Files &files, const QStringList &targets)
{
    for (auto target = targets.crbegin(); target != targets.crend(); ++target) {
        Outcome removed = files.remove(stagedPath(*target));
        if (removed)
            removed = files.syncFolderOf(*target);
        if (!removed)
            return removed;
    }
    return Done{};
}

/// Also syncs what an earlier attempt has renamed already.
Outcome renameStaged(const Files &files, const QStringList &targets)
{
    for (const QString &target : targets) {
        Outcome renamed = files.rename(stagedPath(target), target);
        if (renamed || renamed.failure().systemError == ENOENT)
            renamed = files.syncFolderOf(target);
        if (!renamed)
            return renamed;
    }
    return Done{};
}

Outcome recoverTargets(const Files &files, const QStringList &targets)
{
    QList<bool> areStaged;
    for (const QString &target : targets) {
        const auto isStaged = files.exists(stagedPath(target));
        if (!isStaged)
            return isStaged.failure();
        areStaged.append(isStaged.value());
    }
    if (!areStaged.contains(true))
        return Done{};
    const bool renamingHadBegun = !areStaged.first();
    return renamingHadBegun ? renameStaged(files, targets) : discardStaged(files, targets);
}
} // namespace

Outcome AtomicFile::replace(const QList<Content> &contents, FileCalls &calls)
{
    const Files files(calls);
    QStringList paths;
    for (const Content &content : contents)
        paths.append(content.path);
    auto targets = behindLinks(files, paths);
    if (!targets)
        return targets.failure();
    while (targets.value().size() > 1
           && hasContent(files, targets.value().last(), contents[targets.value().size() - 1].bytes))
        targets.value().removeLast();
    Outcome done = stage(files, targets.value(), contents);
    if (done)
        done = renameStaged(files, targets.value());
    if (!done)
        (void)recoverTargets(files, targets.value()); // if this fails, settle() does it
    return done;
}

Outcome AtomicFile::recover(const QStringList &paths, FileCalls &calls)
{
    const Files files(calls);
    const auto targets = behindLinks(files, paths);
    return targets ? recoverTargets(files, targets.value()) : targets.failure();
}

Outcome AtomicFile::settle(const QStringList &paths, FileCalls &calls)
{
    const Files files(calls);
    const auto targets = behindLinks(files, paths);
    if (!targets)
        return targets.failure();
    Outcome settled = recoverTargets(files, targets.value());
    for (qsizetype i = 0; settled && i < targets.value().size(); ++i)
        settled = files.syncFolderOf(targets.value()[i]);
    return settled;
}

Outcome AtomicFile::createFolder(const QString &path, FileCalls &calls)
{
    const Files files(calls);
    const auto isThere = files.isFolder(path);
    if (!isThere)
        return isThere.failure();
    if (isThere.value())
        return Done{};
    const QFileInfo folder(QDir::cleanPath(path));
    if (Outcome above = createFolder(folder.absolutePath(), calls); !above)
        return above;
    return files.makeFolder(folder.absoluteFilePath());
}

Result<std::optional<QByteArray>> AtomicFile::read(const QString &path, FileCalls &calls)
{
    return Files(calls).read(path);
}

Outcome AtomicFile::keepAside(const QString &path, const QString &suffix, FileCalls &calls)
{
    const Files files(calls);
    const auto file = files.behindLinks(path);
    if (!file)
        return file.failure();
    const QString &from = file.value();
    QString to = from + suffix;
    for (int number = 2;; ++number) {
        const auto isTaken = files.exists(to);
        if (!isTaken)
            return isTaken.failure();
        if (!isTaken.value())
            break;
        to = from + suffix + QStringLiteral("-%1").arg(number);
    }
    if (Outcome renamed = files.rename(from, to); !renamed && renamed.failure().systemError != ENOENT)
        return renamed;
    // Or else a later rename to the old name might reach the disk first and take the file with it.
    return files.syncFolderOf(from);
}
