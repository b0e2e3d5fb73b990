// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

#include <QImage>
#include <QUrl>

class ZEVError;
class ZEVPlainFileManager;

namespace ZEVFileManagerHelpers {

/// Hidden items do not count. False for a folder that cannot be read; kept: one that cannot be listed for any
/// other reason counts as empty.
ZEV_EXPORT bool isEmptyDirectoryAtURL(ZEVPlainFileManager &fileManager, const QUrl &url);

/// In their order.
ZEV_EXPORT QList<QUrl> filteredArrayOfExistingURLs(ZEVPlainFileManager &fileManager, const QList<QUrl> &urls,
                                                   bool restrictToDirectories);

/// Copies the source beside the destination, and puts the whole copy in the destination's place at once.
ZEV_EXPORT bool atomicCopyItemAtURL(ZEVPlainFileManager &fileManager, const QUrl &srcURL, const QUrl &dstURL,
                                    ZEVError *error = nullptr);

/// Properties of the format of a title's icon, which stands as U+FFFC in its text: a QImage of 20 x 16 points
/// and, as QRectF in points, where it lies from the baseline, y growing upwards.
inline constexpr int AttachmentImage = QTextFormat::UserProperty + 16;
inline constexpr int AttachmentBounds = QTextFormat::UserProperty + 17;

/// A small icon, a gap of 4 points and the name. Kept: the image that is passed becomes 16 points wide
/// itself. Main thread, as the following one.
ZEV_EXPORT ZEVAttributedString attributedTitleForFileName(const QString &fileName, QImage &icon);

/// As above, with the desktop's icon where none is given and, where the name alone is \a ambiguous, followed
/// by a dash and the title of the folder.
ZEV_EXPORT ZEVAttributedString uniqueDisplayName(ZEVPlainFileManager &fileManager, bool ambiguous,
                                                 const QUrl &url, QImage icon = {});

} // namespace ZEVFileManagerHelpers
