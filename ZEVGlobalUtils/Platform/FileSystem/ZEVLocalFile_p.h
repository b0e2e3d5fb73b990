// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

class QUrl;

namespace ZEVLocalFile {

/// The path of a file URL (RFC 8089), nil for any other. Programs put the name of this machine into the
/// address as well; that of another machine is no file of ours. A slash at its end stays.
std::optional<QString> path(const QUrl &url);

} // namespace ZEVLocalFile
