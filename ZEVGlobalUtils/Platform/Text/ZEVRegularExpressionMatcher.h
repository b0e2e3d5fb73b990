// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QStringView>

#include <functional>
#include <memory>
#include <optional>

class ZEVRegularExpression;

/// Walks one expression over many texts, which is far cheaper than a matcher for each text. A text on which
/// the time or stack limit strikes ends there, and the walk goes on with the next one; once the struck texts
/// have cost a second of processor time together the walk is exhausted and finds no more. One thread at a
/// time.
class ZEV_EXPORT ZEVRegularExpressionMatcher {
public:
    explicit ZEVRegularExpressionMatcher(const ZEVRegularExpression &expression);
    ~ZEVRegularExpressionMatcher();
    Q_DISABLE_COPY_MOVE(ZEVRegularExpressionMatcher)

    /// \a asked is asked every few thousand steps, from within a match too, and ends the text there by true.
    /// That is no strike: whoever interrupts may match the text anew.
    void setInterruption(const std::function<bool()> &asked);
    bool wasInterrupted() const;

    /// The characters of \a text must stay where they are until the next setText().
    void setText(QStringView text);

    /// Nil when the text has no further match, or when a limit has struck.
    std::optional<ZEVRange> findNext();

    /// Appends the next matches, as many as are found at a time, to \a ranges, moved by \a offset: faster than one
    /// by one, but without their groups. False when there are none.
    bool findSome(QList<ZEVRange> &ranges, qsizetype offset = 0);

    /// Where a group of the last match lies; nil for one that took no part in it.
    std::optional<ZEVRange> rangeOfGroup(int group) const;
    int numberOfCaptureGroups() const;

    /// A limit has struck on this text; on any text since the matcher was made; too often to go on.
    bool textReachedLimit() const;
    bool limitReached() const;
    bool isExhausted() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
