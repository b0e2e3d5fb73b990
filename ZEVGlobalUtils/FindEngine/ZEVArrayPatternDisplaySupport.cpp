// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPattern_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

constexpr float HighlightAlpha = 0.4F;

QColor tokenColor(const ZEVPatternItem &item)
{
    const QPalette palette = QGuiApplication::palette();
    QColor color = item.isDummy() ? ZEVNamedColors::colorNamed(u"tokenGreenColor", palette)
                                  : palette.color(QPalette::Highlight);
    color.setAlphaF(HighlightAlpha);
    return color;
}

QTextCharFormat tokenFormat(const ZEVPatternItem &item)
{
    QTextCharFormat format;
    format.setBackground(tokenColor(item));
    return format;
}

QString shownTitle(const ZEVPatternItem &item) { return item.tokenTitle().value_or(ZEVPattern::NilText); }

} // namespace

ZEVAttributedString ZEVArrayPatternDisplaySupport::patternDisplayString(const QVariantList &pattern)
{
    ZEVAttributedString display;
    // Kept: a skipped element does not count, so after one the last item keeps its outer space.
    const qsizetype last = pattern.size() - 1;
    qsizetype n = 0;
    for (const QVariant &element : pattern) {
        if (const QString *text = ZEVPattern::literalText(element)) {
            display.append(*text);
        } else if (const ZEVPatternItem *item = ZEVPattern::item(element)) {
            // The outer spaces stay without colour, so that neighbouring tokens look separate.
            display.append(n == 0 ? QString() : u" "_s);
            display.append(u' ' + shownTitle(*item) + u' ', tokenFormat(*item));
            display.append(n == last ? QString() : u" "_s);
        } else {
            continue;
        }
        ++n;
    }
    return display;
}

QString ZEVArrayPatternDisplaySupport::patternRawDisplayString(const QVariantList &pattern)
{
    QString display;
    for (const QVariant &element : pattern) {
        if (const QString *text = ZEVPattern::literalText(element))
            display += *text;
        else if (const ZEVPatternItem *item = ZEVPattern::item(element))
            display += u'[' + shownTitle(*item) + u']';
    }
    return display;
}
