// Adding a note to 10,000 notes, against a plain program that writes, syncs and renames the same bytes.
#include "model/NoteCoding.h"
#include "model/NoteStore.h"
#include "support/ManyNotes.h"
#include "support/TestFiles.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {
/// In a folder of the build, which lies on a disk; a temporary folder may be memory.
QTemporaryDir folderOnDisk()
{
    return QTemporaryDir(QDir::currentPath() + QStringLiteral("/build/bench-XXXXXX"));
}

void writePlainly(const QByteArray &path, const QByteArray &bytes)
{
    const QByteArray aside = path + ".tmp";
    const int fd = ::open(aside.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (::write(fd, bytes.constData(), size_t(bytes.size())) != bytes.size() || ::fsync(fd) != 0)
        qFatal("cannot write %s", aside.constData());
    ::close(fd);
    ::rename(aside.constData(), path.constData());
}

void plain(benchmark::State &state)
{
    const QTemporaryDir folder = folderOnDisk();
    const QByteArray notes = noteEncoder::encode(manyNotes(10'000));
    const QByteArray trash = noteEncoder::encode(QList<Note>());
    const QByteArray base = folder.path().toLocal8Bit();
    for (auto _ : state) {
        writePlainly(base + "/notes.json", notes);
        writePlainly(base + "/trash.json", trash);
    }
}

void add(benchmark::State &state)
{
    const QTemporaryDir folder = folderOnDisk();
    const TestClock clock("2026-03-02T02:00:00Z");
    NoteStore store(folder.filePath(QStringLiteral("notes.json")), clock);
    store.importNotes(manyNotes(10'000));
    for (auto _ : state)
        store.add(QStringLiteral("买牛奶 #家"));
}

BENCHMARK(plain)
    ->Name("add/baseline: write, sync, rename")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Repetitions(9)
    ->ReportAggregatesOnly();
BENCHMARK(add)
    ->Name("add/a note to 10,000")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Repetitions(9)
    ->ReportAggregatesOnly();
} // namespace
