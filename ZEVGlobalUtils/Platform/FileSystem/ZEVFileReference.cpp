// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileOperations_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>

using namespace Qt::StringLiterals;

namespace {

using ZEVFileOperations::Status;

const QString Prefix = u"id="_s;

QString fragment(const Status &status)
{
    return Prefix + QString::number(status.device) + u'.' + QString::number(status.inode) + u'.'
        + QString::number(status.birthTime);
}

std::optional<Status> identity(const QUrl &url)
{
    const QString text = url.fragment();
    const QStringList numbers = text.sliced(std::min(Prefix.size(), text.size())).split(u'.');
    if (!text.startsWith(Prefix) || numbers.size() != 3)
        return std::nullopt;
    return Status{false, numbers.at(0).toULongLong(), numbers.at(1).toULongLong(),
                  numbers.at(2).toLongLong()};
}

bool isAtItsPath(const Status &identity, const QByteArray &path)
{
    const auto status = ZEVFileOperations::status(path);
    return status && status->device == identity.device && status->inode == identity.inode
        && status->birthTime == identity.birthTime;
}

} // namespace

QUrl ZEVFileReference::fileReferenceURL(const QUrl &url)
{
    const QUrl pathURL = filePathURL(url);
    const auto status = ZEVFileOperations::status(ZEVFileURL::path(pathURL));
    if (!status)
        return {};
    QUrl reference = ZEVFileURL::withPath(ZEVFileURL::path(pathURL));
    reference.setFragment(fragment(*status));
    return reference;
}

QUrl ZEVFileReference::filePathURL(const QUrl &url)
{
    const auto wanted = identity(url);
    if (!wanted)
        return url;
    QUrl pathURL = url.adjusted(QUrl::RemoveFragment);
    if (isAtItsPath(*wanted, ZEVFileURL::path(pathURL)))
        return pathURL;
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(pathURL);
    const QByteArray name = ZEVFileOperations::nameOfItem(*wanted, ZEVFileURL::path(folder));
    return name.isEmpty() ? pathURL : ZEVFileURL::byAppendingPathComponent(folder, name);
}
