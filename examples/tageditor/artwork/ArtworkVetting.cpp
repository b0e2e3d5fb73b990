// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkVetting.h>

#include <QThreadPool>

bool ArtworkVetting::acceptBitmapData(ZEVDragImageView *, const QByteArray &data,
                                      const Completion &completion)
{
    QThreadPool::globalInstance()->start(
        [limit = m_limit, data, completion] { completion(limit.applied(data)); });
    return true;
}

std::optional<QString> ArtworkVetting::exportNameForBitmapData(ZEVDragImageView *, const QByteArray &)
{
    return m_exportName.isEmpty() ? std::nullopt : std::optional(m_exportName);
}
