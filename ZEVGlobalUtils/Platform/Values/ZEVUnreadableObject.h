// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCborValue>
#include <QMetaType>

/// An object of an archive that this program cannot read: of a class that another one has registered, or of
/// another version. It goes back into an archive as it came.
struct ZEVUnreadableObject {
    QCborValue archived;
};

Q_DECLARE_METATYPE(ZEVUnreadableObject)
