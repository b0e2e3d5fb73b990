// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

class ZEVError;

/// A compiled regular expression in ICU's syntax. A copy shares what is compiled; reading is safe from any
/// thread. Texts are read where they lie and never copied.
///
/// What people type may take exponential time, so every text that is matched has a time limit: where it (or
/// the matching engine's limit of stack) strikes, the matches found so far stay, a flag tells it, and one
/// line is logged.
class ZEV_EXPORT ZEVRegularExpression {
public:
    enum Option { NoOptions = 0, CaseInsensitive = 1 };
    Q_DECLARE_FLAGS(Options, Option)

    struct Matches {
        QList<ZEVRange> ranges; ///< in text order, empty matches among them
        bool limitReached = false; ///< the text was not searched to its end
    };

    /// Nil, with \a error set, when \a pattern is no expression.
    static std::optional<ZEVRegularExpression> compile(const QString &pattern, Options options = NoOptions,
                                                       ZEVError *error = nullptr);

    /// \a literal as an expression that matches just it: a backslash before each of
    /// \ * ? + [ ( ) { } ^ $ | . and /
    static QString escapedPatternForString(QStringView literal);

    const QString &pattern() const;
    Options options() const;
    int numberOfCaptureGroups() const;

    /// The number of the group `(?<name>...)`; nil when the expression has none of that name.
    std::optional<int> numberOfCaptureGroup(const QString &name) const;

    Matches matchesInString(QStringView text) const;
    std::optional<ZEVRange> rangeOfFirstMatchInString(QStringView text) const;
    qsizetype numberOfMatchesInString(QStringView text) const { return matchesInString(text).ranges.size(); }

    /// The processor time within which matching must finish a text or, in a long one, get on by 65,536 UTF-16
    /// units (with as much again for every 4 Mi units that the text has); 250 ms at first, 0 for no limit.
    /// For the whole process, and for matchers that are made from then on.
    static void setTimeLimit(std::chrono::milliseconds limit);
    static std::chrono::milliseconds timeLimit();

    /// The same pattern under the same options.
    friend ZEV_EXPORT bool operator==(const ZEVRegularExpression &a, const ZEVRegularExpression &b);

private:
    friend class ZEVRegularExpressionMatcher;
    struct Compiled;
    explicit ZEVRegularExpression(std::shared_ptr<const Compiled> compiled);

    std::shared_ptr<const Compiled> m_compiled;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZEVRegularExpression::Options)
