// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/tracks/Track.h>

QString displayedPath(const std::filesystem::path &path) { return QString::fromStdString(path.native()); }
