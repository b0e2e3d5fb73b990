// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QVariantList>

#include <memory>
#include <optional>

class QMenu;
class QWidget;
class ZEVRegularExpression;
class ZEVTextFinder;
class ZEVTextFinderUserInterface;
struct ZEVFindRequest;
template <typename Protocol>
class ZEVWeakRef;

/// Who runs what a find interface is asked for.
class ZEV_EXPORT ZEVTextFinderUserInterfaceDelegate {
public:
    virtual ~ZEVTextFinderUserInterfaceDelegate();

    /// A number of ZEVFindActionNumber.
    virtual void performAction(qint64 action) = 0;

    /// Nil for a query that is none.
    virtual void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) = 0;

    /// The whole of what is searched for. Optional: by default only the expression is handed on.
    virtual void search(const ZEVFindRequest &request);

    /// Optional: ends a search that is under way, with what it has found. False when there is none.
    virtual bool stopSearch() { return false; }

    /// Optional: may change the menu of the find field before it is shown.
    virtual void customizeFindMenuBeforeDisplay(ZEVTextFinderUserInterface *findInterface, QMenu *menu);
};

/// The find interface as its finder sees it. It serves one finder at a time, and may go before it.
class ZEV_EXPORT ZEVTextFinderUserInterface {
public:
    virtual ~ZEVTextFinderUserInterface();

    /// The library's find bar, which finders make where the host gives them no interface.
    static std::unique_ptr<ZEVTextFinderUserInterface> makeFindBar();

    virtual QWidget *view() = 0;
    virtual void setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> delegate) = 0;

    /// Whether one of its fields is being edited.
    virtual bool hasFocus() const = 0;

    virtual void setShowReplace(bool show) = 0;

    /// Gives the focus to the field that belongs to \a action.
    virtual void focusFieldForAction(qint64 action) = 0;

    /// The count of the last search, and whether the search had to leave something out. Nil also when another
    /// interface has searched since.
    virtual void setNumberOfMatches(std::optional<qsizetype> number) = 0;
    virtual void setSearchLimitReached(bool reached) = 0;

    /// Optional: its search goes on while other events are handled; it is over.
    virtual void setSearching(bool) { }

    /// Optional: searches for what is in its field, unless it has done so already.
    virtual void searchIfChanged() { }

    /// Whether moving goes on at the other end of the text.
    virtual bool wrapAround() const { return true; }

    /// The pattern to replace matches with.
    virtual QVariantList replacePattern() const = 0;

private:
    friend class ZEVTextFinder;
    QPointer<ZEVTextFinder> m_finder;
};
