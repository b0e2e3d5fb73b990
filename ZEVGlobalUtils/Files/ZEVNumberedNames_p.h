// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>

#include <QUrl>

#include <functional>

class ZEVError;

/// Tries one name after the other until one is free.
namespace ZEVNumberedNames {

struct Numbers {
    int first; ///< 1 stands for the name as it is
    int last;
    ZEVFileName::Dot dot;
};
using Operation = std::function<bool(const QUrl &candidate, ZEVError *error)>;

/// The first candidate that \a operation succeeds for is \a outURL. A failure other than a taken name ends it;
/// the last one is \a error. Both may be null.
bool attempt(const QUrl &url, const Numbers &numbers, const Operation &operation, QUrl *outURL,
             ZEVError *error);

} // namespace ZEVNumberedNames
