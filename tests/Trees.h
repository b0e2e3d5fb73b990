// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/// Files and folders as tests make and compare them, by the bytes of their names.
namespace Trees {

using Contents = QMap<QByteArray, QByteArray>;

inline QUrl url(const QString &path) { return QUrl::fromLocalFile(path); }

inline bool write(const QByteArray &path, const QByteArray &contents)
{
    FILE *const file = fopen(path.constData(), "wb");
    const bool isWritten =
        file && fwrite(contents.constData(), 1, size_t(contents.size()), file) == size_t(contents.size());
    return file && fclose(file) == 0 && isWritten;
}

inline QByteArray read(const QByteArray &path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

/// All that a copy has to keep of an item.
inline QByteArray describe(const QByteArray &path)
{
    struct stat status { };
    if (lstat(path.constData(), &status) < 0)
        return {};
    QByteArray text = QByteArray::number(status.st_mode, 8) + ' '
        + QByteArray::number(qint64(status.st_mtime)) + '.'
        + QByteArray::number(qint64(status.st_mtim.tv_nsec));
    if (S_ISLNK(status.st_mode))
        return text + " -> " + QByteArray::fromStdString(std::filesystem::read_symlink(path.toStdString()));
    for (const char *name : {"user.zev", "system.posix_acl_access"}) {
        char value[64]{};
        const ssize_t size = getxattr(path.constData(), name, value, sizeof value);
        text += ' ' + QByteArray(value, std::max<ssize_t>(size, 0)).toHex();
    }
    return S_ISREG(status.st_mode) ? text + ' ' + QByteArray::number(qHash(read(path))) : text;
}

/// What is at \a root and below, by path; only itself where that is no folder.
inline Contents contents(const QByteArray &root)
{
    namespace fs = std::filesystem;
    Contents items{{"", describe(root)}};
    if (!fs::is_directory(fs::symlink_status(root.toStdString())))
        return items;
    for (const auto &entry : fs::recursive_directory_iterator(root.toStdString())) {
        const QByteArray path = QByteArray::fromStdString(entry.path().native());
        items.insert(path.sliced(root.size()), describe(path));
    }
    return items;
}

inline QByteArrayList names(const QByteArray &folder)
{
    QByteArrayList names;
    for (const auto &entry : std::filesystem::directory_iterator(folder.toStdString()))
        names.append(QByteArray::fromStdString(entry.path().filename().native()));
    std::sort(names.begin(), names.end());
    return names;
}

constexpr int HoleSize = 1 << 18;

/// A folder with all that makes copying hard: holes, attributes, links, rights, times, odd names.
inline void makeHard(const QByteArray &path)
{
    QDir().mkpath(QString::fromUtf8(path + "/inner/deep"));
    write(path + "/plain", "plain");
    write(path + "/inner/deep/\xFF\n: -", "bytes");
    write(path + "/inner/readonly", "r");
    setxattr((path + "/inner/readonly").constData(), "user.zev", "tag", 3, 0);
    // user::rw-, user:1234:rwx, group::r--, mask::rwx, other::r--
    const char list[] = "\2\0\0\0"
                        "\1\0\6\0\xff\xff\xff\xff"
                        "\2\0\7\0\xd2\4\0\0"
                        "\4\0\4\0\xff\xff\xff\xff"
                        "\x10\0\7\0\xff\xff\xff\xff"
                        "\x20\0\4\0\xff\xff\xff\xff";
    setxattr((path + "/plain").constData(), "system.posix_acl_access", list, sizeof list - 1, 0);
    chmod((path + "/inner/readonly").constData(), 0440);
    write(path + "/sparse", "begin");
    std::filesystem::resize_file((path + "/sparse").toStdString(), HoleSize);
    std::filesystem::create_symlink("nowhere", (path + "/dangling").toStdString());
    const timespec times[]{{1'000'000'000, 1}, {1'234'567'890, 123'456'789}};
    for (const char *name : {"/plain", "/dangling", "/inner/deep", "/inner"})
        utimensat(AT_FDCWD, (path + name).constData(), times, AT_SYMLINK_NOFOLLOW);
}

/// A folder of this test on another volume than that of temporary files.
class OtherVolume {
public:
    QTemporaryDir folder{QStringLiteral("/dev/shm/zev-XXXXXX")};

    bool isOther() const
    {
        struct stat ours { };
        struct stat temporary { };
        return folder.isValid() && stat(qPrintable(folder.path()), &ours) == 0
            && stat(qPrintable(QDir::tempPath()), &temporary) == 0 && ours.st_dev != temporary.st_dev;
    }
};

} // namespace Trees
