// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QWidget>

/// A translucent panel with round corners that lies over artwork.
class ZEV_EXPORT ZEVVisualEffectView : public QWidget {
    Q_OBJECT

public:
    /// \a cornerRadius in points.
    explicit ZEVVisualEffectView(qreal cornerRadius, QWidget *parent = nullptr);

    qreal cornerRadius() const { return m_cornerRadius; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qreal m_cornerRadius;
};
