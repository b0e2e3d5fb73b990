// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVDataUniqueFileWriting.h>

#include <ZEVGlobalUtils/Files/ZEVNumberedNames_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlainFileManager.h>

bool ZEVDataUniqueFileWriting::writeToURLSansOverwrite(const QByteArray &data, const QUrl &url,
                                                       QUrl *finalURL, ZEVError *error)
{
    constexpr ZEVNumberedNames::Numbers Numbers{1, 300, ZEVFileName::Dot::BeforeExtensionOnly};
    const auto write = [&](const QUrl &candidate, ZEVError *failure) {
        return ZEVPlainFileManager::defaultManager()->createFileAtURL(candidate, data, failure);
    };
    return ZEVNumberedNames::attempt(url, Numbers, write, finalURL, error);
}
