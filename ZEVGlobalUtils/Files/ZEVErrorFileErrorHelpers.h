// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

class ZEVError;

/// What kind of failure an error of ZEVFileErrors is. An error of any other domain is none of them, whatever
/// its code.
namespace ZEVErrorFileErrorHelpers {

ZEV_EXPORT bool ZEV_isNoSuchFileError(const ZEVError &error);
ZEV_EXPORT bool ZEV_isPermissionError(const ZEVError &error);
ZEV_EXPORT bool ZEV_isFileWriteFileExistsError(const ZEVError &error);
ZEV_EXPORT bool ZEV_isFileWriteUnknownError(const ZEVError &error);

ZEV_EXPORT bool ZEV_originatesFromMoveOperation(const ZEVError &error);
ZEV_EXPORT bool ZEV_originatesFromCopyOperation(const ZEVError &error);

} // namespace ZEVErrorFileErrorHelpers
