// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVTemporaries_p.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVItemRenaming_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

#include <QHashFunctions>
#include <QMutex>
#include <QRandomGenerator>
#include <QSysInfo>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <map>
#include <optional>
#include <unistd.h>

namespace {

constexpr QByteArrayView Prefix = ".zev-";
constexpr QByteArrayView Suffix = ".tmp";
constexpr int NumberWidth = 8; ///< hexadecimal digits
constexpr qint64 LeastAge = 60; ///< seconds
constexpr qsizetype LongestName = 143; ///< bytes: what encrypted folders take, where most others take 255

/// What stands in a name, in this order.
enum Number { Time, Machine, Process, Random, NumberOfNumbers };
using Numbers = std::array<quint32, NumberOfNumbers>;

constexpr qsizetype NumbersEnd = Prefix.size() + qsizetype(NumberOfNumbers) * NumberWidth;

/// Of this machine and its processes: those of a container have numbers of their own.
quint32 machine()
{
    static const quint32 hash = [] {
        std::array<char, 64> space{};
        if (readlink("/proc/self/ns/pid", space.data(), space.size() - 1) < 0)
            space[0] = '\0';
        return quint32(qHash(QSysInfo::machineUniqueId() + space.data(), 0) & 0xFFFFFFFF);
    }();
    return hash;
}

QByteArray withEnd(const QByteArray &end)
{
    QByteArray name = Prefix.toByteArray();
    for (const quint32 number :
         {quint32(time(nullptr)), machine(), quint32(getpid()), QRandomGenerator::system()->generate()})
        name += QByteArray::number(number, 16).rightJustified(NumberWidth, '0');
    return name + end + Suffix.toByteArray();
}

std::optional<Numbers> numbersOf(const QByteArray &name)
{
    if (!name.startsWith(Prefix) || !name.endsWith(Suffix) || name.size() < NumbersEnd + Suffix.size())
        return std::nullopt;
    Numbers numbers{};
    for (size_t n = 0; n < numbers.size(); ++n) {
        bool isNumber = false;
        const QByteArray digits = name.mid(Prefix.size() + qsizetype(n) * NumberWidth, NumberWidth);
        numbers.at(n) = digits.toUInt(&isNumber, 16);
        if (!isNumber)
            return std::nullopt;
    }
    return numbers;
}

qint64 secondsSinceStart()
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return time.tv_sec;
}

/// A process that began before the machine did has gone, whatever has its number now.
bool isLeftOver(const Numbers &numbers)
{
    const qint64 age = qint64(time(nullptr)) - numbers[Time];
    if (numbers[Machine] != machine() || age < LeastAge)
        return false;
    return age > secondsSinceStart() || (kill(pid_t(numbers[Process]), 0) < 0 && errno == ESRCH);
}

/// Empty where the item is none to bring back.
QByteArray itemNameOf(const QByteArray &name)
{
    const QByteArray end = name.sliced(NumbersEnd).chopped(Suffix.size());
    return end.startsWith('-') ? end.sliced(1) : QByteArray();
}

void bringBack(const ZEVEntry &leftover, const QByteArray &itemName)
{
    constexpr int LastNumber = 999;
    const ZEVFileName name(itemName);
    int error = ZEVItemRenaming::renameWithoutReplacing(leftover, leftover.sibling(itemName));
    for (int number = 2; error == EEXIST && number <= LastNumber; ++number) {
        const QByteArray numbered = name.numbered(number, ZEVFileName::Dot::BeforeExtensionOnly);
        error = ZEVItemRenaming::renameWithoutReplacing(leftover, leftover.sibling(numbered));
    }
    qCWarning(zevLog).noquote() << "Brought back what was being moved:" << itemName << error;
}

void clear(const ZEVEntry &leftover)
{
    struct stat status { };
    if (leftover.readStatus(status) || status.st_uid != geteuid())
        return; // anybody may make a name
    if (const QByteArray itemName = itemNameOf(leftover.name); !itemName.isEmpty())
        return bringBack(leftover, itemName);
    ZEVItemRenaming::remove(leftover, ZEVItemRenaming::Force::MakeWritable);
}

/// Large folders take long to read, and a batch works in the same one again and again. Inodes are used again.
bool isDue(int folder)
{
    static QMutex mutex;
    static std::map<std::array<qint64, 4>, qint64> looked;
    struct statx status { };
    if (statx(folder, "", AT_EMPTY_PATH, STATX_INO | STATX_BTIME, &status) < 0)
        return false;
    const std::array<qint64, 4> identity{qint64(quint64(status.stx_dev_major) << 32 | status.stx_dev_minor),
                                         qint64(status.stx_ino), status.stx_btime.tv_sec,
                                         status.stx_btime.tv_nsec};
    const QMutexLocker lock(&mutex);
    const qint64 now = secondsSinceStart();
    std::erase_if(looked, [&](const auto &entry) { return now - entry.second >= LeastAge; });
    if (looked.contains(identity))
        return false;
    looked.emplace(identity, now);
    return true;
}

} // namespace

QByteArray ZEVTemporaries::name() { return withEnd({}); }

QByteArray ZEVTemporaries::nameFor(const QByteArray &itemName)
{
    const qsizetype room = LongestName - NumbersEnd - 1 - Suffix.size();
    return withEnd('-' + ZEVFileName::shortened(itemName, room));
}

void ZEVTemporaries::clearLeftovers(int folder)
{
    QByteArrayList names;
    if (!isDue(folder) || ZEVPlaces::readNames(folder, names))
        return;
    for (const QByteArray &name : std::as_const(names)) {
        const auto numbers = numbersOf(name);
        if (numbers && isLeftOver(*numbers))
            clear({folder, name});
    }
}
