// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// The artwork well in its states, and the views that dress artwork.
QWidget *artworkWellPage(QWidget *parent);
QWidget *artworkViewsPage(QWidget *parent);
