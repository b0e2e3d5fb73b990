// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <filesystem>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

QStringList filesIn(const QString &folder)
{
    QStringList files;
    for (const QString &name : QDir(folder).entryList(QDir::Files))
        files.append(folder + u'/' + name);
    return files;
}

bool copyByOurs(const QString &source, const QString &target)
{
    return ZEVPlainFileManager::defaultManager()->copyItemAtURL(QUrl::fromLocalFile(source),
                                                                QUrl::fromLocalFile(target));
}

bool copyByCp(const QString &source, const QString &target)
{
    return run(u"cp"_s, {u"-a"_s, source, target});
}

/// It copies no folders.
bool copyByGio(const QString &source, const QString &target)
{
    if (!QFileInfo(source).isDir())
        return run(u"gio"_s, {u"copy"_s, source, target});
    return QDir().mkdir(target)
        && run(u"gio"_s, QStringList{u"copy"_s} + filesIn(source) + QStringList{target});
}

bool copyByQt(const QString &source, const QString &target)
{
    if (!QFileInfo(source).isDir())
        return QFile::copy(source, target);
    bool isDone = QDir().mkdir(target);
    for (const QString &file : filesIn(source))
        isDone = isDone && QFile::copy(file, target + u'/' + QFileInfo(file).fileName());
    return isDone;
}

bool copyByStandard(const QString &source, const QString &target)
{
    std::error_code error;
    std::filesystem::copy(source.toStdString(), target.toStdString(),
                          std::filesystem::copy_options::recursive, error);
    return !error;
}

struct Runner {
    const char *name;
    bool (*copy)(const QString &, const QString &);
};

constexpr std::array<Runner, 5> Runners{{
    {"ours", copyByOurs},
    {"cp", copyByCp},
    {"gio", copyByGio},
    {"qt", copyByQt},
    {"std", copyByStandard},
}};

/// What the others have left to write is none of the time of the next.
double timeOf(const Runner &runner, const QString &source, const QString &target, bool &isDone)
{
    sync();
    const auto start = Clock::now();
    isDone = runner.copy(source, target) && isDone;
    const double time = std::chrono::duration<double>(Clock::now() - start).count();
    std::filesystem::remove_all(target.toStdString());
    return time;
}

/// One turn of each, another one first every time. A ratio above 1 says that the peer takes longer.
void compare(benchmark::State &state, const QString &source)
{
    static size_t first = 0;
    for ([[maybe_unused]] auto iteration : state) {
        std::array<double, Runners.size()> times{};
        bool areDone = true;
        ++first;
        for (size_t turn = 0; turn < Runners.size(); ++turn) {
            const size_t runner = (first + turn) % Runners.size();
            times.at(runner) = timeOf(Runners.at(runner), source, source + u".copy"_s, areDone);
        }
        state.SetIterationTime(times[0]);
        for (size_t peer = 1; peer < Runners.size(); ++peer)
            state.counters[std::string(Runners.at(peer).name) + "/ours"] = times.at(peer) / times[0];
        if (!areDone)
            return state.SkipWithError("one of them could not copy");
    }
}

/// ZEV_BENCH_SCALE shrinks the files for a quick look: 0.01 is a hundredth of their size or number.
double scale()
{
    bool given = false;
    const double scale = qEnvironmentVariable("ZEV_BENCH_SCALE").toDouble(&given);
    return given ? scale : 1.0;
}

bool write(const QString &path, qint64 size)
{
    QFile file(path);
    const QByteArray block(16 << 10, 'x');
    bool isWritten = file.open(QFile::WriteOnly);
    for (qint64 written = 0; isWritten && written < size; written += block.size())
        isWritten = file.write(block) == block.size();
    return isWritten;
}

void add(const char *name, const QString &source)
{
    benchmark::RegisterBenchmark(name, compare, source)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(9)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    const QString large = folder.filePath(u"large"_s);
    const QString many = folder.filePath(u"many"_s);
    bool isReady = write(large, qint64((qint64(1) << 30) * scale())) && QDir().mkdir(many);
    for (int n = 0; n < int(10'000 * scale()); ++n)
        isReady = isReady && write(many + u'/' + QString::number(n), 16 << 10);
    add("one file of 1 GiB", large);
    add("10,000 files of 16 KiB", many);
    benchmark::Initialize(&argc, argv);
    if (isReady)
        benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return isReady ? 0 : 1;
}
