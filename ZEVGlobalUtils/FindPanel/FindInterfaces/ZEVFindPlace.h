// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderViewController.h>

class QAbstractItemView;
class QPlainTextEdit;
class QTextEdit;
class ZEVWidgetSpot;

/// Find and replace for a view, whole: the bar above it, its finder, who acts on the matches, and the keys.
///
///     new ZEVFindPlace(editor);
///
/// takes the place of the editor in its layout, splitter, dock or main window, and the editor in; a view that
/// is in none of them, a page of a tab widget for one, is put into the place before that is put there. The
/// place goes with what it is in, and the view with the place.
class ZEV_EXPORT ZEVFindPlace : public ZEVFindBarContainerView {
    Q_OBJECT

public:
    /// Every bar may be the host's own; null makes the library's.
    using Bar = std::unique_ptr<ZEVTextFinderViewController>;

    explicit ZEVFindPlace(QTextEdit *editor, Bar bar = nullptr);
    explicit ZEVFindPlace(QPlainTextEdit *editor, Bar bar = nullptr);

    /// A list, table or tree of any model, proxies among them; of a model that the view gets later, too.
    /// Matches are marked by a ZEVMatchHighlightDelegate where the view has no delegate but Qt's own.
    explicit ZEVFindPlace(QAbstractItemView *view, Bar bar = nullptr);

    /// For any content: the host sets the finder's client.
    explicit ZEVFindPlace(QWidget *content, Bar bar = nullptr);
    ~ZEVFindPlace() override;

    ZEVTextFinder &finder() { return m_finder; }
    ZEVTextFinderActor &actor() { return m_actor; }
    ZEVTextFinderViewController &bar();

    /// Find, replace, next, previous and use selection, with the usual keys, which work wherever in the place
    /// the focus is: for the host's menus.
    QList<QAction *> menuActions() const;

    /// Off for a host whose own menu has the same keys: Qt takes keys that two items have for neither.
    void setKeysEnabled(bool enabled);

    /// The view or its bar.
    bool hasFocusWithin() const;

    /// Shows the bar, which searches for \a query.
    void find(const ZEVFindPanelQuery &query);

private:
    ZEVFindPlace(const ZEVWidgetSpot &spot, QWidget *content, Bar bar);
    template <typename Editor>
    void searchEditor(Editor *editor);
    void searchView(QAbstractItemView *view);
    void searchWhileShown();
    void setUpKeys();

    ZEVTextFinder m_finder;
    ZEVTextFinderActor m_actor;
    QMenu *m_menu; ///< only holds the items
};
