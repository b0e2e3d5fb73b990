// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QBrush>
#include <QColor>
#include <QSizeF>

/// How a stencil is painted (ZEVImageDrawingTraits): with a colour or a vertical gradient, and with shadows
/// and a glow. An invalid colour is none. Offsets and radii are in points, a positive height of an offset
/// points down the screen.
class ZEV_EXPORT ZEVDrawingTrait {
public:
    ZEVDrawingTrait() = default;
    /// Kept: the copy makes its gradient from the two colours, so one that was set without them is left
    /// behind.
    ZEVDrawingTrait(const ZEVDrawingTrait &other);
    ZEVDrawingTrait &operator=(const ZEVDrawingTrait &other);
    ~ZEVDrawingTrait() = default;

    /// Made once and shared by all; copy one to change it. Any thread.
    static const ZEVDrawingTrait &defaultTrait(); ///< engraved: grey gradient, dark inside, light below
    static const ZEVDrawingTrait &defaultHighlightedTrait(); ///< white with a faint shadow
    static const ZEVDrawingTrait &defaultWhiteTrait(); ///< flat white
    static const ZEVDrawingTrait &blueHighlightedTrait(); ///< blue gradient, light below

    QColor color = QColor(85, 85, 85); ///< without a gradient; a third of white
    QColor dropShadowColor = Qt::white; ///< black when there is none
    QSizeF dropShadowOffset = {0, 0}; ///< (0, 0): no drop shadow
    bool clipsShadow = false; ///< the drop shadow only shows where the shape itself is not
    QColor innerShadowColor = Qt::black;
    QSizeF innerShadowOffset = {0, 0}; ///< (0, 0): no inner shadow
    QColor innerGlowColor; ///< black when there is none
    qreal innerGlowRadius = 0; ///< of the blur; 0 or less: no glow

    /// Both make the gradient, from top to bottom; without one of them there is none.
    const QColor &gradientStartColor() const { return m_gradientStartColor; }
    void setGradientStartColor(const QColor &color);
    const QColor &gradientEndColor() const { return m_gradientEndColor; }
    void setGradientEndColor(const QColor &color);

    /// Empty for none, else from 0 at the top to 1 at the bottom.
    const QGradientStops &gradient() const { return m_gradient; }
    void setGradient(const QGradientStops &gradient) { m_gradient = gradient; }
    bool needsGradient() const { return !m_gradient.isEmpty(); }

    friend bool operator==(const ZEVDrawingTrait &, const ZEVDrawingTrait &) = default;

private:
    void updateGradient();

    QColor m_gradientStartColor;
    QColor m_gradientEndColor;
    QGradientStops m_gradient;
};
