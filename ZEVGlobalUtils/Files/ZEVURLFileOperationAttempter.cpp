// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Files/ZEVURLFileOperationAttempter.h>

#include <ZEVGlobalUtils/Files/ZEVNumberedNames_p.h>

bool ZEVURLFileOperationAttempter::attemptFWFERecoveryWithError(const QUrl &url, QUrl *outURL,
                                                                const Operation &operation, ZEVError *error)
{
    constexpr ZEVNumberedNames::Numbers Numbers{2, 999, ZEVFileName::Dot::BeforeAnyExtension};
    const auto attempt = [&](const QUrl &candidate, ZEVError *failure) {
        return operation && operation(url, candidate, failure);
    };
    return ZEVNumberedNames::attempt(url, Numbers, attempt, outURL, error);
}
