// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <vector>

/// The indices of \a texts in the order that the user's language gives them, numbers by their value; equal
/// texts stay in their order, and empty ones come last either way. Any thread.
std::vector<int> naturalOrder(const QStringList &texts, Qt::SortOrder order = Qt::AscendingOrder);
