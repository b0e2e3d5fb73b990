// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Desktop/ZEVFontWeightHelpers.h>

#include <QFontDatabase>

namespace {

QFont systemFontLike(const QFont &font, QFont::Weight weight)
{
    QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // A font has its size in points or in pixels, and -1 in the other.
    if (font.pointSizeF() > 0)
        system.setPointSizeF(font.pointSizeF());
    else
        system.setPixelSize(font.pixelSize());
    system.setWeight(weight);
    return system;
}

} // namespace

QFont ZEVFontWeightHelpers::mediumVariant(const QFont &font) { return systemFontLike(font, QFont::Medium); }

QFont ZEVFontWeightHelpers::semiBoldVariant(const QFont &font)
{
    return systemFontLike(font, QFont::DemiBold);
}

QFont ZEVFontWeightHelpers::heavyVariant(const QFont &font) { return systemFontLike(font, QFont::ExtraBold); }
