// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageViewDelegate.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>

ZEVDragImageViewDelegate::~ZEVDragImageViewDelegate() = default;

bool ZEVDragImageViewDelegate::acceptBitmapData(ZEVDragImageView *, const QByteArray &, const Completion &)
{
    return false;
}

bool ZEVDragImageViewDelegate::acceptImageDescription(ZEVDragImageView *imageView,
                                                      const std::shared_ptr<ZEVImageDescription> &description,
                                                      const Completion &completion)
{
    return acceptBitmapData(imageView, description->bitmapData(), completion);
}

std::optional<QString> ZEVDragImageViewDelegate::exportNameForBitmapData(ZEVDragImageView *,
                                                                         const QByteArray &)
{
    return std::nullopt;
}
