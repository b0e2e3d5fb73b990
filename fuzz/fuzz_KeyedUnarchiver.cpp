// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

namespace {

/// An archive of nil less its last byte: what is appended stands in the place of the root object.
QByteArray archivePrefix() { return ZEVKeyedArchiver::archivedDataWithRootObject(QVariant()).chopped(1); }

} // namespace

/// Whatever the bytes are, they give nil or a whole object, which can be archived again. Run it with
/// -dict=fuzz/KeyedUnarchiver.dict.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QByteArray prefix = archivePrefix();
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QVariant object = ZEVKeyedUnarchiver::unarchivedObject(prefix + bytes);
    if (!object.isValid())
        return 0;
    const QByteArray again = ZEVKeyedArchiver::archivedDataWithRootObject(object);
    if (!ZEVKeyedUnarchiver::unarchivedObject(again).isValid())
        __builtin_trap();
    return 0;
}
