// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileErrors.h>

namespace {

bool isCode(const ZEVError &error, ZEVFileErrors::Code code)
{
    return error.domain() == ZEVError::CocoaErrorDomain && error.code() == code;
}

bool originatesFrom(const ZEVError &error, QStringView variant)
{
    const QVariant variants = error.userInfo().value(ZEVFileErrors::UserStringVariantKey.toString());
    return variants.toStringList().value(0) == variant;
}

} // namespace

bool ZEVErrorFileErrorHelpers::ZEV_isNoSuchFileError(const ZEVError &error)
{
    return isCode(error, ZEVFileErrors::NoSuchFile);
}

bool ZEVErrorFileErrorHelpers::ZEV_isPermissionError(const ZEVError &error)
{
    return isCode(error, ZEVFileErrors::FileWriteNoPermission);
}

bool ZEVErrorFileErrorHelpers::ZEV_isFileWriteFileExistsError(const ZEVError &error)
{
    return isCode(error, ZEVFileErrors::FileWriteFileExists);
}

bool ZEVErrorFileErrorHelpers::ZEV_isFileWriteUnknownError(const ZEVError &error)
{
    return isCode(error, ZEVFileErrors::FileWriteUnknown);
}

bool ZEVErrorFileErrorHelpers::ZEV_originatesFromMoveOperation(const ZEVError &error)
{
    return originatesFrom(error, u"Move");
}

bool ZEVErrorFileErrorHelpers::ZEV_originatesFromCopyOperation(const ZEVError &error)
{
    return originatesFrom(error, u"Copy");
}
