// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

// Turns texts into patterns and back, and lets a field hold, edit and undo them: what a field remembers, or
// has pasted, may be anything.

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QApplication>

#include <cstdint>

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

ZEVTokenField &field()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(argc, argv);
    static ZEVPatternTokens tokens({ZEVPatternItem::escapeItems()});
    static ZEVTokenField field;
    field.setDelegate(&tokens);
    return field;
}

/// Texts that lie side by side are one text when they are read again.
QVariantList joined(const QVariantList &pattern)
{
    QVariantList result;
    for (const QVariant &object : pattern) {
        const bool isText = object.typeId() == QMetaType::QString;
        if (isText && !result.isEmpty() && result.last().typeId() == QMetaType::QString)
            result.last() = QString(result.last().toString() + object.toString());
        else
            result.append(object);
    }
    return result;
}

void checkRoundTrip(ZEVTokenField &field, const QString &text)
{
    const QVariantList pattern = field.conversionPatternForPatternString(text);
    const QString flat = field.patternStringForConversionPattern(pattern);
    if (field.isLossless()) {
        require(field.conversionPatternForPatternString(flat) == pattern);
        require(pattern == joined(pattern));
    }
}

void checkEditing(ZEVTokenField &field, const QString &text, qsizetype location)
{
    field.setPatternStringValue(text);
    const QVariantList before = field.objectValue();
    field.setSelectedRange({location, 2});
    field.insertToken(QVariant::fromValue(ZEVPatternItem::digits()));
    require(field.selectedRange().location <= field.document()->characterCount());
    field.undo();
    require(joined(field.objectValue()).size() <= joined(before).size() + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    field().setLossless(data[0] & 1);
    checkRoundTrip(field(), text);
    checkEditing(field(), text, data[0] >> 1);
    return 0;
}
