// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor laidOver(const QColor &base, const QColor &color, float alpha)
{
    const auto mixed = [alpha](float below, float above) { return below + (above - below) * alpha; };
    return QColor::fromRgbF(mixed(base.redF(), color.redF()), mixed(base.greenF(), color.greenF()),
                            mixed(base.blueF(), color.blueF()));
}

} // namespace

ZEVMatchColors::Pair ZEVMatchColors::forMatchOver(const QColor &base, bool isCurrent)
{
    const QColor background = isCurrent ? QColor(255, 150, 20) : laidOver(base, QColor(255, 215, 0), 0.5F);
    const bool blackStandsOut = contrast(background, Qt::black) >= contrast(background, Qt::white);
    return {background, blackStandsOut ? Qt::black : Qt::white};
}

QColor ZEVMatchColors::dimmedText(const QPalette &palette)
{
    return laidOver(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.6F);
}

QColor ZEVMatchColors::errorText(const QPalette &palette)
{
    return ZEVAppearanceHelpers::isDark(palette) ? QColor(255, 138, 128) : QColor(176, 0, 32);
}

double ZEVMatchColors::contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}
