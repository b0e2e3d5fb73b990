// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageIdentification.h>

#include <QCoreApplication>
#include <QLoggingCategory>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv); // it finds the image plugins
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

/// Whatever the bytes are, they give a description in little time and memory: only what is strictly a picture
/// is decoded. Give it pictures of every format to start from, and -max_len=100000.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const ZEVImageDescription description(bytes);
    const bool isPicture = ZEVImageIdentification::identificationWithData(bytes).pixelSize.isValid();
    const bool hasSize = !description.size().isEmpty();
    if (hasSize == description.image().isNull() || (hasSize && !isPicture) || description.byteSize() != size)
        __builtin_trap();
    return description.imageDescription().isEmpty() ? 1 : 0;
}
