// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class QByteArray;
class QUrl;
class ZEVError;

namespace ZEVDataUniqueFileWriting {

/// Writes \a data to \a url or, where the name is taken, to the first free one of "Cover 2.jpg" to
/// "Cover 300.jpg", which \a finalURL then names. A file is there whole or not at all, and none is ever
/// overwritten, whatever other processes do meanwhile.
ZEV_EXPORT bool writeToURLSansOverwrite(const QByteArray &data, const QUrl &url, QUrl *finalURL = nullptr,
                                        ZEVError *error = nullptr);

} // namespace ZEVDataUniqueFileWriting
