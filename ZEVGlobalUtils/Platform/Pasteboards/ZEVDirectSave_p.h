// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// The X Direct Save protocol, as far as the windowing system takes part: the receiver of a drop names the
/// file, and the source of the drag writes it there. Main thread only.
namespace ZEVDirectSave {

inline constexpr QStringView MimeType = u"XdndDirectSave0";

bool isAvailable();

/// Tells receivers the name of the promised file. Only once the drag has begun is there a window to tell it
/// on.
void offer(const QString &fileName);

/// The name that the source of the drag in progress has told; empty without one.
QString offeredName();

/// Tells that source where its file goes. It looks there when it is asked for the data.
void setAddress(const QByteArray &address);

/// What the receiver made of it, the address of the file as it stands in the protocol; taken away with it.
QByteArray takeAddress();

} // namespace ZEVDirectSave
