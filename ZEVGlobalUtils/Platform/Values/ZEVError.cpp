// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

ZEVError::ZEVError(QStringView domain, qint64 code, const QVariantMap &userInfo)
    : m_domain(domain.toString())
    , m_code(code)
    , m_userInfo(userInfo)
{
}

QString ZEVError::localizedDescription() const
{
    QString described = m_userInfo.value(LocalizedDescriptionKey.toString()).toString();
    if (!described.isEmpty())
        return described;
    return ZEVGlobalHelper::localizedStringForKey(u"The operation couldn’t be completed. (%1 error %2.)")
        .arg(m_domain, QString::number(m_code));
}

std::optional<ZEVError> ZEVError::underlyingError() const
{
    const QVariant underlying = m_userInfo.value(UnderlyingErrorKey.toString());
    if (underlying.metaType() != QMetaType::fromType<ZEVError>())
        return std::nullopt;
    return underlying.value<ZEVError>();
}
