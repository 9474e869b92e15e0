#include "model/AppPaths.h"

#include "foundation/AtomicFile.h"
#include "foundation/Log.h"

#include <QDir>
#include <QFile>

namespace {
Outcome move(const QString &name, const QString &oldFolder, const QString &newFolder)
{
    if (Outcome created = AtomicFile::createFolder(newFolder); !created)
        return created;
    QFile file(oldFolder + u'/' + name);
    if (!file.rename(newFolder + u'/' + name))
        return Failure{file.errorString()};
    return Done{};
}

QString applicationSupport()
{
    // The base directory specification requires relative paths to be ignored: they would depend on the
    // current directory.
    const QString configured = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(configured) ? configured : QDir::homePath() + QStringLiteral("/.local/share");
}
} // namespace

QString AppPaths::dataFolder()
{
    return applicationSupport() + QStringLiteral("/Quillet");
}

void AppPaths::migrateLegacyDataIfNeeded(const QString &base)
{
    const QString oldFolder = base + QStringLiteral("/Tallypad");
    const QString newFolder = base + QStringLiteral("/Quillet");
    if (!QFile::exists(oldFolder))
        return;
    for (const QString &name :
        {QStringLiteral("notes.json"), QStringLiteral("trash.json"), QStringLiteral("reminders.json")}) {
        const QString oldPath = oldFolder + u'/' + name;
        if (!QFile::exists(oldPath) || QFile::exists(newFolder + u'/' + name))
            continue;
        if (const Outcome moved = move(name, oldFolder, newFolder); !moved) {
            Log::line(QStringLiteral("failed to migrate %1 from %2: %3").arg(name, oldPath, moved.message()));
        }
    }
    QDir().rmdir(oldFolder); // succeeds only when nothing is left in it
}

QString AppPaths::defaultFile(const QString &name)
{
    migrateLegacyDataIfNeeded(applicationSupport());
    return dataFolder() + u'/' + name;
}
