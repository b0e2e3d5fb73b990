// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>

#include <unicode/casemap.h>
#include <unicode/stringoptions.h>

#include <algorithm>
#include <limits>

using ZEVCaseMapping::Buffer;
using ZEVCaseMapping::Form;

namespace {

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < 0x80; });
}

char16_t asciiLower(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? char16_t(unit | 0x20) : unit; }
char16_t asciiUpper(char16_t unit) { return unit >= u'a' && unit <= u'z' ? char16_t(unit & ~0x20) : unit; }

/// What title-casing adjusts to: of ASCII, the letters, digits and symbols.
bool mayLeadWord(char16_t unit)
{
    return QChar::isLetterOrNumber(unit) || QStringView(u"$+<=>^`|~").contains(QChar(unit));
}

/// ICU's results for ASCII text in no special language, without its set-up for each word.
void appendAscii(Buffer &result, QStringView text, Form form)
{
    const qsizetype begin = result.size();
    result.resize(begin + text.size());
    char16_t *const target = result.data() + begin;
    bool led = form != Form::Capitalized;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const bool leads = !led && mayLeadWord(unit);
        target[i] = leads || form == Form::Upper ? asciiUpper(unit) : led ? asciiLower(unit) : unit;
        led = led || leads;
    }
}

int32_t mapped(QStringView text, Form form, const char *locale, char16_t *target, int32_t capacity,
               UErrorCode &code)
{
    const auto length = static_cast<int32_t>(text.size());
    switch (form) {
    case Form::Lower:
        return icu::CaseMap::toLower(locale, 0, text.utf16(), length, target, capacity, nullptr, code);
    case Form::Upper:
        return icu::CaseMap::toUpper(locale, 0, text.utf16(), length, target, capacity, nullptr, code);
    case Form::Folded:
        return icu::CaseMap::fold(0, text.utf16(), length, target, capacity, nullptr, code);
    case Form::Capitalized:
        break;
    }
    return icu::CaseMap::toTitle(locale, U_TITLECASE_WHOLE_STRING, nullptr, text.utf16(), length, target,
                                 capacity, nullptr, code);
}

/// Maps straight into the result, again with the room that is needed where the first guess was too small.
void appendMapped(Buffer &result, QStringView text, Form form, const char *locale)
{
    const qsizetype begin = result.size();
    int32_t capacity = static_cast<int32_t>(text.size()) + 8;
    for (;;) {
        result.resize(begin + capacity);
        UErrorCode code = U_ZERO_ERROR;
        const int32_t length = mapped(text, form, locale, result.data() + begin, capacity, code);
        if (code != U_BUFFER_OVERFLOW_ERROR) {
            result.resize(begin + (U_SUCCESS(code) ? length : 0));
            if (U_FAILURE(code))
                ZEVCaseMapping::append(result, text); // nothing is lost
            return;
        }
        capacity = length;
    }
}

} // namespace

void ZEVCaseMapping::append(Buffer &result, QStringView text, Form form, const QByteArray &localeIdentifier)
{
    if (localeIdentifier.isEmpty() && isAscii(text))
        appendAscii(result, text, form);
    else if (text.size() < std::numeric_limits<int32_t>::max() / 4) // ICU counts in 32 bits
        appendMapped(result, text, form, localeIdentifier.constData());
    else
        append(result, text);
}

QString ZEVCaseMapping::lowerCased(QStringView text, const QByteArray &localeIdentifier)
{
    Buffer result;
    append(result, text, Form::Lower, localeIdentifier);
    return view(result).toString();
}

QString ZEVCaseMapping::upperCased(QStringView text, const QByteArray &localeIdentifier)
{
    Buffer result;
    append(result, text, Form::Upper, localeIdentifier);
    return view(result).toString();
}

QString ZEVCaseMapping::caseFolded(QStringView text)
{
    Buffer result;
    append(result, text, Form::Folded);
    return view(result).toString();
}
