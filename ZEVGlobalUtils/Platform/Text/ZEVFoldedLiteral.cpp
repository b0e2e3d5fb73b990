// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Text/ZEVFoldedLiteral_p.h>

#include <unicode/uniset.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace {

/// Case folding read backwards.
struct Foldings {
    Foldings();
    static const Foldings &shared()
    {
        static const Foldings foldings;
        return foldings;
    }

    std::unordered_map<char32_t, std::vector<char32_t>> sources; ///< what folds to just this character
    std::vector<std::pair<char32_t, std::u16string>> expansions; ///< what folds to several
};

/// Only cased characters fold. (That they "change when casefolded" is no such test: it is asked of their
/// decompositions, so that it misses U+01F0 and its like.)
Foldings::Foldings()
{
    UErrorCode code = U_ZERO_ERROR;
    icu::UnicodeSet cased;
    cased.applyIntPropertyValue(UCHAR_CASED, 1, code);
    for (int32_t range = 0; range < cased.getRangeCount(); ++range) {
        for (UChar32 character = cased.getRangeStart(range); character <= cased.getRangeEnd(range);
             ++character) {
            icu::UnicodeString folded(character);
            folded.foldCase();
            if (folded.countChar32() > 1)
                expansions.emplace_back(character,
                                        std::u16string(folded.getBuffer(), size_t(folded.length())));
            else if (folded.char32At(0) != character)
                sources[char32_t(folded.char32At(0))].push_back(char32_t(character));
        }
    }
}

/// How common a unit is in texts of the Latin script, roughly: only the speed depends on it.
qsizetype commonness(const ZEVTextScan::Units &units)
{
    static constexpr QStringView fromRareToCommon = u"qzjxkwvybgfpmcduhlrsntioae ";
    qsizetype most = 0;
    for (const char16_t unit : units.units)
        most = std::max(most, fromRareToCommon.indexOf(QChar(unit).toLower()) + 1);
    return most + (units.count > 2 ? fromRareToCommon.size() : 0); // dearer to look for
}

} // namespace

std::optional<ZEVFoldedLiteral> ZEVFoldedLiteral::make(const QString &literal, bool caseInsensitive,
                                                       Extent extent)
{
    ZEVFoldedLiteral made;
    if (!literal.isValidUtf16())
        return std::nullopt;
    made.m_text = literal.toStdU16String();
    if (!caseInsensitive) {
        for (const char16_t unit : made.m_text)
            made.m_units.emplace_back().add(unit);
        made.makeWords();
        return made;
    }
    if (!made.addUnits(literal))
        return std::nullopt;
    made.addExpansions();
    if (extent == Extent::Beginning)
        made.shorten();
    if (made.m_units.empty() || made.expansionsAtFirstOffset() > 4)
        return std::nullopt;
    made.makeWords();
    return made;
}

bool ZEVFoldedLiteral::addUnits(const QString &literal)
{
    icu::UnicodeString folded(literal.utf16(), int32_t(literal.size()));
    folded.foldCase();
    m_text.assign(folded.getBuffer(), size_t(folded.length()));
    for (int32_t i = 0; i < folded.length(); i = folded.moveIndex32(i, 1)) {
        if (!addVariants(char32_t(folded.char32At(i))))
            return false;
    }
    return true;
}

bool ZEVFoldedLiteral::addVariants(char32_t character)
{
    const auto &sources = Foldings::shared().sources;
    const auto found = sources.find(character);
    if (found == sources.end()) {
        for (const char16_t unit : QChar::fromUcs4(character))
            m_units.emplace_back().add(unit);
        return true;
    }
    const auto isLong = [](char32_t variant) { return QChar::requiresSurrogates(variant); };
    const std::vector<char32_t> &variants = found->second;
    if (isLong(character) || std::any_of(variants.begin(), variants.end(), isLong) || variants.size() > 3)
        return false;
    ZEVTextScan::Units &units = m_units.emplace_back();
    units.add(char16_t(character));
    for (const char32_t variant : variants)
        units.add(char16_t(variant));
    return true;
}

void ZEVFoldedLiteral::addExpansions()
{
    for (size_t offset = 0; offset < m_text.size(); ++offset) {
        for (const auto &[character, folded] : Foldings::shared().expansions) {
            if (m_text.compare(offset, folded.size(), folded) == 0)
                m_expansions.push_back({offset, char16_t(character), folded.size()});
        }
    }
}

void ZEVFoldedLiteral::shorten()
{
    const auto mayBeginAt = [this](size_t offset) {
        return std::any_of(Foldings::shared().expansions.begin(), Foldings::shared().expansions.end(),
                           [&](const auto &expansion) {
                               const size_t shared =
                                   std::min(expansion.second.size(), m_text.size() - offset);
                               return m_text.compare(offset, shared, expansion.second, 0, shared) == 0;
                           });
    };
    size_t length = 0;
    while (length < m_text.size() && !mayBeginAt(length))
        ++length;
    m_units.resize(length);
    m_expansions.clear();
}

size_t ZEVFoldedLiteral::expansionsAtFirstOffset() const
{
    return size_t(std::count_if(m_expansions.begin(), m_expansions.end(), [this](const Expansion &expansion) {
        return expansion.offset == m_expansions.front().offset;
    }));
}

const ZEVFoldedLiteral::Expansion *ZEVFoldedLiteral::expansionAt(size_t offset, char16_t unit) const
{
    const auto isIt = [=](const Expansion &expansion) {
        return expansion.offset == offset && expansion.unit == unit;
    };
    const auto found = std::find_if(m_expansions.begin(), m_expansions.end(), isIt);
    return found == m_expansions.end() ? nullptr : &*found;
}

qsizetype ZEVFoldedLiteral::endOfRareMatch(QStringView text, qsizetype start) const
{
    const char16_t *const units = text.utf16();
    qsizetype at = start;
    for (size_t offset = 0; offset < m_units.size(); ++at) {
        if (at >= text.size())
            return -1;
        if (m_units[offset].contains(units[at])) {
            ++offset;
            continue;
        }
        const Expansion *expansion = expansionAt(offset, units[at]);
        if (!expansion)
            return -1;
        offset += expansion->length;
    }
    return at;
}

/// The last word lies over the one before it, so that nothing is read behind the literal.
void ZEVFoldedLiteral::makeWords()
{
    constexpr size_t size = WordSize;
    m_isAllWords = m_expansions.empty() && m_units.size() >= size;
    for (const ZEVTextScan::Units &units : m_units)
        m_isAllWords = m_isAllWords && units.isOneBut(units.bit());
    for (size_t begin = 0; begin < m_units.size() && m_units.size() >= size; begin += size) {
        Word &word = m_words.emplace_back();
        word.offset = qsizetype(std::min(begin, m_units.size() - size));
        for (size_t i = 0; i < size; ++i) {
            const ZEVTextScan::Units &units = m_units[size_t(word.offset) + i];
            word.bits.at(i) = units.bit();
            word.units.at(i) = char16_t(units.units[0] | units.bit());
        }
    }
}

ZEVTextScan::Anchors ZEVFoldedLiteral::anchors() const
{
    const size_t atFirst = expansionsAtFirstOffset();
    const size_t fixedLength = atFirst < m_expansions.size() ? m_expansions[atFirst].offset : m_units.size();
    std::vector<qsizetype> offsets(std::min<size_t>(fixedLength, 64));
    std::iota(offsets.begin(), offsets.end(), 0);
    std::stable_sort(offsets.begin(), offsets.end(), [this](qsizetype a, qsizetype b) {
        return commonness(m_units[size_t(a)]) < commonness(m_units[size_t(b)]);
    });
    ZEVTextScan::Anchors anchors;
    anchors.offsets = {offsets.front(), offsets.size() > 1 ? offsets[1] : offsets.front()};
    for (size_t i = 0; i < 2; ++i)
        anchors.units.at(i) = m_units[size_t(anchors.offsets.at(i))];
    if (atFirst > 0 && m_expansions.front().offset < 64) {
        anchors.insteadOffset = qsizetype(m_expansions.front().offset);
        for (size_t i = 0; i < atFirst; ++i)
            anchors.instead.add(m_expansions[i].unit);
    }
    anchors.prepare();
    return anchors;
}
