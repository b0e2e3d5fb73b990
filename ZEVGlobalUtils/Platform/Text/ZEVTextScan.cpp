// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <algorithm>
#include <limits>

#ifdef Q_PROCESSOR_X86_64
#include <immintrin.h>
#endif

namespace ZEVTextScan {

namespace {

/// As many blocks behind one with a hit are looked at without asking first whether they have any: where hits are
/// common the processor guesses wrong too often.
constexpr int DenseBlocks = 8;

/// One call's way through the text.
struct Search {
    const char16_t *text;
    qsizetype at;
    qsizetype end; ///< where whole blocks can no longer be read
    std::span<Block> blocks;
    size_t count = 0;

    bool goesOn() const { return at < end && count < blocks.size(); }
    void add(quint64 bits)
    {
        blocks[count] = {at, bits};
        count += bits != 0;
    }
};

quint64 lowestBits(qsizetype count) { return count >= BlockSize ? ~quint64(0) : (quint64(1) << count) - 1; }

bool fitsAt(const Anchors &anchors, QStringView text, qsizetype at)
{
    const auto isAt = [text](const Units &units, qsizetype place) {
        return units.count > 0 && place < text.size() && units.contains(text[place].unicode());
    };
    return (isAt(anchors.units[0], at + anchors.offsets[0])
            && isAt(anchors.units[1], at + anchors.offsets[1]))
        || isAt(anchors.instead, at + anchors.insteadOffset);
}

quint64 plainBits(const Anchors &anchors, QStringView text, qsizetype from, qsizetype count)
{
    quint64 bits = 0;
    for (qsizetype i = 0; i < count; ++i)
        bits |= quint64(fitsAt(anchors, text, from + i)) << i;
    return bits;
}

Classes plainClasses(const AsciiRanges &ranges, const char16_t *text, qsizetype count)
{
    Classes classes;
    for (qsizetype i = 0; i < count; ++i) {
        bool isIn = false;
        for (size_t range = 0; range < ranges.first.size(); ++range)
            isIn |= text[i] >= ranges.first.at(range) && text[i] <= ranges.last.at(range);
        classes.inRanges |= quint64(isIn) << i;
        classes.foreign |= quint64(text[i] > 0x7F) << i;
    }
    return classes;
}

#ifdef Q_PROCESSOR_X86_64

using Form = Anchors::Form;

// NOLINTBEGIN(portability-simd-intrinsics): chosen when the process starts, with plain code beside it

constexpr qsizetype Step = 8; // units in a small vector

__m128i load128(const char16_t *text) { return _mm_loadu_si128(reinterpret_cast<const __m128i *>(text)); }

template <Form form>
struct Any128 {
    explicit Any128(const Units &units)
        : bit(_mm_set1_epi16(short(units.bit())))
    {
        for (size_t i = 0; i < std::size(wanted); ++i)
            wanted[i] = _mm_set1_epi16(short(units.units.at(i) | (form == Form::Bit ? units.bit() : 0)));
    }
    __m128i operator()(const char16_t *text) const
    {
        const __m128i units = load128(text);
        if constexpr (form == Form::Bit)
            return _mm_cmpeq_epi16(_mm_or_si128(units, bit), wanted[0]);
        __m128i equal = _mm_cmpeq_epi16(units, wanted[0]);
        for (size_t i = 1; i < std::size(wanted); ++i)
            equal = _mm_or_si128(equal, _mm_cmpeq_epi16(units, wanted[i]));
        return equal;
    }
    __m128i bit;
    __m128i wanted[form == Form::Any ? 4 : 1];
};

/// A bit for each of the first units, eight of which \a answer gives at a time as all bits or none. The last step
/// goes back over what was answered, so that nothing is read behind them: as many as a step must stand before.
template <typename Answer>
quint64 bits128(qsizetype count, Answer answer)
{
    quint64 bits = 0;
    for (qsizetype i = 0; i < count; i += Step) {
        const qsizetype at = std::min(i, count - Step);
        const quint64 eight = unsigned(_mm_movemask_epi8(_mm_packs_epi16(answer(at), _mm_setzero_si128())));
        bits |= at < 0 ? eight >> -at : eight << at;
    }
    return bits;
}

template <Form form>
struct Fit128 {
    explicit Fit128(const Anchors &usedAnchors)
        : anchors(usedAnchors)
    {
    }
    __m128i operator()(const char16_t *text) const
    {
        const __m128i fits =
            _mm_and_si128(first(text + anchors.offsets[0]), second(text + anchors.offsets[1]));
        return anchors.instead.count ? _mm_or_si128(fits, instead(text + anchors.insteadOffset)) : fits;
    }
    const Anchors &anchors;
    Any128<form> first{anchors.units[0]};
    Any128<form> second{anchors.units[1]};
    Any128<form> instead{anchors.instead};
};

template <Form form>
quint64 sse2Bits(const Anchors &anchors, const char16_t *text, qsizetype count)
{
    const Fit128<form> fit(anchors);
    return bits128(count, [&](qsizetype i) { return fit(text + i); });
}

template <int Count>
struct InRanges128 {
    __m128i operator()(const char16_t *text) const
    {
        const __m128i units = load128(text);
        __m128i any = _mm_setzero_si128();
        for (size_t range = 0; range < Count; ++range) {
            const char16_t first = ranges.first.at(range);
            const __m128i above = _mm_sub_epi16(units, _mm_set1_epi16(short(first)));
            const __m128i span = _mm_set1_epi16(short(ranges.last.at(range) - first));
            any = _mm_or_si128(any, _mm_cmpeq_epi16(_mm_subs_epu16(above, span), _mm_setzero_si128()));
        }
        return any;
    }
    const AsciiRanges &ranges;
};

__m128i isAscii128(const char16_t *text)
{
    return _mm_cmpeq_epi16(_mm_subs_epu16(load128(text), _mm_set1_epi16(0x7F)), _mm_setzero_si128());
}

template <int Count>
Classes sse2Classes(const AsciiRanges &ranges, const char16_t *text, qsizetype count)
{
    const InRanges128<Count> isIn{ranges};
    const quint64 ascii = bits128(count, [&](qsizetype i) { return isAscii128(text + i); });
    return {bits128(count, [&](qsizetype i) { return isIn(text + i); }), ~ascii & lowestBits(count)};
}

#define ZEV_AVX2 __attribute__((target("avx2")))

ZEV_AVX2 inline __m256i load256(const char16_t *text)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(text));
}

template <Form form>
struct Any256 {
    ZEV_AVX2 explicit Any256(const Units &units)
        : bit(_mm256_set1_epi16(short(units.bit())))
    {
        for (size_t i = 0; i < std::size(wanted); ++i)
            wanted[i] = _mm256_set1_epi16(short(units.units.at(i) | (form == Form::Bit ? units.bit() : 0)));
    }
    ZEV_AVX2 __m256i operator()(const char16_t *text) const
    {
        const __m256i units = load256(text);
        if constexpr (form == Form::Bit)
            return _mm256_cmpeq_epi16(_mm256_or_si256(units, bit), wanted[0]);
        __m256i equal = _mm256_cmpeq_epi16(units, wanted[0]);
        for (size_t i = 1; i < std::size(wanted); ++i)
            equal = _mm256_or_si256(equal, _mm256_cmpeq_epi16(units, wanted[i]));
        return equal;
    }
    __m256i bit;
    __m256i wanted[form == Form::Any ? 4 : 1];
};

/// Packing works within halves of a vector, so its quarters come out of order.
ZEV_AVX2 inline quint64 bits256(__m256i low, __m256i high)
{
    const __m256i bytes = _mm256_permute4x64_epi64(_mm256_packs_epi16(low, high), 0xD8);
    return unsigned(_mm256_movemask_epi8(bytes));
}

template <Form form>
ZEV_AVX2 Search avx2Search(const Anchors &anchors, Search search)
{
    const Any256<form> first(anchors.units[0]);
    const Any256<form> second(anchors.units[1]);
    const Any256<form> instead(anchors.instead);
    for (int dense = 0; search.goesOn(); search.at += BlockSize) {
        const char16_t *const text = search.text + search.at;
        __m256i fits[4];
        for (qsizetype i = 0; i < 4; ++i) {
            fits[i] = _mm256_and_si256(first(text + anchors.offsets[0] + 16 * i),
                                       second(text + anchors.offsets[1] + 16 * i));
            if (anchors.instead.count)
                fits[i] = _mm256_or_si256(fits[i], instead(text + anchors.insteadOffset + 16 * i));
        }
        const __m256i any =
            _mm256_or_si256(_mm256_or_si256(fits[0], fits[1]), _mm256_or_si256(fits[2], fits[3]));
        if (dense == 0 && _mm256_testz_si256(any, any))
            continue;
        const quint64 bits = bits256(fits[0], fits[1]) | bits256(fits[2], fits[3]) << 32;
        search.add(bits);
        dense = bits ? DenseBlocks : dense - 1;
    }
    return search;
}

template <int Count>
ZEV_AVX2 Classes avx2Classes(const AsciiRanges &ranges, const char16_t *text)
{
    const __m256i zero = _mm256_setzero_si256();
    __m256i isIn[4];
    __m256i isAscii[4];
    for (qsizetype i = 0; i < 4; ++i) {
        const __m256i units = load256(text + 16 * i);
        isAscii[i] = _mm256_cmpeq_epi16(_mm256_subs_epu16(units, _mm256_set1_epi16(0x7F)), zero);
        isIn[i] = zero;
        for (size_t range = 0; range < Count; ++range) {
            const char16_t first = ranges.first.at(range);
            const __m256i above = _mm256_sub_epi16(units, _mm256_set1_epi16(short(first)));
            const __m256i span = _mm256_set1_epi16(short(ranges.last.at(range) - first));
            isIn[i] = _mm256_or_si256(isIn[i], _mm256_cmpeq_epi16(_mm256_subs_epu16(above, span), zero));
        }
    }
    return {bits256(isIn[0], isIn[1]) | bits256(isIn[2], isIn[3]) << 32,
            ~(bits256(isAscii[0], isAscii[1]) | bits256(isAscii[2], isAscii[3]) << 32)};
}

// NOLINTEND(portability-simd-intrinsics)

quint64 smallBits(const Anchors &anchors, const char16_t *text, qsizetype count)
{
    const Form form = anchors.form;
    return (form == Form::One       ? sse2Bits<Form::One>
                : form == Form::Bit ? sse2Bits<Form::Bit>
                                    : sse2Bits<Form::Any>)(anchors, text, count);
}

Search searchWhole(const Anchors &anchors, Search search, Code code)
{
    const Form form = anchors.form;
    if (code == Code::Avx2)
        return (form == Form::One       ? avx2Search<Form::One>
                    : form == Form::Bit ? avx2Search<Form::Bit>
                                        : avx2Search<Form::Any>)(anchors, search);
    for (; search.goesOn(); search.at += BlockSize)
        search.add(smallBits(anchors, search.text + search.at, BlockSize));
    return search;
}

Classes vectorClasses(const AsciiRanges &ranges, const char16_t *text, qsizetype count, Code code)
{
    const int number = ranges.count;
    if (code == Code::Avx2 && count == BlockSize)
        return (number == 1 ? avx2Classes<1> : number == 2 ? avx2Classes<2> : avx2Classes<4>)(ranges, text);
    return (number == 1       ? sse2Classes<1>
                : number == 2 ? sse2Classes<2>
                              : sse2Classes<4>)(ranges, text, count);
}

#else

constexpr qsizetype Step = std::numeric_limits<qsizetype>::max(); // no text has as many units

quint64 smallBits(const Anchors &, const char16_t *, qsizetype) { return 0; }
Search searchWhole(const Anchors &, const Search &search, Code) { return search; }
Classes vectorClasses(const AsciiRanges &, const char16_t *, qsizetype, Code) { return {}; }

#endif

/// Of up to 64 positions, those first \a inText of which have both anchors before the text's end.
quint64 endBits(const Anchors &anchors, QStringView text, qsizetype from, qsizetype count, qsizetype inText)
{
    if (inText <= 0 || from + inText < Step)
        return plainBits(anchors, text, from, count);
    const quint64 bits = smallBits(anchors, text.utf16() + from, inText);
    return count > inText ? bits | plainBits(anchors, text, from + inText, count - inText) << inText : bits;
}

} // namespace

std::span<const Code> supportedCodes()
{
    static constexpr std::array<Code, 3> codes{Code::Plain, Code::Sse2, Code::Avx2};
#ifdef Q_PROCESSOR_X86_64
    static const size_t count = __builtin_cpu_supports("avx2") ? 3 : 2;
#else
    static const size_t count = 1;
#endif
    return std::span(codes).first(count);
}

void Units::add(char16_t unit)
{
    std::fill(units.begin() + count, units.end(), unit);
    ++count;
}

void AsciiRanges::add(char16_t rangeFirst, char16_t rangeLast)
{
    std::fill(first.begin() + count, first.end(), rangeFirst);
    std::fill(last.begin() + count, last.end(), rangeLast);
    ++count;
}

void Anchors::prepare()
{
    const auto areAll = [this](auto fits) { return fits(units[0]) && fits(units[1]) && fits(instead); };
    if (areAll([](const Units &some) { return some.isOneBut(0); }))
        form = Form::One;
    else if (areAll([](const Units &some) { return some.isOneBut(some.bit()); }))
        form = Form::Bit;
    reach = std::max({offsets[0], offsets[1], insteadOffset});
    leastReach = instead.count ? insteadOffset : reach;
}

Progress findBlocks(const Anchors &anchors, QStringView text, qsizetype from, std::span<Block> blocks,
                    Code code)
{
    const qsizetype end = text.size() - anchors.leastReach;
    const qsizetype endOfWhole = text.size() - anchors.reach - BlockSize + 1;
    Search search{text.utf16(), from, std::min(endOfWhole, from + LongestStretch), blocks};
    if (code != Code::Plain && search.goesOn())
        search = searchWhole(anchors, search, code);
    const qsizetype stop = std::min(end, from + LongestStretch);
    for (;
         search.at < stop && search.count < blocks.size() && (code == Code::Plain || search.at >= endOfWhole);
         search.at += BlockSize) {
        const qsizetype count = std::min(BlockSize, end - search.at);
        const qsizetype inText = std::min(BlockSize, text.size() - anchors.reach - search.at);
        search.add(code == Code::Plain ? plainBits(anchors, text, search.at, count)
                                       : endBits(anchors, text, search.at, count, inText));
    }
    return {search.at < end ? search.at : text.size(), search.count};
}

Classes classesAt(const AsciiRanges &ranges, QStringView text, qsizetype from, Code code)
{
    const char16_t *const units = text.utf16() + from;
    const qsizetype count = std::min(BlockSize, text.size() - from);
    if (code == Code::Plain || text.size() < Step)
        return plainClasses(ranges, units, count);
    return vectorClasses(ranges, units, count, code);
}

} // namespace ZEVTextScan
