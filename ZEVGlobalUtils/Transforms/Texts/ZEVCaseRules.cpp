// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextLocale.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVWordIterator_p.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVCaseRules_p.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Form;

namespace {

/// Words of a title are short, and looked up more often than anything else: a hash of all units costs more
/// than it saves.
std::size_t bucketOf(QStringView word)
{
    return (word.front().unicode() * 5U + word.back().unicode() * 3U + std::size_t(word.size())) % 64;
}

ZEVTermSet termsInText(const QString &commaSeparated)
{
    const QStringList words = commaSeparated.split(u',');
    return ZEVTermSet(QSet<QString>(words.begin(), words.end()));
}

ZEVTermSet termsInForm(const QStringList &words, Form form, const QByteArray &locale)
{
    QSet<QString> terms;
    for (const QString &word : words) {
        ZEVCaseMapping::Buffer term;
        ZEVCaseMapping::append(term, word.trimmed(), form, locale);
        terms.insert(ZEVCaseMapping::view(term).toString());
    }
    return ZEVTermSet(std::move(terms));
}

/// Whether a word would go on at \a position; a digit is as good as a letter ("deadmau5" is not in
/// "deadmau52").
bool wordGoesOn(QStringView text, qsizetype position)
{
    if (position == text.size())
        return false;
    const QChar unit = text[position];
    char32_t character = unit.unicode();
    if (unit.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate())
        character = QChar::surrogateToUcs4(unit, text[position + 1]);
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == u'_';
}

} // namespace

ZEVTermSet::ZEVTermSet(QSet<QString> termWords)
    : words(std::move(termWords))
{
    words.remove(QString());
    for (const QString &word : std::as_const(words)) {
        longest = std::max(longest, word.size());
        buckets[bucketOf(word)].push_back(word);
    }
}

bool ZEVTermSet::contains(QStringView word) const
{
    return std::ranges::any_of(buckets[bucketOf(word)], [=](const QString &term) { return word == term; });
}

const ZEVTermSet &ZEVCaseTerms::upperCase()
{
    static const ZEVTermSet terms = termsInText(u"CD,DVD,K7,DJ,FM,BPM,RPM,EP,LP,ID,IDM"_s);
    return terms;
}

const ZEVTermSet &ZEVCaseTerms::lowerCase()
{
    static const ZEVTermSet terms = termsInText(
        u"a,y,si,ou,du,de,des,le,la,les,que,qui,ce,ça,se,sa,ces,ses,nos,an,as,at,by,en,if,in,of,on,"
        "or,to,vs,ft,da,the,and,but,for,vol,via,feat,with"_s);
    return terms;
}

ZEVCaseRules::Compiled::Compiled(const Lists &lists)
    : caseLocale(lists.locale ? ZEVTextLocale::identifier(*lists.locale) : QByteArray())
    , breakLocale(caseLocale)
    , upperCaseTerms(lists.upperCaseTerms ? termsInForm(*lists.upperCaseTerms, Form::Upper, caseLocale)
                                          : ZEVCaseTerms::upperCase())
    , lowerCaseTerms(lists.lowerCaseTerms ? termsInForm(*lists.lowerCaseTerms, Form::Lower, caseLocale)
                                          : ZEVCaseTerms::lowerCase())
{
    for (const QString &text : lists.untouchedSpellings) {
        if (const auto word = ZEVWordIterator(text, wordBreakLocale()).next())
            spellings.push_back({text, word->location});
    }
    std::ranges::sort(spellings, [](const Spelling &a, const Spelling &b) {
        return a.initial() != b.initial() ? a.initial() < b.initial() : a.text.size() > b.text.size();
    });
}

const QByteArray &ZEVCaseRules::Compiled::wordBreakLocale() const
{
    return breakLocale.isEmpty() ? ZEVTextLocale::userIdentifier() : breakLocale;
}

std::optional<ZEVRange> ZEVCaseRules::Compiled::untouchedRangeAt(QStringView text, qsizetype position) const
{
    const QChar initial = text[position];
    auto spelling = std::ranges::lower_bound(spellings, initial, {}, &Spelling::initial);
    for (; spelling != spellings.end() && spelling->initial() == initial; ++spelling) {
        const ZEVRange range{position - spelling->wordBegin, spelling->text.size()};
        if (range.location >= 0 && text.sliced(range.location).startsWith(spelling->text)
            && !wordGoesOn(text, range.end()))
            return range;
    }
    return std::nullopt;
}

ZEVCaseRules::ZEVCaseRules()
{
    static const auto fixed = std::make_shared<const Compiled>(Lists{});
    m_compiled = fixed;
}

ZEVCaseRules::ZEVCaseRules(const Lists &lists)
    : m_compiled(std::make_shared<const Compiled>(lists))
{
}
