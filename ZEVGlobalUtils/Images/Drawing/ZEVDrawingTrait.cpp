// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Drawing/ZEVDrawingTrait.h>

namespace {

QColor white(float level, float alpha) { return QColor::fromRgbF(level, level, level, alpha); }

ZEVDrawingTrait engraved()
{
    ZEVDrawingTrait trait;
    trait.setGradientStartColor(white(0.39F, 1));
    trait.setGradientEndColor(white(0.53F, 1));
    trait.innerGlowColor = white(0, 0.42F);
    trait.innerShadowColor = white(0, 0.54F);
    trait.dropShadowColor = white(1, 0.5F);
    trait.innerGlowRadius = 4;
    trait.innerShadowOffset = {0, 1};
    trait.dropShadowOffset = {0, 1};
    return trait;
}

ZEVDrawingTrait flatWhite()
{
    ZEVDrawingTrait trait;
    trait.color = Qt::white;
    return trait;
}

ZEVDrawingTrait highlighted()
{
    ZEVDrawingTrait trait = flatWhite();
    trait.dropShadowColor = white(0, 0.15F);
    trait.dropShadowOffset = {0, 1};
    return trait;
}

ZEVDrawingTrait blue()
{
    ZEVDrawingTrait trait;
    trait.setGradientStartColor(QColor::fromRgbF(0.125F, 0.347F, 0.863F));
    trait.setGradientEndColor(QColor::fromRgbF(0.176F, 0.588F, 0.93F));
    trait.dropShadowColor = white(1, 0.4F);
    trait.dropShadowOffset = {0, 1};
    return trait;
}

} // namespace

ZEVDrawingTrait::ZEVDrawingTrait(const ZEVDrawingTrait &other) { *this = other; }

ZEVDrawingTrait &ZEVDrawingTrait::operator=(const ZEVDrawingTrait &other)
{
    color = other.color;
    dropShadowColor = other.dropShadowColor;
    dropShadowOffset = other.dropShadowOffset;
    clipsShadow = other.clipsShadow;
    innerShadowColor = other.innerShadowColor;
    innerShadowOffset = other.innerShadowOffset;
    innerGlowColor = other.innerGlowColor;
    innerGlowRadius = other.innerGlowRadius;
    m_gradientStartColor = other.m_gradientStartColor;
    m_gradientEndColor = other.m_gradientEndColor;
    updateGradient();
    return *this;
}

const ZEVDrawingTrait &ZEVDrawingTrait::defaultTrait()
{
    static const ZEVDrawingTrait trait = engraved();
    return trait;
}

const ZEVDrawingTrait &ZEVDrawingTrait::defaultHighlightedTrait()
{
    static const ZEVDrawingTrait trait = highlighted();
    return trait;
}

const ZEVDrawingTrait &ZEVDrawingTrait::defaultWhiteTrait()
{
    static const ZEVDrawingTrait trait = flatWhite();
    return trait;
}

const ZEVDrawingTrait &ZEVDrawingTrait::blueHighlightedTrait()
{
    static const ZEVDrawingTrait trait = blue();
    return trait;
}

void ZEVDrawingTrait::setGradientStartColor(const QColor &startColor)
{
    m_gradientStartColor = startColor;
    updateGradient();
}

void ZEVDrawingTrait::setGradientEndColor(const QColor &endColor)
{
    m_gradientEndColor = endColor;
    updateGradient();
}

void ZEVDrawingTrait::updateGradient()
{
    m_gradient.clear();
    if (m_gradientStartColor.isValid() && m_gradientEndColor.isValid())
        m_gradient = {{0, m_gradientStartColor}, {1, m_gradientEndColor}};
}
