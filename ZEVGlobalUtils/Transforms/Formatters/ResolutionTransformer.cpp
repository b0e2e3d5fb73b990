// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ResolutionTransformer.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

#include <QSizeF>

using namespace Qt::StringLiterals;

namespace {

double dimension(QStringView text, const std::optional<ZEVRange> &range)
{
    return range ? text.sliced(range->location, range->length).toDouble() : 0; // 0 for what is no number
}

QSizeF sizeFromString(QStringView text)
{
    static const ZEVRegularExpression form =
        ZEVRegularExpression::compile(u"^\\s*\\{?\\s*([-+.0-9eE]+)\\s*,\\s*([-+.0-9eE]+)\\s*\\}?\\s*$"_s)
            .value();
    ZEVRegularExpressionMatcher matcher(form);
    matcher.setText(text);
    if (!matcher.findNext())
        return {0, 0};
    return {dimension(text, matcher.rangeOfGroup(1)), dimension(text, matcher.rangeOfGroup(2))};
}

QSizeF sizeValue(const QVariant &value)
{
    const bool isSize = value.typeId() == QMetaType::QSize || value.typeId() == QMetaType::QSizeF;
    return isSize ? value.toSizeF() : sizeFromString(value.toString());
}

} // namespace

QMetaType ResolutionTransformer::transformedValueClass() const { return QMetaType::fromType<QString>(); }

QVariant ResolutionTransformer::transformedValue(const QVariant &value) const
{
    if (ZEVVariantValues::isNil(value))
        return {};
    const QSizeF size = sizeValue(value);
    return QString(QString::number(ZEVVariantValues::integerValue(size.width())) + u"\u2006\u00D7\u2006"
                   + QString::number(ZEVVariantValues::integerValue(size.height())) + u" px");
}
