// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QAbstractItemModel;
class QTableView;

/// A table for a preview: rows of one line, marked where the model wants it, that Tab leaves.
QTableView *makePreviewTable(QAbstractItemModel *model);
