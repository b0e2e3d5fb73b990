// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVFileErrors.h>

#include <ZEVGlobalUtils/Platform/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/ZEVLocalizedStrings.h>

#include <cerrno>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

using ZEVFileErrors::Operation;
using ZEVLocalizedStrings::localizedString;

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
        return localizedString(u"the item does not exist");
    case EACCES:
    case EPERM:
        return localizedString(u"you do not have permission");
    case EEXIST:
        return localizedString(u"an item with this name already exists");
    case ENOSPC:
    case EDQUOT:
        return localizedString(u"there is not enough room");
    case EROFS:
        return localizedString(u"the volume can only be read");
    case ECANCELED:
        return localizedString(u"it was cancelled");
    default:
        return QString::fromStdString(std::generic_category().message(posixCode));
    }
}

QString description(Operation operation)
{
    switch (operation) {
    case Operation::Move:
        return localizedString(u"“%1” could not be moved: %2.");
    case Operation::Copy:
        return localizedString(u"“%1” could not be copied: %2.");
    case Operation::Change:
        break;
    }
    return localizedString(u"“%1” could not be changed: %2.");
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
