// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileDevice>

#include <optional>

/// Writes small files whole or not at all: the file stands under its name only when every byte has been accepted
/// by the disk. QSaveFile alone loses what it still buffers when that is full (up to 16 KiB, Qt 6.4) and says
/// nothing.
namespace ZEVWholeFile {

struct Failure {
    QFileDevice::FileError error;
    QString reason; ///< in the user's language
};

/// Nil for success. \a permissions are those of the new file; none leaves them to the process's mask.
std::optional<Failure> write(const QString &path, const QByteArray &data,
                             QFileDevice::Permissions permissions = {});

} // namespace ZEVWholeFile
