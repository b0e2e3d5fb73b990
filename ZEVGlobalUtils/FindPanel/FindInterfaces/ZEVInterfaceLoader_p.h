// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QMetaObject;
class QWidget;

/// Makes views out of Qt Designer files, which may hold the library's own widgets. The texts in them are keys
/// of the library's, and come in the user's language.
namespace ZEVInterfaceLoader {

/// From ":/<name>.ui" of the host, or the library's own file of that name. Null when there is none.
QWidget *loadNamed(const QString &name);

/// Named after the class or, where that has no file, after the nearest base that has one: a host's heir of a
/// controller may bring its own file or use that of its base.
QWidget *loadForClass(const QMetaObject *metaObject);

} // namespace ZEVInterfaceLoader
