// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVAddressScan_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVFoldedLiteral_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVUnitClass_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

/// How an expression is searched for, chosen once when it is compiled. Whatever the plan, the matches are
/// those of the general matcher: what is not known to be so is left to it.
struct ZEVSearchPlan {
    enum class Kind {
        General, ///< the matcher alone
        Runs, ///< \d+, \w+ or \s+ alone, as a group or not
        Literal, ///< a literal, perhaps between \b, perhaps with such a run behind it
        Email, ///< the address that is the whole text
        WebAddress,
        Candidates, ///< more than that: the matcher is asked wherever the literal at its beginning stands
    };

    static ZEVSearchPlan forPattern(QStringView pattern, bool caseInsensitive);

    Kind kind = Kind::General;
    bool caseInsensitive = false;
    std::optional<ZEVFoldedLiteral> literal;
    ZEVTextScan::Anchors anchors; ///< of the literal, or of the address
    const ZEVUnitClass *run = nullptr; ///< of which one character or more must follow
    bool runIsGroup = false;
    bool beginsAtBoundary = false;
    bool endsAtBoundary = false;
    bool isFixedText = false; ///< nothing but a literal that is fixed
};

/// Goes through one text by a plan, from stretch to stretch: many matches at a time cost far less than each by
/// itself.
class ZEVSearchWalk {
public:
    enum class State { GoesOn, AsksMatcher, IsOver };

    /// Where a match begins and ends. None is empty, and they do not overlap.
    struct Span {
        qsizetype begin;
        qsizetype end;
    };

    explicit ZEVSearchWalk(const ZEVSearchPlan &plan)
        : m_plan(plan)
    {
    }

    void setText(QStringView text);

    /// Looks at the next stretch, and then has the matches in it. With AsksMatcher only the matcher knows
    /// whether another one begins at the position(), and goOnFrom() must follow.
    State goOn();
    size_t spanCount() const { return m_edgeCount / 2; }
    Span span(size_t number) const { return {m_edges[2 * number], m_edges[2 * number + 1]}; }
    qsizetype position() const { return m_position; }
    void goOnFrom(qsizetype position) { m_position = position; }

    /// How far the text has been looked at, and the places that were tried in this stretch.
    qsizetype reached() const { return m_scanned; }
    unsigned attempts() const { return m_attempts; }

    /// A group of a match, from 1 on; nil for one that takes no part.
    std::optional<ZEVRange> group(int number, const Span &span) const;

private:
    enum class Answer { No, Yes, AskMatcher };

    State goOnWithRuns();
    State goOnWithEmail();
    State goOnWithCandidates();
    void findNextBlocks();
    bool takeFixedText();
    bool hasRoomFor(qsizetype edges) const { return m_edgeCount + size_t(edges) < m_edges.size(); }
    qsizetype nextCandidate();
    Answer tryCandidate(qsizetype candidate);
    Answer tryLiteral(qsizetype start);
    Answer tryWebAddress(qsizetype mark);
    qsizetype endOfRun(qsizetype start) const;
    void add(const Span &span);

    const ZEVSearchPlan &m_plan;
    QStringView m_text;
    qsizetype m_position = 0; ///< where the next match may begin
    qsizetype m_scanned = 0; ///< where the next block begins
    ZEVWebAddressScan m_addresses;
    unsigned m_attempts = 0;
    size_t m_edgeCount = 0;
    size_t m_blockCount = 0;
    size_t m_block = 0; ///< the one whose bits are being taken
    std::array<ZEVTextScan::Block, 32> m_blocks;
    std::array<qsizetype, 256> m_edges; ///< where matches begin and end; the last one may not have ended yet
};
