// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVDataMD5.h>

#include <QCryptographicHash>

QString ZEVDataMD5::MD5Hash(QByteArrayView data)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(data);
    return QString::fromLatin1(hash.result().toHex());
}
