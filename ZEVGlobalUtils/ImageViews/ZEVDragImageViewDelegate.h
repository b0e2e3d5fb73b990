// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class ZEVDragImageView;
class ZEVImageDescription;

/// Has a say in what an artwork well takes and gives. Both operations are optional.
class ZEV_EXPORT ZEVDragImageViewDelegate {
public:
    using Completion = std::function<void(const QByteArray &data)>;

    virtual ~ZEVDragImageViewDelegate();

    /// Vets or converts artwork before it is shown. True says that \a completion is called with what to show,
    /// now, later or, to refuse it, never or with nothing; on any thread. Only the first answer counts, and
    /// only as long as no newer artwork has come. False, as here, shows the data at once.
    virtual bool acceptBitmapData(ZEVDragImageView *imageView, const QByteArray &data,
                                  const Completion &completion);

    /// The same for a delegate that looks at the picture, which has been decoded already. What the well takes it can
    /// show: for bytes that cannot be decoded nobody is asked. As it is, it asks acceptBitmapData().
    virtual bool acceptImageDescription(ZEVDragImageView *imageView,
                                        const std::shared_ptr<ZEVImageDescription> &description,
                                        const Completion &completion);

    /// The name, without an extension, of a file that is dragged out; nil or empty for the usual one.
    virtual std::optional<QString> exportNameForBitmapData(ZEVDragImageView *imageView,
                                                           const QByteArray &data);
};
