// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QMetaType>
#include <QStringView>

#include <memory>

class ZEVError;

/// What an error carries with it to recover from it: an object, and the titles of the ways that it knows.
class ZEV_EXPORT ZEVErrorRecoveryAttempting {
public:
    // Keys of ZEVError::userInfo().
    static constexpr QStringView RecoveryAttempterKey = u"NSRecoveryAttempter"; ///< a Pointer
    static constexpr QStringView RecoveryOptionsKey = u"NSLocalizedRecoveryOptions"; ///< QStringList

    using Pointer = std::shared_ptr<ZEVErrorRecoveryAttempting>;

    virtual ~ZEVErrorRecoveryAttempting();

    /// Tries the way with this index among the titles; whether the problem is solved.
    virtual bool attemptRecoveryFromError(const ZEVError &error, qsizetype optionIndex) = 0;

    /// Null when the error carries none.
    static Pointer attempterOfError(const ZEVError &error);
};

Q_DECLARE_METATYPE(ZEVErrorRecoveryAttempting::Pointer)
