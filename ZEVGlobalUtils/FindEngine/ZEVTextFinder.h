// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVFindRequest.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderUserInterface.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QList>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>

class ZEVTextSearch;
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
    void setFindBarContainer(ZEVFindBarContainer *container);

    /// The find bar, made at the first call. Null takes the present one away.
    ZEVTextFinderUserInterface *textFinderViewController();
    void setTextFinderViewController(std::unique_ptr<ZEVTextFinderUserInterface> controller);

    /// Another interface beside the bar, a panel for one, which the finder does not own. Whichever has asked
    /// for a search gets its count.
    void addInterface(ZEVTextFinderUserInterface *findInterface);
    void removeInterface(ZEVTextFinderUserInterface *findInterface);

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

    /// Collects every match in the client's pieces. A match that would span two pieces is not found. An
    /// observer may search anew or delete the finder while the count grows.
    void search(const ZEVFindRequest &request) override;

    /// The same without a query and for nobody: every interface gets the count. Nil finds nothing.
    void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) override;

    /// What was searched for last. Its query has the groups of the matches, its asker the replacement.
    const ZEVFindRequest &lastRequest() const { return m_request; }
    const std::optional<ZEVRegularExpression> &expression() const { return m_request.expression; }

    /// Of the interface that has asked last or, where nobody did, of the find bar.
    QVariantList replacePattern() const;
    bool wrapAround() const;

    /// How long a search may hold up its caller and the user at a time, whatever the expression. What is left
    /// is matched on another thread, from the start where the client's text has changed; a new search ends
    /// it. 0, as at first: until it is done, here. A find bar that searches at every key press sets some 30.
    void setSliceDuration(std::chrono::milliseconds duration) { m_sliceDuration = duration; }

    /// Matches may still be added. finishSearch() does the rest at once; stopSearch() leaves it.
    bool isSearching() const { return m_isSearching; }
    void finishSearch();
    bool stopSearch() override;

    /// Whether the client's text is still the one that was searched, or is being searched. Of a client that is
    /// no ZEVTextFinderEditableClient only the length is compared.
    bool isTextUnchanged() const;

    /// The last request once more, over the text as it is.
    void searchAgain();

    /// The length of the text that was searched last, in UTF-16 units.
    qsizetype stringLength() const;

    /// The matches of the last search in text order, as ranges of the client's whole text. They stay until
    /// the next search, also when the text changes. A host that replaces by its own code may set what has
    /// become of them, which ends a search that is under way.
    const QList<ZEVRange> &foundMatches() const { return m_foundMatches; }
    void setFoundMatches(const QList<ZEVRange> &matches);

    /// For the host's use: the finder itself neither fills nor reads them.
    const QList<ZEVRange> &visibleMatchRanges() const { return m_visibleMatchRanges; }
    void setVisibleMatchRanges(const QList<ZEVRange> &ranges) { m_visibleMatchRanges = ranges; }

    /// Nil before any search and when nothing was searched; 0 when a search found nothing.
    std::optional<qsizetype> numberOfMatches() const { return m_numberOfMatches; }

    /// The last search left out a part of the text, since its expression took too long or too much stack;
    /// said when the search has ended.
    bool limitReached() const { return m_limitReached; }

    /// Whether clients mark the matches: from a search or the showing of the bar until the bar is hidden.
    bool marksMatches() const { return m_marksMatches; }

Q_SIGNALS:
    /// Emitted for every match, so that observers see the count grow.
    void numberOfMatchesChanged();

    /// lastRequest() is about to be searched for: a host may yet tell its client where.
    void searchBegins();

    /// A search is over, whatever it found.
    void searchPerformed();

    void marksMatchesChanged();

    /// Next, previous, replace, replace all and their kin: whoever can, acts on foundMatches().
    void actionLeftToHost(qint64 action);

private:
    void tellInterfaces(const std::function<void(ZEVTextFinderUserInterface &)> &tell);
    void tellCount();
    void setNumberOfMatches(std::optional<qsizetype> number);
    void announceNumberOfMatches();
    void beginSearch(const ZEVFindRequest &request, std::chrono::milliseconds duration);
    void prepareSearch();
    bool addMatches(const ZEVTextSearch *search, std::span<const ZEVRange> matches);
    void goOn(const std::shared_ptr<ZEVTextSearch> &search, std::chrono::milliseconds duration);
    void goOnInBackground(const std::shared_ptr<ZEVTextSearch> &search);
    void takeBackgroundMatches(const std::shared_ptr<ZEVTextSearch> &search);
    void endSearch(const std::shared_ptr<ZEVTextSearch> &search);
    void setMarksMatches(bool marks);
    ZEVTextFinderUserInterface *currentInterface() const;
    QWidget *firstResponder() const;
    QWidget *textViewInFocus() const;
    bool findBarHasFocus();
    void showFindBar(qint64 action);
    void hideFindBar();
    void leaveToHost(qint64 action);

    ZEVTextFinderClient *m_client = nullptr;
    ZEVFindBarContainer *m_findBarContainer = nullptr;
    std::unique_ptr<ZEVTextFinderUserInterface> m_textFinderViewController;
    QList<ZEVTextFinderUserInterface *> m_interfaces; ///< the bar among them
    ZEVFindRequest m_request;
    QList<ZEVRange> m_foundMatches;
    QList<ZEVRange> m_visibleMatchRanges;
    std::optional<qsizetype> m_numberOfMatches;
    std::shared_ptr<ZEVTextSearch> m_search; ///< the last one, done or not
    std::chrono::milliseconds m_sliceDuration{0};
    bool m_isSearching = false;
    bool m_isObserved =
        false; ///< a signal for every match costs a tenth of a search even where nobody listens
    bool m_limitReached = false;
    bool m_marksMatches = false;
};
