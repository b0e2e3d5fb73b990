// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

/// Texts in rows and columns as spreadsheets exchange them: a tab behind each cell, a line break behind each
/// row, and quotation marks around what has one of these in it.
namespace CellTable {

QString text(const QList<QStringList> &rows);

/// As many texts in every row as its line has; none for an empty text.
QList<QStringList> rows(const QString &text);

} // namespace CellTable
