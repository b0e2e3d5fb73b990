// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorRecoveryAttempting.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

ZEVErrorRecoveryAttempting::~ZEVErrorRecoveryAttempting() = default;

ZEVErrorRecoveryAttempting::Pointer ZEVErrorRecoveryAttempting::attempterOfError(const ZEVError &error)
{
    return error.userInfo().value(RecoveryAttempterKey.toString()).value<Pointer>();
}
