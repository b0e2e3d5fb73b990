// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class ZEVImageDescription;

/// How large artwork may be.
struct ArtworkLimit {
    int pixels = 0; ///< of the longer edge; 0 for no limit
    qint64 bytes = 0; ///< of the encoded picture; 0 for no limit

    /// Whether \a artwork is as it should be.
    bool isKeptBy(const QByteArray &artwork) const;

    /// \a artwork as it is where it keeps the limit, else made smaller and encoded anew: as a PNG where it
    /// was one and that is small enough, else as a JPEG, upright and in sRGB. Only for what can be shown. Any thread.
    QByteArray applied(const ZEVImageDescription &artwork) const;
};
