// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

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
        Candidates, ///< more than that: the matcher is asked wherever the literal at its beginning stands
    };

    static ZEVSearchPlan forPattern(QStringView pattern, bool caseInsensitive);

    Kind kind = Kind::General;
    std::optional<ZEVFoldedLiteral> literal;
    ZEVTextScan::Anchors anchors; ///< of the literal
    const ZEVUnitClass *run = nullptr; ///< of which one character or more must follow
    bool runIsGroup = false;
    bool beginsAtBoundary = false;
    bool endsAtBoundary = false;
};

/// Goes through one text by a plan.
class ZEVSearchWalk {
public:
    enum class Answer { No, Yes, AskMatcher };

    explicit ZEVSearchWalk(const ZEVSearchPlan &plan)
        : m_plan(plan)
    {
    }

    void setText(QStringView text);

    /// The first place at or after \a from where a match may begin, in growing order; the end of the text for
    /// none.
    qsizetype nextCandidate(qsizetype from);

    /// Whether a match begins at the candidate, and then where the match and its group lie.
    Answer tryCandidate(qsizetype start);
    qsizetype begin() const { return m_begin; }
    qsizetype end() const { return m_end; }
    std::optional<ZEVRange> group() const;

private:
    qsizetype nextLiteral(qsizetype from);
    Answer tryLiteral(qsizetype start);
    Answer boundaryAt(qsizetype position) const;
    qsizetype endOfRun(qsizetype start) const;

    const ZEVSearchPlan &m_plan;
    QStringView m_text;
    ZEVTextScan::Block m_block;
    ZEVClassRuns m_runs;
    // Single numbers: a range that is copied right after it was written makes the processor wait.
    qsizetype m_begin = 0;
    qsizetype m_end = 0;
    qsizetype m_runBegin = 0;
};
