// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class ZEVImageDescription;

/// What the preview panel shows of an artwork well.
class ZEVArtworkPreview {
public:
    using Artwork = std::shared_ptr<const ZEVImageDescription>;

    /// Opens the panel with the artwork, or closes it. Without artwork it only closes it.
    static void toggle(const Artwork &artwork);

    /// A panel that shows this well's artwork goes on doing so, from track to track.
    void follow(const ZEVImageDescription *previous, const Artwork &artwork);

private:
    bool m_isFollowed = false; ///< the panel showed this well's artwork when it last had any
};
