// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>

#include <sys/stat.h>

#include <utility>

/// An open descriptor that is closed at its end.
class ZEVDescriptor {
public:
    explicit ZEVDescriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    ZEVDescriptor(ZEVDescriptor &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    ZEVDescriptor &operator=(ZEVDescriptor &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~ZEVDescriptor();

    int get() const { return m_descriptor; }
    explicit operator bool() const { return m_descriptor >= 0; }

    /// Closes, and says whether that failed: some file systems tell only then that a disk is full.
    int close();

private:
    int m_descriptor;
};

/// A name in a folder that is open elsewhere.
struct ZEVEntry {
    int folder = -1;
    QByteArray name;

    /// Of the item itself, be it a link; an errno.
    int readStatus(struct stat &status) const;
    int checkIsFree() const; ///< EEXIST where the name is taken

    ZEVEntry sibling(const QByteArray &otherName) const { return {folder, otherName}; }
};

/// A path whose folder is held open: whatever becomes of the path meanwhile, the operation stays there.
class ZEVPlace {
public:
    explicit ZEVPlace(const QByteArray &path);

    /// Why the folder could not be opened; an errno.
    int error() const { return m_error; }
    ZEVEntry entry() const { return {m_folder.get(), m_name}; }
    const QByteArray &path() const { return m_path; }
    QByteArray folderPath() const;

private:
    QByteArray m_path;
    ZEVDescriptor m_folder;
    QByteArray m_name;
    int m_error = 0;
};

namespace ZEVPlaces {

/// Opens a folder for reading, and never one that a link leads to.
ZEVDescriptor openFolder(const ZEVEntry &entry);

/// Every name but "." and ".."; an errno.
int readNames(int folder, QByteArrayList &names);

/// The call's errno, once its result says that it failed.
int errnoOf(int result);

bool isSameItem(const struct stat &one, const struct stat &other);

/// Two descriptors of one folder differ as numbers.
bool isSameFolder(const ZEVEntry &one, const ZEVEntry &other);

} // namespace ZEVPlaces
