// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/// The one place where foreign bytes become pixels.
namespace ZEVImageDecoder {

enum class Outcome {
    Shown,
    NoImage, ///< none of the known formats
    NoDecoder, ///< of a format that this system does not decode
    Damaged, ///< cut short, or not what the header says
    TooLarge, ///< would take more memory or time than any artwork is worth
};

struct Picture {
    Outcome outcome = Outcome::NoImage;
    /// The first frame or page, upright, in sRGB, with one point a pixel; scaled down where it is larger than
    /// a screen can show and memory should hold. Null unless it is shown.
    QImage image;
    /// In pixels as they are stored, by the header; empty where that does not say.
    QSize storedSize;
    /// The same as it stands upright.
    QSize shownSize;
    bool isAnimated = false;
    /// Whether it is smaller than without a room.
    bool isForRoom = false;
};

/// Takes at most 256 MB. With a \a room, in pixels, in which it is to be shown, the picture may be a smaller one that
/// nobody tells from the whole there, and is quicker to read. Any thread.
Picture pictureWithData(const QByteArray &data, QSize room = {});

/// Whether a type is one that is identified and that this system decodes: what may be dropped, pasted and
/// chosen. Any thread.
bool isDecodedMimeType(const QString &mimeType);

} // namespace ZEVImageDecoder
