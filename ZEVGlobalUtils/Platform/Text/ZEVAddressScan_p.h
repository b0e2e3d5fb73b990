// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Text/ZEVTextScan_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <array>
#include <optional>

/// The expression that is searched for without the general matcher: one e-mail address is the whole text.
namespace ZEVEmailScan {

constexpr QStringView Expression = u"(^[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,4}$)";

/// Where the address ends that the text is; -1 for none.
qsizetype endOfMatch(QStringView text, bool caseInsensitive);

} // namespace ZEVEmailScan

/// Finds web addresses in one text, in a time that grows with its length alone: the matcher may take forever over
/// a bracket that is not closed.
///
/// Nothing has to be tried in two ways. Whatever an address begins with is followed by all that can follow:
/// stretches of other characters and closed brackets, which begin with different characters; and the repeated end
/// of the expression then finds nothing left.
class ZEVWebAddressScan {
public:
    /// Kept: the last group is repeated zero or more times, not one or more.
    static constexpr QStringView Expression =
        u"((?i)\\b((?:[a-z][\\w-]+:(?:/{1,3}|[a-z0-9%])|www\\d{0,3}[.]|[a-z0-9.\\-]+[.][a-z]{2,4}/?)"
        u"(?:[^\\s()<>]+|\\(([^\\s()<>]+|(\\([^\\s()<>]+\\)))*\\))*"
        u"(?:\\(([^\\s()<>]+|(\\([^\\s()<>]+\\)))*\\)|[^\\s`!()\\[\\]{};:'\".,<>?«»“”‘’])*))";

    /// A colon or a full stop: every address begins with something that contains one.
    static ZEVTextScan::Anchors anchors();

    void setText(QStringView text);

    /// The first place from \a from to \a mark at which an address begins, which has its first such mark there or
    /// later; -1 for none. Positions only grow.
    qsizetype beginOfMatch(qsizetype from, qsizetype mark);
    qsizetype endOfMatch(qsizetype begin) const { return tailFrom(begin).end; }

    /// The groups of the expression; nil for those that take no part.
    std::optional<ZEVRange> group(int number, qsizetype begin) const;

private:
    /// What follows the beginning of an address, with the last content of a bracket, and of one in a bracket.
    struct Tail {
        qsizetype end = 0;
        std::array<std::optional<ZEVRange>, 2> contents{};
    };

    bool isMatchAt(qsizetype begin);
    bool hasScheme(qsizetype begin);
    bool hasPrefix(qsizetype begin) const;
    bool hasDomain(qsizetype begin);
    bool isDomainDot(qsizetype position) const;
    Tail tailFrom(qsizetype begin) const;
    bool addBracket(Tail &tail) const;

    QStringView m_text;
    qsizetype m_wordEnd = 0; ///< of the run that a scheme may be
    qsizetype m_hostEnd = 0; ///< of the run that a domain may be
    qsizetype m_domainDot = 0; ///< the next one in it that letters follow, or its end
};
