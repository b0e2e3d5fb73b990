// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVNumberedNames_p.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

bool ZEVNumberedNames::attempt(const QUrl &url, const Numbers &numbers, const Operation &operation,
                               QUrl *outURL, ZEVError *error)
{
    const QUrl folder = ZEVFileURL::byDeletingLastPathComponent(url);
    const ZEVFileName name(ZEVFileURL::lastPathComponent(url));
    ZEVError failure;
    for (int number = numbers.first; number <= numbers.last; ++number) {
        const QUrl candidate = number == 1
            ? url
            : ZEVFileURL::byAppendingPathComponent(folder, name.numbered(number, numbers.dot));
        if (operation && operation(candidate, &failure)) {
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
