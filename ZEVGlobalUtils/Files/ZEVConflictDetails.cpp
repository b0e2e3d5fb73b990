// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVConflictDetails_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVByteCountFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>

#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>

#include <chrono>
#include <cstdio>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

constexpr int PictureSize = 64; ///< points

fs::path pathOf(const QUrl &url) { return ZEVFileURL::path(url).toStdString(); }

bool isFile(const QUrl &url)
{
    std::error_code error;
    return fs::is_regular_file(pathOf(url), error);
}

/// The image in a file, read as small as it is shown; null for anything else.
QPixmap thumbnail(const QUrl &url, qreal ratio)
{
    QFile file;
    FILE *const opened = isFile(url) ? fopen(ZEVFileURL::path(url).constData(), "rb") : nullptr;
    if (!opened || !file.open(opened, QFile::ReadOnly, QFile::AutoCloseHandle))
        return {};
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    const QSize wanted(qRound(PictureSize * ratio), qRound(PictureSize * ratio));
    if (!reader.size().isValid())
        return {};
    reader.setScaledSize(reader.size().scaled(wanted, Qt::KeepAspectRatio));
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QPixmap pictureOf(const QUrl &url)
{
    const qreal ratio = qApp->devicePixelRatio();
    const QPixmap picture = thumbnail(url, ratio);
    const QSize size(PictureSize, PictureSize);
    return picture.isNull() ? ZEVWorkspace::iconForFile(url).pixmap(size, ratio) : picture;
}

QDateTime lastModified(const QUrl &url)
{
    std::error_code error;
    const auto time = fs::last_write_time(pathOf(url), error);
    if (error)
        return {};
    const auto sinceEpoch = decltype(time)::clock::to_sys(time).time_since_epoch();
    return QDateTime::fromMSecsSinceEpoch(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}

ZEVAlert::Item itemOf(const QString &heading, const QUrl &url,
                      const std::function<QString(const QUrl &)> &describer)
{
    QStringList lines{heading, ZEVFileURL::displayName(url)};
    std::error_code error;
    if (isFile(url))
        lines.append(ZEVByteCountFormatter().stringFromByteCount(qint64(fs::file_size(pathOf(url), error))));
    if (const QDateTime date = lastModified(url); date.isValid())
        lines.append(ZEVShortDateFormatter::sharedInstance().stringFromDate(date));
    if (describer)
        lines.append(describer(url));
    lines.removeAll(QString());
    return {pictureOf(url), lines.join(u'\n')};
}

} // namespace

QList<ZEVAlert::Item> ZEVConflictDetails::items(const QUrl &existing, const QUrl &incoming,
                                                const std::function<QString(const QUrl &)> &describer)
{
    return {itemOf(ZEVGlobalHelper::localizedStringForKey(u"Existing item:"), existing, describer),
            itemOf(ZEVGlobalHelper::localizedStringForKey(u"New item:"), incoming, describer)};
}
