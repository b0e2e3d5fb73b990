// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QString>
#include <QVariantMap>

#include <optional>

/// Why an operation failed: a domain, a code within it, and what else is known of the failure.
class ZEV_EXPORT ZEVError {
public:
    static constexpr QStringView CocoaErrorDomain = u"NSCocoaErrorDomain";
    static constexpr QStringView POSIXErrorDomain = u"NSPOSIXErrorDomain";

    /// A code of CocoaErrorDomain: a text that cannot be read as what it should be.
    static constexpr qint64 FormattingError = 2048;

    // Keys of userInfo().
    static constexpr QStringView LocalizedDescriptionKey = u"NSLocalizedDescription";
    static constexpr QStringView UnderlyingErrorKey = u"NSUnderlyingError"; ///< a ZEVError

    ZEVError() = default;
    ZEVError(QStringView domain, qint64 code, const QVariantMap &userInfo = {});

    const QString &domain() const { return m_domain; }
    qint64 code() const { return m_code; }
    const QVariantMap &userInfo() const { return m_userInfo; }

    /// What to tell the user: the text under LocalizedDescriptionKey or, where there is none, the domain and
    /// the code.
    QString localizedDescription() const;
    std::optional<ZEVError> underlyingError() const;

    friend bool operator==(const ZEVError &, const ZEVError &) = default;

private:
    QString m_domain;
    qint64 m_code = 0;
    QVariantMap m_userInfo;
};

Q_DECLARE_METATYPE(ZEVError)
