// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>

#include <QColor>
#include <QHash>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

struct Variants {
    QColor light;
    QColor dark;
};

QColor white(float level, float alpha = 1.0F) { return QColor::fromRgbF(level, level, level, alpha); }

const QHash<QStringView, Variants> &table()
{
    static const QColor green = QColor::fromRgbF(0.196F, 0.849F, 0.664F);
    static const QHash<QStringView, Variants> colors = {
        {u"tokenDisabledColor", {white(0.0F, 0.10F), white(1.0F, 0.16F)}},
        {u"tokenGreenColor", {green, green}},
        {u"filterBackgroundColor", {white(0.0F, 0.05F), white(1.0F, 0.10F)}},
        {u"filterBorderColor", {white(0.0F, 0.17F), white(1.0F, 0.17F)}},
        {u"filterBorderColorSelected", {white(0.0F, 0.35F), white(1.0F, 0.40F)}},
        {u"artBarColor", {white(0.96F, 0.85F), white(0.16F, 0.85F)}},
        {u"reversingBlackColor", {white(0.0F), white(1.0F)}},
    };
    return colors;
}

float blended(float from, float level) { return from * (1 - level) + level; }

} // namespace

QColor ZEVNamedColors::colorNamed(QStringView name, const QPalette &palette)
{
    const auto found = table().constFind(name);
    if (found == table().cend())
        return {};
    return ZEVAppearanceHelpers::isDark(palette) ? found->dark : found->light;
}

QColor ZEVNamedColors::highlightWithLevel(const QColor &color, float level)
{
    return QColor::fromRgbF(blended(color.redF(), level), blended(color.greenF(), level),
                            blended(color.blueF(), level), blended(color.alphaF(), level));
}
