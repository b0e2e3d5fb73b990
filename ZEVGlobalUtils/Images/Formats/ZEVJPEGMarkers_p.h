// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>

#include <optional>

/// The marker segments of a JPEG stream (ITU-T T.81, annex B).
namespace ZEVJPEGMarkers {

/// Where the frame header (SOF) has its length, nil when there is none.
std::optional<quint64> frameHeader(QByteArrayView bytes);

struct Frame {
    bool isSequential = true; ///< and coded by Huffman: every block is there once
    int components = 0;
};
/// Nil without a frame header.
std::optional<Frame> frame(QByteArrayView bytes);

/// The content of the first APP1 segment that begins with \a prefix; empty when there is none.
QByteArrayView applicationData(QByteArrayView bytes, QByteArrayView prefix);

struct Scans {
    int count = 0;
    bool areEnded = false; ///< by the end marker (EOI)
};
/// Those of the first picture, as far as \a most.
Scans scans(QByteArrayView bytes, int most);

/// Whether a decoder finds coded data for every block, with or without an end marker. Takes as long as
/// decoding.
bool hasAllPixels(QByteArrayView bytes);

} // namespace ZEVJPEGMarkers
