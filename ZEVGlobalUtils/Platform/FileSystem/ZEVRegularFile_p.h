// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace ZEVRegularFile {

/// Reads a file that somebody else has written: no link, pipe or device, and nothing larger than \a largest
/// bytes. Returns an errno, 0 for success. Any thread.
int read(const QString &path, qint64 largest, QByteArray *contents);

} // namespace ZEVRegularFile
