// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVPasteboardRawBitmapData.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVUniformType.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVLog_p.h>

QByteArray ZEVPasteboardRawBitmapData::rawImageData(const ZEVPasteboard &pasteboard)
{
    if (const QUrl url = pasteboard.URL(); url.scheme() == u"file") {
        qCInfo(zevLog).noquote() << "Read From File at" << url.path(QUrl::FullyDecoded);
        const auto path = ZEVLocalFile::path(url);
        return path ? ZEVImageFile::read(*path) : QByteArray();
    }
    for (QStringView type : {ZEVUniformType::Image, ZEVUniformType::PNG, ZEVUniformType::TIFF,
                             ZEVUniformType::JPEG, ZEVUniformType::GIF, ZEVUniformType::BMP}) {
        if (QByteArray data = pasteboard.dataForType(type); !data.isNull())
            return data;
    }
    return {};
}

QByteArray ZEVPasteboardRawBitmapData::dataForUTI(const ZEVPasteboard &pasteboard, QStringView identifier)
{
    qCInfo(zevLog).noquote() << identifier.toString();
    return pasteboard.dataForType(identifier);
}
