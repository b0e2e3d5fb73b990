// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>

#include <algorithm>

#ifdef Q_PROCESSOR_X86_64
#include <immintrin.h>
#endif

namespace ZEVTextScan {

namespace {

constexpr qsizetype BlockSize = 64;

/// The blocks that begin from \a from to before \a end can be read without looking at where the text ends.
struct Stretch {
    const char16_t *text;
    qsizetype from;
    qsizetype end;
};

Block plainBlock(const Anchors &anchors, const Stretch &stretch)
{
    Block block{stretch.from, 0};
    for (; block.begin < stretch.end; block.begin += BlockSize) {
        for (qsizetype i = 0; i < BlockSize; ++i) {
            const char16_t *at = stretch.text + block.begin + i;
            const bool fits = anchors.units[0].contains(at[anchors.offsets[0]])
                && anchors.units[1].contains(at[anchors.offsets[1]]);
            const bool fitsInstead =
                anchors.instead.count > 0 && anchors.instead.contains(at[anchors.insteadOffset]);
            block.bits |= quint64(fits || fitsInstead) << i;
        }
        if (block.bits)
            break;
    }
    return block;
}

Classes plainClasses(const AsciiRanges &ranges, const char16_t *text)
{
    Classes classes;
    for (qsizetype i = 0; i < BlockSize; ++i) {
        bool isIn = false;
        for (size_t range = 0; range < ranges.first.size(); ++range)
            isIn |= text[i] >= ranges.first.at(range) && text[i] <= ranges.last.at(range);
        classes.inRanges |= quint64(isIn) << i;
        classes.foreign |= quint64(text[i] > 0x7F) << i;
    }
    return classes;
}

#ifdef Q_PROCESSOR_X86_64

// NOLINTBEGIN(portability-simd-intrinsics): chosen when the process starts, with plain code beside it

__m128i load128(const char16_t *text) { return _mm_loadu_si128(reinterpret_cast<const __m128i *>(text)); }

template <int Count>
struct Any128 {
    explicit Any128(const Units &units)
    {
        for (size_t i = 0; i < Count; ++i)
            wanted[i] = _mm_set1_epi16(short(units.units.at(i)));
    }
    __m128i operator()(__m128i units) const
    {
        __m128i equal = _mm_cmpeq_epi16(units, wanted[0]);
        for (size_t i = 1; i < Count; ++i)
            equal = _mm_or_si128(equal, _mm_cmpeq_epi16(units, wanted[i]));
        return equal;
    }
    __m128i wanted[Count];
};

/// A bit for each of 64 units, eight of which \a answer gives at a time as all bits or none.
template <typename Answer>
quint64 bits128(Answer answer)
{
    quint64 bits = 0;
    for (int i = 0; i < BlockSize; i += 16)
        bits |= quint64(unsigned(_mm_movemask_epi8(_mm_packs_epi16(answer(i), answer(i + 8))))) << i;
    return bits;
}

template <int Count>
Block sse2Block(const Anchors &anchors, const Stretch &stretch)
{
    const Any128<Count> first(anchors.units[0]);
    const Any128<Count> second(anchors.units[1]);
    const Any128<Count> instead(anchors.instead);
    Block block{stretch.from, 0};
    for (; block.begin < stretch.end; block.begin += BlockSize) {
        const char16_t *a = stretch.text + block.begin + anchors.offsets[0];
        const char16_t *b = stretch.text + block.begin + anchors.offsets[1];
        const char16_t *c = stretch.text + block.begin + anchors.insteadOffset;
        block.bits = bits128([&](int i) {
            const __m128i fits = _mm_and_si128(first(load128(a + i)), second(load128(b + i)));
            return anchors.instead.count ? _mm_or_si128(fits, instead(load128(c + i))) : fits;
        });
        if (block.bits)
            break;
    }
    return block;
}

template <int Count>
Classes sse2Classes(const AsciiRanges &ranges, const char16_t *text)
{
    const __m128i zero = _mm_setzero_si128();
    const auto isIn = [&](int i) {
        const __m128i units = load128(text + i);
        __m128i any = zero;
        for (size_t range = 0; range < Count; ++range) {
            const char16_t first = ranges.first.at(range);
            const __m128i above = _mm_sub_epi16(units, _mm_set1_epi16(short(first)));
            const __m128i span = _mm_set1_epi16(short(ranges.last.at(range) - first));
            any = _mm_or_si128(any, _mm_cmpeq_epi16(_mm_subs_epu16(above, span), zero));
        }
        return any;
    };
    const auto isAscii = [&](int i) {
        return _mm_cmpeq_epi16(_mm_subs_epu16(load128(text + i), _mm_set1_epi16(0x7F)), zero);
    };
    return {bits128(isIn), ~bits128(isAscii)};
}

#define ZEV_AVX2 __attribute__((target("avx2")))

ZEV_AVX2 inline __m256i load256(const char16_t *text)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(text));
}

template <int Count>
struct Any256 {
    ZEV_AVX2 explicit Any256(const Units &units)
    {
        for (size_t i = 0; i < Count; ++i)
            wanted[i] = _mm256_set1_epi16(short(units.units.at(i)));
    }
    ZEV_AVX2 __m256i operator()(__m256i units) const
    {
        __m256i equal = _mm256_cmpeq_epi16(units, wanted[0]);
        for (size_t i = 1; i < Count; ++i)
            equal = _mm256_or_si256(equal, _mm256_cmpeq_epi16(units, wanted[i]));
        return equal;
    }
    __m256i wanted[Count];
};

/// Packing works within halves of a vector, so its quarters come out of order.
ZEV_AVX2 inline quint64 bits256(__m256i low, __m256i high)
{
    const __m256i bytes = _mm256_permute4x64_epi64(_mm256_packs_epi16(low, high), 0xD8);
    return unsigned(_mm256_movemask_epi8(bytes));
}

template <int Count>
ZEV_AVX2 Block avx2Block(const Anchors &anchors, const Stretch &stretch)
{
    const Any256<Count> first(anchors.units[0]);
    const Any256<Count> second(anchors.units[1]);
    const Any256<Count> instead(anchors.instead);
    Block block{stretch.from, 0};
    for (; block.begin < stretch.end; block.begin += BlockSize) {
        const char16_t *a = stretch.text + block.begin + anchors.offsets[0];
        const char16_t *b = stretch.text + block.begin + anchors.offsets[1];
        const char16_t *c = stretch.text + block.begin + anchors.insteadOffset;
        __m256i fits[4];
        for (qsizetype i = 0; i < 4; ++i) {
            fits[i] = _mm256_and_si256(first(load256(a + 16 * i)), second(load256(b + 16 * i)));
            if (anchors.instead.count)
                fits[i] = _mm256_or_si256(fits[i], instead(load256(c + 16 * i)));
        }
        const __m256i any =
            _mm256_or_si256(_mm256_or_si256(fits[0], fits[1]), _mm256_or_si256(fits[2], fits[3]));
        if (!_mm256_testz_si256(any, any)) {
            block.bits = bits256(fits[0], fits[1]) | bits256(fits[2], fits[3]) << 32;
            break;
        }
    }
    return block;
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

Block blockOf(const Anchors &anchors, const Stretch &stretch, Code code)
{
    const int count = std::max({anchors.units[0].count, anchors.units[1].count, anchors.instead.count});
    if (code == Code::Avx2)
        return (count == 1 ? avx2Block<1> : count == 2 ? avx2Block<2> : avx2Block<4>)(anchors, stretch);
    if (code == Code::Sse2)
        return (count == 1 ? sse2Block<1> : count == 2 ? sse2Block<2> : sse2Block<4>)(anchors, stretch);
    return plainBlock(anchors, stretch);
}

Classes classesOf(const AsciiRanges &ranges, const char16_t *text, Code code)
{
    const int count = ranges.count;
    if (code == Code::Avx2)
        return (count == 1 ? avx2Classes<1> : count == 2 ? avx2Classes<2> : avx2Classes<4>)(ranges, text);
    if (code == Code::Sse2)
        return (count == 1 ? sse2Classes<1> : count == 2 ? sse2Classes<2> : sse2Classes<4>)(ranges, text);
    return plainClasses(ranges, text);
}

#else

Block blockOf(const Anchors &anchors, const Stretch &stretch, Code) { return plainBlock(anchors, stretch); }

Classes classesOf(const AsciiRanges &ranges, const char16_t *text, Code)
{
    return plainClasses(ranges, text);
}

#endif

quint64 lowestBits(qsizetype count) { return count >= BlockSize ? ~quint64(0) : (quint64(1) << count) - 1; }

/// The last units of a text, with zeros behind them for a block and both anchors. Clearing all of it first takes
/// longer than searching a title.
struct Tail {
    Tail(QStringView text, qsizetype from) // NOLINT(cppcoreguidelines-pro-type-member-init)
    {
        const auto end = std::copy(text.utf16() + from, text.utf16() + text.size(), units.begin());
        std::fill(end, units.end(), u'\0');
    }
    std::array<char16_t, 3 * BlockSize> units;
};

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

Block nextBlock(const Anchors &anchors, QStringView text, qsizetype from, Code code)
{
    const qsizetype reach = std::max({anchors.offsets[0], anchors.offsets[1], anchors.insteadOffset});
    const qsizetype positions = text.size() - (anchors.instead.count ? anchors.insteadOffset : reach);
    const qsizetype endOfWhole = text.size() - reach - BlockSize + 1;
    Block block{from, 0};
    if (from < endOfWhole)
        block = blockOf(anchors, {text.utf16(), from, endOfWhole}, code);
    if (block.bits)
        return block;
    if (block.begin >= positions)
        return {text.size(), 0};
    const Tail tail(text, block.begin);
    const qsizetype rest = positions - block.begin;
    const Block last = blockOf(anchors, {tail.units.data(), 0, rest}, code);
    const quint64 bits = last.begin < rest ? last.bits & lowestBits(rest - last.begin) : 0;
    return {bits ? block.begin + last.begin : text.size(), bits};
}

Classes classesAt(const AsciiRanges &ranges, QStringView text, qsizetype from, Code code)
{
    if (text.size() - from >= BlockSize)
        return classesOf(ranges, text.utf16() + from, code);
    const Classes classes = classesOf(ranges, Tail(text, from).units.data(), code);
    const quint64 valid = lowestBits(text.size() - from);
    return {classes.inRanges & valid, classes.foreign & valid};
}

} // namespace ZEVTextScan
