// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>

#include <QUrl>

namespace ZEVConflictDetails {

/// Two items as an alert shows them: each with its picture, size and date and what \a describer says of it.
QList<ZEVAlert::Item> items(const QUrl &existing, const QUrl &incoming,
                            const std::function<QString(const QUrl &)> &describer);

} // namespace ZEVConflictDetails
