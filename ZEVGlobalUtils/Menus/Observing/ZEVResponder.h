// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QVariant>

class QObject;

/// Actions that travel up from an object until somebody knows them.
namespace ZEVResponder {

/// Asks \a responder, then each of its parents (a widget's parents go on beyond its window), for a slot or
/// invokable method named \a selector, and calls the first one that takes \a object or nothing. False when
/// nobody has one. Null begins no chain.
ZEV_EXPORT bool tryToPerform(QObject *responder, const QByteArray &selector, const QVariant &object = {});

} // namespace ZEVResponder
