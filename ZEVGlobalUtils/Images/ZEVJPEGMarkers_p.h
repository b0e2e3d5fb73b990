// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>

#include <optional>

/// The marker segments of a JPEG stream (ITU-T T.81, annex B).
namespace ZEVJPEGMarkers {

/// Where the frame header (SOF) has its length, nil when there is none.
std::optional<quint64> frameHeader(QByteArrayView bytes);

/// Whether the end marker (EOI) comes after one scan and not more than \a mostScans.
bool endsAfterScans(QByteArrayView bytes, int mostScans);

} // namespace ZEVJPEGMarkers
