// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

/// What a screen reader is told of an artwork well: a picture.
class ZEVDragImageViewAccessible : public QAccessibleWidget {
public:
    /// Lets every well be described by this class, once a process.
    static void install();

    explicit ZEVDragImageViewAccessible(QWidget *view);

    /// The parts that the well is made of say nothing more.
    int childCount() const override { return 0; }
};
