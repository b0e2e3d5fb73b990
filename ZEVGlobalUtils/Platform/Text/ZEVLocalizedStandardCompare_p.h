// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

/// How file managers order names, in the user's language, with numbers by their value ("9" before "10"):
/// less than 0, 0 or more than 0. The Unicode Collation Algorithm (Unicode Technical Standard #10). Any
/// thread.
int ZEVLocalizedStandardCompare(QStringView one, QStringView other);
