// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

using ZEVFileErrors::Operation;

ZEVFileErrors::Code codeFor(int posixCode)
{
    switch (posixCode) {
    case ENOENT:
        return ZEVFileErrors::NoSuchFile;
    case EACCES:
    case EPERM:
        return ZEVFileErrors::FileWriteNoPermission;
    case EEXIST:
        return ZEVFileErrors::FileWriteFileExists;
    default:
        return ZEVFileErrors::FileWriteUnknown;
    }
}

QString reason(int posixCode)
{
    switch (posixCode) {
    case ENOENT:
        return localized(u"the item does not exist");
    case EACCES:
    case EPERM:
        return localized(u"you do not have permission");
    case EEXIST:
        return localized(u"an item with this name already exists");
    case ENOSPC:
    case EDQUOT:
        return localized(u"there is not enough room");
    case EROFS:
        return localized(u"the volume can only be read");
    case ECANCELED:
        return localized(u"it was cancelled");
    default:
        return QString::fromStdString(std::generic_category().message(posixCode));
    }
}

QString description(Operation operation)
{
    switch (operation) {
    case Operation::Move:
        return localized(u"“%1” could not be moved: %2.");
    case Operation::Copy:
        return localized(u"“%1” could not be copied: %2.");
    case Operation::Change:
        break;
    }
    return localized(u"“%1” could not be changed: %2.");
}

void insertVariant(QVariantMap &userInfo, Operation operation)
{
    if (operation != Operation::Change)
        userInfo.insert(ZEVFileErrors::UserStringVariantKey.toString(),
                        QStringList{operation == Operation::Move ? u"Move"_s : u"Copy"_s});
}

} // namespace

ZEVError ZEVFileErrors::error(int posixCode, Operation operation, const QUrl &source, const QUrl &destination)
{
    const Code code = codeFor(posixCode);
    const QUrl &item = code == FileWriteFileExists && destination.isValid() ? destination : source;
    const ZEVError underlying(ZEVError::POSIXErrorDomain, posixCode);
    QVariantMap userInfo{
        {FilePathKey.toString(), QString::fromUtf8(ZEVFileURL::path(item))},
        {URLKey.toString(), item},
        {SourceURLKey.toString(), source},
        {ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(underlying)},
        {ZEVError::LocalizedDescriptionKey.toString(),
         description(operation).arg(ZEVFileURL::displayName(item), reason(posixCode))},
    };
    if (destination.isValid())
        userInfo.insert(DestinationURLKey.toString(), destination);
    insertVariant(userInfo, operation);
    return ZEVError(ZEVError::CocoaErrorDomain, code, userInfo);
}

int ZEVFileErrors::posixCode(const ZEVError &error)
{
    const auto underlying = error.underlyingError();
    return underlying && underlying->domain() == ZEVError::POSIXErrorDomain ? int(underlying->code()) : 0;
}
