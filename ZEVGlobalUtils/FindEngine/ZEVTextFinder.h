// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderUserInterface.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

class ZEVFindBarContainer;
class ZEVTextFinderClient;

/// The finder of a window: shows the find bar, decides which find actions are its own and which the focused
/// text view's, runs the searches over its client's text and keeps every match. Moving between matches and
/// replacing them it leaves to the host. Main thread only.
class ZEV_EXPORT ZEVTextFinder : public QObject, public ZEVTextFinderUserInterfaceDelegate {
    Q_OBJECT
    Q_PROPERTY(std::optional<qsizetype> numberOfMatches READ numberOfMatches NOTIFY numberOfMatchesChanged)

public:
    explicit ZEVTextFinder(QObject *parent = nullptr);
    ~ZEVTextFinder() override;

    /// A plain pointer: the client must outlive the finder or take itself away.
    ZEVTextFinderClient *client() const { return m_client; }
    void setClient(ZEVTextFinderClient *client) { m_client = client; }

    /// Where the find bar is shown; a plain pointer, as the client. Null shows none.
    ZEVFindBarContainer *findBarContainer() const { return m_findBarContainer; }
    void setFindBarContainer(ZEVFindBarContainer *container) { m_findBarContainer = container; }

    /// The find bar, made at the first call.
    ZEVTextFinderUserInterface *textFinderViewController();
    void setTextFinderViewController(std::unique_ptr<ZEVTextFinderUserInterface> controller);

    /// Whether the finder, and not the text view that has the focus, handles \a action.
    bool canTakeTextFinderActionOwnerShip(qint64 action);

    /// For menu items and buttons, which carry the action in their property "tag".
    void tryToPerformTextFinderAction(QObject *sender);

    /// Whether \a action can be performed now.
    bool validateAction(qint64 action);

    /// Shows, hides or re-purposes the find bar. What is no business of the finder is announced by
    /// actionLeftToHost().
    void performAction(qint64 action) override;

    /// The name of a replace action in the user's language. Throws for any other action.
    static QString localizedNameForAction(qint64 action);

    /// Collects every match of \a expression in the client's pieces. A match that would span two pieces is
    /// not found. Nil finds nothing. An observer may search anew or delete the finder while the count grows.
    void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) override;

    /// How long a search may hold up its caller and the user at a time. What is left is searched once other
    /// events have been handled, from the start where an editable client's text has changed; a new search
    /// ends it. 0, as at first: until it is done. A find bar that searches at every key press sets some 30.
    void setSliceDuration(std::chrono::milliseconds duration) { m_sliceDuration = duration; }

    /// Matches may still be added. finishSearch() does the rest at once.
    bool isSearching() const { return m_isSearching; }
    void finishSearch();

    /// What was searched last; nil before any search, and for a query that was none.
    const std::optional<ZEVRegularExpression> &expression() const;

    /// The matches of the last search in text order, as ranges of the client's whole text. They stay until
    /// the next search, also when the text changes.
    const QList<ZEVRange> &foundMatches() const { return m_foundMatches; }

    /// Nil before any search and when nothing was searched; 0 when a search found nothing.
    std::optional<qsizetype> numberOfMatches() const { return m_numberOfMatches; }

    /// The last search left out a part of the text, since its expression took too long or too much stack;
    /// said when the search has ended.
    bool limitReached() const { return m_limitReached; }

Q_SIGNALS:
    /// Emitted for every match, so that observers see the count grow.
    void numberOfMatchesChanged();

    /// A search is over, whatever it found.
    void searchPerformed();

    /// Next, previous, replace, replace all and their kin: whoever can, acts on foundMatches().
    void actionLeftToHost(qint64 action);

private:
    class Search;
    void setNumberOfMatches(std::optional<qsizetype> number);
    void announceNumberOfMatches();
    void beginSearch(const std::optional<ZEVRegularExpression> &expression,
                     std::chrono::milliseconds duration);
    void goOn(const std::shared_ptr<Search> &search, std::chrono::milliseconds duration);
    void goOnSoon(const std::shared_ptr<Search> &search);
    void endSearch(const Search &search);
    QWidget *firstResponder() const;
    bool findBarHasFocus();
    void showFindBar(qint64 action);
    void hideFindBar();

    ZEVTextFinderClient *m_client = nullptr;
    ZEVFindBarContainer *m_findBarContainer = nullptr;
    std::unique_ptr<ZEVTextFinderUserInterface> m_textFinderViewController;
    std::unique_ptr<std::optional<ZEVRegularExpression>> m_expression;
    QList<ZEVRange> m_foundMatches;
    std::optional<qsizetype> m_numberOfMatches;
    std::shared_ptr<Search> m_search; ///< the last one, done or not
    std::chrono::milliseconds m_sliceDuration{0};
    bool m_isSearching = false;
    bool m_limitReached = false;
};
