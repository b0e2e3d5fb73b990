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

/// The extension, without its dot, of a file with these bytes: by the first one or, where that says nothing, by all of
/// the header. Empty when unknown.
QString extension(const QByteArray &data);

std::optional<ZEVError> writeAtomically(const QByteArray &data, const QString &path);

/// An error with the text that the user gets to read; the code is one of ZEVFileErrors.
ZEVError writeError(qint64 code, const QString &path, const QString &reason);

} // namespace ZEVImageFile
