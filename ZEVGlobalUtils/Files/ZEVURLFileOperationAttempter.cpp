// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

bool ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(const QUrl &url, QUrl *outURL,
                                                                const Operation &operation, ZEVError *error)
{
    constexpr int LastNumber = 999;
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(url);
    const ZEVFileName name(ZEVFileURL::lastPathComponent(url));
    ZEVError failure;
    for (int number = 2; number <= LastNumber; ++number) {
        const QUrl candidate = ZEVFileURL::byAppendingPathComponent(
            folder, name.numbered(number, ZEVFileName::Dot::BeforeAnyExtension));
        if (operation && operation(url, candidate, &failure)) {
            if (outURL)
                *outURL = candidate;
            return true;
        }
        if (!ZEVErrorFileErrorHelpers::ZEV_isFileWriteFileExistsError(failure))
            break;
    }
    if (error)
        *error = failure;
    return false;
}
