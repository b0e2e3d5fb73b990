// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QByteArrayView>
#include <QString>

namespace ZEVDataMD5 {

/// The MD5 digest (RFC 1321) as 32 lower-case hexadecimal digits.
ZEV_EXPORT QString MD5Hash(QByteArrayView data);

} // namespace ZEVDataMD5
