// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVConflictDetails_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVWorkspace_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVByteCountFormatter.h>

#include <QDateTime>
#include <QFileInfo>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QLocale>

namespace {

constexpr int PictureSize = 64; ///< points

/// The image in a file, read as small as it is shown; null for anything else.
QPixmap thumbnail(const QString &path, qreal ratio)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize wanted(qRound(PictureSize * ratio), qRound(PictureSize * ratio));
    if (!QFileInfo(path).isFile() || !reader.size().isValid())
        return {};
    reader.setScaledSize(reader.size().scaled(wanted, Qt::KeepAspectRatio));
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QString description(const QUrl &url, const std::function<QString(const QUrl &)> &describer)
{
    const QFileInfo file(url.toLocalFile());
    QStringList lines{ZEVFileURL::displayName(url)};
    if (file.isFile())
        lines.append(ZEVByteCountFormatter().stringFromByteCount(file.size()));
    if (file.exists())
        lines.append(QLocale().toString(file.lastModified(), QLocale::ShortFormat));
    if (describer)
        lines.append(describer(url));
    lines.removeAll(QString());
    return lines.join(u'\n');
}

void addItem(QGridLayout *grid, int row, const QString &heading, const QUrl &url, const QString &text)
{
    QWidget *parent = grid->parentWidget();
    auto *picture = new QLabel;
    QPixmap pixmap = thumbnail(url.toLocalFile(), parent->devicePixelRatioF());
    if (pixmap.isNull())
        pixmap = ZEVWorkspace::iconForFile(url).pixmap(QSize(PictureSize, PictureSize),
                                                       parent->devicePixelRatioF());
    picture->setPixmap(pixmap);
    picture->setFixedWidth(PictureSize);
    picture->setAlignment(Qt::AlignCenter);
    auto *label = new QLabel(heading + u'\n' + text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    grid->addWidget(picture, row, 0, Qt::AlignTop);
    grid->addWidget(label, row, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
}

} // namespace

QWidget *ZEVConflictDetails::view(const QUrl &existing, const QUrl &incoming,
                                  const std::function<QString(const QUrl &)> &describer, QWidget *parent)
{
    auto *widget = new QWidget(parent);
    auto *grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    addItem(grid, 0, ZEVGlobalHelper::localizedStringForKey(u"Existing item:"), existing,
            description(existing, describer));
    addItem(grid, 1, ZEVGlobalHelper::localizedStringForKey(u"New item:"), incoming,
            description(incoming, describer));
    return widget;
}
