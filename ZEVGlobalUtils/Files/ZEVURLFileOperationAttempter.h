// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <functional>

class QUrl;
class ZEVError;

namespace ZEVURLFileOperationAttempter {

/// Gets the URL that was wanted first and the one to try.
using Operation = std::function<bool(const QUrl &url, const QUrl &candidate, ZEVError *error)>;

/// To be called when \a operation has failed because the name of \a url is taken: runs it for "Name 2.ext" to
/// "Name 999.ext", as long as those are taken, too. \a outURL is the one that it succeeded for. Kept: the dot
/// is there also where the extension is empty.
ZEV_EXPORT bool attemptFWFERecoveryWithError(const QUrl &url, QUrl *outURL, const Operation &operation,
                                             ZEVError *error = nullptr);

} // namespace ZEVURLFileOperationAttempter
