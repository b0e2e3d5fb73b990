// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Token fields in all their states, the tokens one by one, and the filter field.
QWidget *tokenFieldsPage(QWidget *parent);
