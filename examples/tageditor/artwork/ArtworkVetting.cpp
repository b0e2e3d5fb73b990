// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkVetting.h>

#include <QThreadPool>

bool ArtworkVetting::acceptImageDescription(ZEVDragImageView *,
                                            const std::shared_ptr<ZEVImageDescription> &description,
                                            const Completion &completion)
{
    QThreadPool::globalInstance()->start(
        [limit = m_limit, description, completion] { completion(limit.applied(*description)); });
    return true;
}

std::optional<QString> ArtworkVetting::exportNameForBitmapData(ZEVDragImageView *, const QByteArray &)
{
    return m_exportName.isEmpty() ? std::nullopt : std::optional(m_exportName);
}
