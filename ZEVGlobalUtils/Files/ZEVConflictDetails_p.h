// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class QWidget;

namespace ZEVConflictDetails {

/// Two items beside each other, each with its picture, size and date and what \a describer says of it.
QWidget *view(const QUrl &existing, const QUrl &incoming,
              const std::function<QString(const QUrl &)> &describer, QWidget *parent);

} // namespace ZEVConflictDetails
