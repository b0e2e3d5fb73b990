// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Folders for what nobody else shall read or replace.
namespace ZEVPrivateFolder {

/// Whether \a path is a folder of this user's alone: no link, owned by the user, closed to everybody else. An
/// own folder that stands open is closed.
bool isPrivate(const QString &path);

/// Makes the folder, and those that it lies in, if it is not there; says whether it isPrivate().
bool make(const QString &path);

} // namespace ZEVPrivateFolder
