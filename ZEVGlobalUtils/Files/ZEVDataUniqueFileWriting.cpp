// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>

#include <ZEVGlobalUtils/Files/ZEVErrorFileErrorHelpers.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileName_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileURL.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

namespace {

constexpr int LastNumber = 300;

QUrl numberedURL(const QUrl &url, int number)
{
    const ZEVFileName name(ZEVFileURL::lastPathComponent(url));
    return ZEVFileURL::byAppendingPathComponent(ZEVFileURL::byDeletingLastPathComponent(url),
                                                name.numbered(number, ZEVFileName::Dot::BeforeExtensionOnly));
}

} // namespace

bool ZEVDataUniqueFileWriting::writeToURLSansOverwrite(const QByteArray &data, const QUrl &url,
                                                       QUrl *finalURL, ZEVError *error)
{
    ZEVError failure;
    for (int number = 1; number <= LastNumber; ++number) {
        const QUrl candidate = number == 1 ? url : numberedURL(url, number);
        if (ZEVPlainFileManager::defaultManager()->createFileAtURL(candidate, data, &failure)) {
            if (finalURL)
                *finalURL = candidate;
            return true;
        }
        if (!ZEVErrorFileErrorHelpers::ZEV_isFileWriteFileExistsError(failure))
            break;
    }
    if (error)
        *error = failure;
    return false;
}
