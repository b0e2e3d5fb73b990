// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QString>

/// The first byte says how much of the input is the expression; the rest is the text. Matches lie within the
/// text, and no expression runs on.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    ZEVRegularExpression::setTimeLimit(std::chrono::milliseconds(20));
    const QString input = QString::fromUtf8(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const QString pattern = input.first(std::min<qsizetype>(data[0], input.size()));
    const QString text = input.sliced(pattern.size());
    if (const auto expression = ZEVRegularExpression::compile(pattern)) {
        const auto matches = expression->matchesInString(text);
        for (const ZEVRange &range : matches.ranges) {
            if (range.location < 0 || range.length < 0 || range.end() > text.size())
                __builtin_trap();
        }
    }
    const auto literal = ZEVRegularExpression::compile(ZEVRegularExpression::escapedPatternForString(text));
    if (literal && !text.isEmpty() && literal->numberOfMatchesInString(text) != 1)
        __builtin_trap();
    return 0;
}
