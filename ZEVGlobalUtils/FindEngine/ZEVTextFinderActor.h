// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVReplacementPreview.h>
#include <ZEVGlobalUtils/FindEngine/ZEVReplacementTemplate.h>

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

class ZEVTextFinder;

/// Does what a finder leaves to its host: moves between the matches, selects and replaces them, where the
/// finder's client is a ZEVTextFinderEditableClient. A text that has changed since the search is searched
/// again first. What is put in for a match comes from the interface that has asked for the search, and what its
/// tokens have captured from the query (ZEVTextFinder::lastRequest()). Main thread only.
class ZEV_EXPORT ZEVTextFinderActor : public QObject {
    Q_OBJECT

public:
    /// The host's value for a placeholder in the replacement of the match at the range.
    using PlaceholderValue =
        std::function<std::optional<ZEVOrvCaptureMatch>(const ZEVPatternItem &, const ZEVRange &)>;

    explicit ZEVTextFinderActor(ZEVTextFinder *finder, QObject *parent = nullptr);

    /// Whether next goes on at the beginning and previous at the end: true at first, and where the find
    /// interface says so too.
    bool wrapsAround() const;
    void setWrapsAround(bool wraps) { m_wrapsAround = wraps; }

    void setPlaceholderValue(const PlaceholderValue &value) { m_placeholderValue = value; }

    /// The finder's actions 2 to 6 and 8 to 10; any other does nothing. Replace, and replace and find, act on
    /// the selected match; where none is selected they select the next one. After replacing, the text is
    /// searched again. While a search is under way, moving makes do with the matches so far, and all else
    /// finishes it first.
    void performAction(qint64 action);

    /// What replace all would do. Matches that are not editable are left out.
    ZEVReplacementPreview preview();

    /// Of the matches that lie within the selected ranges as a whole.
    ZEVReplacementPreview previewInSelection();

    /// False when nothing was replaced: the text has changed since, the preview is empty, or the client
    /// refused.
    bool apply(const ZEVReplacementPreview &preview);

    /// Ends a search that is going on, and searches again if the text has changed since. False when there is
    /// no text whose matches are known then.
    bool searchIfChanged();

    /// Once the events at hand are done, if the text has changed since the search; four times a second at
    /// most, so that a text that keeps growing leaves its user time.
    void searchAgainSoon();

Q_SIGNALS:
    void wrappedAround();
    void replaced(qsizetype count);

private:
    class Replacer;
    ZEVTextFinderEditableClient *client() const;
    const QList<ZEVRange> &matches() const;
    bool hasMatchesToMoveTo() const;
    void searchAgain();
    ZEVReplacementPreview previewOf(const QList<ZEVRange> &matches) const;
    bool replace(const QList<ZEVTextReplacement> &replacements, qint64 action);
    QList<ZEVRange> matchesInSelection() const;
    qsizetype firstMatchAt(qsizetype location) const;
    qsizetype selectedMatch() const;
    void step(int direction);
    void select(qsizetype match, bool wraps);
    void replaceSelectedMatch(bool findsNext);
    void selectBehind(const ZEVTextReplacement &replacement, bool findsNext);

    QPointer<ZEVTextFinder> m_finder;
    PlaceholderValue m_placeholderValue;
    QTimer m_timer;
    QElapsedTimer m_sinceSearch;
    bool m_wrapsAround = true;
};
