// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpressionMatcher.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVSearchPlan_p.h>

#include <unicode/regex.h>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Every match with all of its groups, -1 for one that took no part.
using Found = QList<qsizetype>;

Found foundByIcu(icu::RegexMatcher &matcher, const QString &text)
{
    Found found;
    UErrorCode code = U_ZERO_ERROR;
    UText utext = UTEXT_INITIALIZER;
    utext_openUChars(&utext, reinterpret_cast<const UChar *>(text.utf16()), text.size(), &code);
    matcher.reset(&utext);
    while (matcher.find(code)) {
        for (int group = 0; group <= matcher.groupCount(); ++group)
            found << matcher.start64(group, code) << matcher.end64(group, code);
    }
    utext_close(&utext);
    return U_SUCCESS(code) ? found : Found{-2};
}

Found foundByUs(ZEVRegularExpressionMatcher &matcher, const QString &text)
{
    Found found;
    matcher.setText(text);
    while (matcher.findNext()) {
        for (int group = 0; group <= matcher.numberOfCaptureGroups(); ++group) {
            const ZEVRange range = matcher.rangeOfGroup(group).value_or(ZEVRange{-1, 0});
            found << range.location << range.location + range.length;
        }
    }
    if (matcher.findNext() || matcher.rangeOfGroup(0))
        found << -3;
    return found;
}

/// Where the matches lie, taken many at a time.
bool hasPlaces(ZEVRegularExpressionMatcher &matcher, const QString &text, const Found &found)
{
    QList<ZEVRange> places;
    matcher.setText(text);
    while (matcher.findSome(places, 1)) { }
    Found expected;
    for (qsizetype i = 0; i < found.size(); i += 2 * (matcher.numberOfCaptureGroups() + 1))
        expected << found[i] + 1 << found[i + 1] - found[i];
    Found given;
    for (const ZEVRange &place : std::as_const(places))
        given << place.location << place.length;
    return given == expected;
}

/// Nothing where the pattern does not compile or runs away; else whether both found the same in each text.
std::optional<bool> isAgreed(const QString &pattern, bool caseInsensitive, const QStringList &texts,
                             int timeLimit = 0)
{
    const auto expression = ZEVRegularExpression::compile(
        pattern, caseInsensitive ? ZEVRegularExpression::CaseInsensitive : ZEVRegularExpression::NoOptions);
    if (!expression)
        return std::nullopt;
    UErrorCode code = U_ZERO_ERROR;
    icu::RegexMatcher icuMatcher(icu::UnicodeString(pattern.utf16(), int32_t(pattern.size())),
                                 caseInsensitive ? UREGEX_CASE_INSENSITIVE : 0, code);
    icuMatcher.setTimeLimit(timeLimit, code);
    ZEVRegularExpressionMatcher matcher(*expression);
    for (const QString &text : texts) {
        const Found expected = foundByIcu(icuMatcher, text);
        if (expected == Found{-2})
            return std::nullopt;
        const Found found = foundByUs(matcher, text);
        if (found != expected || !hasPlaces(matcher, text, expected)) {
            qWarning() << pattern << caseInsensitive << text.left(400) << found << expected;
            return false;
        }
    }
    return true;
}

constexpr int AFewMilliseconds = 10; // in the steps that ICU counts

/// Patterns and texts of the same few fragments, so that much of one is met in the other.
class Chance {
public:
    explicit Chance(unsigned seed)
        : m_random(seed)
    {
        for (int i = 2 + upTo(5); i > 0; --i)
            m_palette << QString::fromUtf16(oneOf(Fragments));
        if (upTo(4) == 0)
            m_palette << u"("_s << u")"_s << u"a.bc"_s << u"x:/"_s << u" "_s;
        if (upTo(3) == 0)
            m_palette << QString(char16_t(0xD83C)) << QString(char16_t(0xDFB5));
    }

    int upTo(int bound) { return int(m_random() % unsigned(bound)); }

    QString text()
    {
        static constexpr int lengths[]{3, 10, 40, 40, 150, 3000};
        QString text;
        for (int i = upTo(oneOf(lengths)); i > 0; --i)
            text += upTo(6) == 0 ? QString::fromUtf16(oneOf(Fragments)) : fragment();
        return text;
    }

    QString pattern()
    {
        static constexpr const char16_t *runs[]{u"\\d+", u"\\w+", u"\\s+", u"(\\d+)", u"(\\w+)", u"(\\s+)"};
        switch (upTo(9)) {
        case 0:
        case 1:
            return literal();
        case 8:
            return (upTo(3) ? ZEVWebAddressScan::Expression : ZEVEmailScan::Expression).toString();
        case 2:
            return u"\\b"_s + literal() + (upTo(2) ? u"\\b"_s : QString());
        case 3:
            return literal() + QString::fromUtf16(oneOf(runs));
        case 4:
            return upTo(4) ? literal() + u"\\b"_s : QString::fromUtf16(oneOf(runs));
        case 5:
            return expression();
        default:
            return literal() + expression();
        }
    }

private:
    static constexpr const char16_t *Fragments[]{u"k",
                                                 u"i",
                                                 u"s",
                                                 u"ss",
                                                 u"S",
                                                 u"ſ",
                                                 u"K",
                                                 u"\u212A",
                                                 u"kiss",
                                                 u"KISS",
                                                 u"ß",
                                                 u"ẞ",
                                                 u"İ",
                                                 u"ı",
                                                 u"\u0307",
                                                 u"f",
                                                 u"ff",
                                                 u"ﬁ",
                                                 u"ﬀ",
                                                 u"ﬃ",
                                                 u"st",
                                                 u"ﬆ",
                                                 u"ǰ",
                                                 u"j",
                                                 u"\u030C",
                                                 u"σ",
                                                 u"ς",
                                                 u"Σ",
                                                 u"ΐ",
                                                 u"ι",
                                                 u"\u0345",
                                                 u"ᾳ",
                                                 u"ᾼ",
                                                 u"α",
                                                 u"é",
                                                 u"e\u0301",
                                                 u"\u0301",
                                                 u"1",
                                                 u"42",
                                                 u"٣",
                                                 u"_",
                                                 u"\u200D",
                                                 u"\u00AD",
                                                 u" ",
                                                 u"\n",
                                                 u"\r\n",
                                                 u"\r",
                                                 u"\v",
                                                 u"\f",
                                                 u"\x85",
                                                 u"\u2028",
                                                 u"\u2029",
                                                 u"\u180E",
                                                 u"\u00A0",
                                                 u"東",
                                                 u"京の",
                                                 u"𝟙",
                                                 u"𐐀",
                                                 u"𐐨",
                                                 u"🎵",
                                                 u"ŉ",
                                                 u"ʼ",
                                                 u"n",
                                                 u"և",
                                                 u"եւ",
                                                 u"Å",
                                                 u"\u212B",
                                                 u"å",
                                                 u".",
                                                 u"-",
                                                 u"/",
                                                 u"|",
                                                 u"love",
                                                 u"Love",
                                                 u"Track ",
                                                 u"track",
                                                 u"h\u0331",
                                                 u"ẖ",
                                                 u"µ",
                                                 u"μ",
                                                 u"Ꭰ",
                                                 u"ꭰ",
                                                 u"\uFFFF",
                                                 u"aʾ",
                                                 u"ẚ",
                                                 u"в",
                                                 u"ᲀ",
                                                 u"В",
                                                 u"ꙋ",
                                                 u"Dž",
                                                 u"dž",
                                                 u"ω",
                                                 u"Ω",
                                                 u"(",
                                                 u"\\",
                                                 u")",
                                                 u"@",
                                                 u"www",
                                                 u"www.",
                                                 u"http:",
                                                 u"a.bc",
                                                 u":",
                                                 u"%",
                                                 u"<",
                                                 u"ſK.co",
                                                 u"joe@x-y.org",
                                                 u"(a.bc)",
                                                 u"//",
                                                 u"abcdefghijklmnopqrstuvwxyz0123456789 abcdefghijkl"};

    template <typename T, size_t Size>
    T oneOf(const T (&list)[Size])
    {
        return list[upTo(int(Size))];
    }

    const QString &fragment() { return m_palette.at(upTo(int(m_palette.size()))); }

    QString literal()
    {
        QString literal;
        for (int i = 1 + upTo(4); i > 0; --i)
            literal += fragment();
        return ZEVRegularExpression::escapedPatternForString(literal);
    }

    QString expression()
    {
        static constexpr const char16_t *parts[]{
            u".",   u".*",       u"\\w*",   u"\\d",   u"\\b",   u"\\B",  u"?",     u"+",        u"*",
            u"{2}", u"$",        u"^",      u"[^s]+", u"(?=s)", u"|",    u"(?i)",  u"(?-i)",    u"(?<=s)",
            u"\\G", u"(i|s)",    u"(\\w+)", u"(x)?",  u"\\1",   u"\\X",  u"[s-z]", u"\\Qk|\\E", u"(?x) s ",
            u"\\R", u"(?<!\\w)", u"\\s",    u"*?",    u"{0}",   u"(?:)", u"(?m)^", u"(?s).",    u"{0,2}"};
        QString expression;
        for (int i = 1 + upTo(4); i > 0; --i)
            expression += upTo(4) == 0 ? literal() : QString::fromUtf16(oneOf(parts));
        return expression;
    }

    std::mt19937 m_random;
    QStringList m_palette;
};

QString everyCharacter()
{
    QString text;
    for (char32_t character = 0; character <= 0x10FFFF; ++character)
        text += QStringView(QChar::fromUcs4(character));
    return text;
}

/// All that takes part in a case folding, each by itself and all in a row, and the foldings too.
QStringList everyCasedCharacter()
{
    icu::UnicodeSet cased;
    UErrorCode code = U_ZERO_ERROR;
    cased.applyIntPropertyValue(UCHAR_CASED, 1, code);
    QStringList all;
    for (int32_t i = 0; i < cased.size(); ++i) {
        icu::UnicodeString folded(cased.charAt(i));
        all << QString::fromUtf16(folded.getBuffer(), folded.length());
        folded.foldCase();
        all << QString::fromUtf16(folded.getBuffer(), folded.length());
    }
    all.removeDuplicates();
    return all;
}

} // namespace

class tst_SearchPlans : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ZEVRegularExpression::setTimeLimit(0ms); }

    void patternsHaveTheirPlans()
    {
        using enum ZEVSearchPlan::Kind;
        const std::tuple<QString, bool, ZEVSearchPlan::Kind> rows[] = {
            {u"Strange"_s, false, Literal},
            {u"strange"_s, true, Literal},
            {u"kiss"_s, true, Literal},
            {u"\\blove\\b"_s, true, Literal},
            {u"a\\|b"_s, true, Literal},
            {u"🎵"_s, true, Literal},
            {u"Track (\\d+)"_s, true, Literal},
            {u"(\\w+)"_s, true, Runs},
            {u"\\s+"_s, false, Runs},
            {u"Tracks?"_s, true, Candidates},
            {u"Track \\d"_s, true, Candidates},
            {u"\\w+ "_s, true, General},
            {u"love|x"_s, false, General},
            {u"love\\G"_s, false, General},
            {u"ßa"_s, true, Literal},
            {u"ss.*"_s, true, General},
            {u"\\blove?"_s, true, Candidates},
            {u"𐐨"_s, true, General},
            {u"^love"_s, true, General},
            {ZEVEmailScan::Expression.toString(), true, Email},
            {ZEVWebAddressScan::Expression.toString(), false, WebAddress},
            {u"(love)"_s, true, General},
            {{}, true, General},
        };
        for (const auto &[pattern, caseInsensitive, kind] : rows)
            COMPARE_ROW(pattern, ZEVSearchPlan::forPattern(pattern, caseInsensitive).kind, kind);
    }

    /// What runs on this processor against what it stands for, at every alignment and length of the rest.
    void everyCodeFindsTheSame()
    {
        std::mt19937 random(7); // NOLINT: the same in every run
        const char16_t units[]{u'a', u'b', u'0', u'9', u'z', 0x7F, 0x80, 0x7FFF, 0x8000, 0xFFFF, 0};
        ZEVTextScan::AsciiRanges ranges;
        for (int count = 1; count <= 4; ++count) {
            ranges.add(char16_t(u'0' + 20 * (count - 1)), char16_t(u'9' + 20 * (count - 1)));
            ZEVTextScan::Anchors anchors;
            anchors.offsets = {qsizetype(random() % 64), qsizetype(random() % 64)};
            for (int i = 0; i < count; ++i) {
                anchors.units[0].add(units[random() % std::size(units)]);
                anchors.units[1].add(units[random() % std::size(units)]);
            }
            if (count % 2) {
                anchors.instead.add(units[random() % std::size(units)]);
                anchors.insteadOffset = qsizetype(random() % 64);
            }
            anchors.prepare();
            QString text;
            for (int i = 0; i < 400; ++i)
                text +=
                    random() % 3 ? QChar(units[random() % std::size(units)]) : QChar(ushort(random() % 0x90));
            for (qsizetype end = 0; end <= text.size(); end += 1 + end / 16)
                for (qsizetype from = 0; from <= end; ++from)
                    expectTheSame(anchors, ranges, QStringView(text).left(end), from);
        }
    }

    /// The general matcher gives up on some of these, or takes minutes.
    void hostileAddressesEnd()
    {
        constexpr qsizetype length = 100'000;
        const std::pair<QString, QList<ZEVRange>> rows[] = {
            {u"x.com/("_s + QString(length, u'a'), {{0, 6}}},
            {u"x.com/"_s + u"(a)"_s.repeated(length) + u"(b"_s, {{0, 6 + 3 * length}}},
            {QString(length, u'-') + u".x"_s, {}},
            {u"a-"_s.repeated(length), {}},
            {u"a."_s.repeated(length) + u"bc"_s, {{0, 2 * length + 2}}},
        };
        const auto expression = ZEVRegularExpression::compile(ZEVWebAddressScan::Expression.toString());
        for (const auto &[text, ranges] : rows) {
            const ZEVRegularExpression::Matches matches = expression->matchesInString(text);
            QVERIFY2(matches.ranges == ranges && !matches.limitReached, qPrintable(text.left(20)));
        }
    }

    void everyCharacterIsInItsClass()
    {
        const QStringList texts{everyCharacter()};
        for (const QString &pattern : {u"\\d+"_s, u"(\\w+)"_s, u"\\s+"_s})
            for (const bool caseInsensitive : {false, true})
                QVERIFY(isAgreed(pattern, caseInsensitive, texts) == true);
    }

    void everyCasedCharacterFindsItsVariants()
    {
        const QStringList all = everyCasedCharacter();
        const QStringList texts{all.join(QString()), all.join(u'-'), all.join(u"s")};
        for (qsizetype i = 0; i < all.size(); ++i) {
            const QString beside = (i % 2 ? all.at(i) + u's' : u's' + all.at(i));
            QVERIFY(isAgreed(all.at(i), true, texts.mid(1, 1)) == true);
            QVERIFY(isAgreed(beside, true, texts.mid(i % 3, 1)) == true);
        }
    }

    void matchesAreThoseOfIcu()
    {
        const int pairs = qEnvironmentVariable("ZEV_SEARCH_PAIRS", u"6000"_s).toInt();
        const unsigned seed = unsigned(qEnvironmentVariableIntValue("ZEV_SEARCH_SEED"));
        int compared = 0;
        for (int pair = 0; compared < pairs; ++pair) {
            Chance chance(seed + unsigned(pair));
            QStringList texts{chance.text(), chance.text(), chance.text()};
            const QString pattern = chance.pattern();
            const auto agreed = isAgreed(pattern, chance.upTo(2), texts, AFewMilliseconds);
            QVERIFY2(agreed.value_or(true), qPrintable(u"seed %1"_s.arg(seed + unsigned(pair))));
            compared += agreed.has_value();
        }
    }

private:
    static QList<quint64> blocksOf(const ZEVTextScan::Anchors &anchors, QStringView text, qsizetype from,
                                   ZEVTextScan::Code code)
    {
        std::array<ZEVTextScan::Block, 2> blocks;
        const auto [position, count] = findBlocks(anchors, text, from, blocks, code);
        QList<quint64> all{quint64(position)};
        for (const ZEVTextScan::Block &block : std::span(blocks).first(count))
            all << quint64(block.begin) << block.bits;
        return all;
    }

    static void expectTheSame(const ZEVTextScan::Anchors &anchors, const ZEVTextScan::AsciiRanges &ranges,
                              QStringView text, qsizetype from)
    {
        const QList<quint64> plainBlocks = blocksOf(anchors, text, from, ZEVTextScan::Code::Plain);
        const auto plainClasses = classesAt(ranges, text, from, ZEVTextScan::Code::Plain);
        for (const ZEVTextScan::Code code : ZEVTextScan::supportedCodes()) {
            const auto classes = classesAt(ranges, text, from, code);
            QCOMPARE(blocksOf(anchors, text, from, code), plainBlocks);
            QCOMPARE(classes.inRanges, plainClasses.inRanges);
            QCOMPARE(classes.foreign, plainClasses.foreign);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SearchPlans)
#include "tst_SearchPlans.moc"
