// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVDirectSave_p.h>

bool ZEVDirectSave::isAvailable() { return false; }
void ZEVDirectSave::offer(const QString &) { }
QString ZEVDirectSave::offeredName() { return {}; }
void ZEVDirectSave::setAddress(const QByteArray &) { }
QByteArray ZEVDirectSave::takeAddress() { return {}; }
