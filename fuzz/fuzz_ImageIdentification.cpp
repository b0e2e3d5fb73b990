// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Formats/ZEVDataBitmapData.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <QLoggingCategory>

namespace {

void check(bool holds)
{
    if (!holds)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("zev.*=false"));
    return 0;
}

/// By its first byte, a picture that is strictly one is what it is; and a size is one that a picture can
/// have. Run it with the corpus of fuzz_ImageDescription.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using Identification = ZEVImageIdentification;
    const QByteArrayView bytes(data, qsizetype(size));
    const auto type = ZEVDataBitmapData::bitmapDataImageFileType(bytes);
    const auto found = Identification::identificationWithData(bytes);
    check(found.pixelSize == QSize() || !found.pixelSize.isEmpty());
    check(found.mimeType().isEmpty() == (found.format == Identification::Unknown));
    check(!ZEVDataBitmapData::bitmapImageType(bytes).isEmpty());
    if (found.format != Identification::Unknown && found.format < Identification::WebP)
        check(found.mimeType() == ZEVDataBitmapData::bitmapImageMimeType(bytes).value_or(QString())
              && type >= 0);
    return 0;
}
