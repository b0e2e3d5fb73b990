// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QByteArray>

/// Files of artwork: read with care, written whole or not at all. Writing gives nil for success.
namespace ZEVImageFile {

/// The whole file. Null for what cannot be read, is no plain file, or is larger than any tag can take (256
/// MB, the limit of an ID3v2 frame).
QByteArray read(const QString &path);

std::optional<ZEVError> writeAtomically(const QByteArray &data, const QString &path);

/// An error with the text that the user gets to read; the code is one of ZEVFileErrors.
ZEVError writeError(qint64 code, const QString &path, const QString &reason);

} // namespace ZEVImageFile
