// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldMenuDelegate.h>

class QAbstractButton;

/// The query panel: remembers the last query and a list of saved ones in the user defaults, and enables its
/// buttons as the last search allows. Beside what its base looks for, its view may hold scopeButton,
/// findMenuButton, replaceMenuButton, findButton, caseSensitiveButton, and any number of buttons with an
/// action number as property "tag".
class ZEV_EXPORT ZEVFindPanelQueryParamsController : public ZEVTextFinderUserInterfaceVC,
                                                     public ZEVTokenFieldMenuDelegate {
    Q_OBJECT
    Q_PROPERTY(bool findEnabled READ findEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool replaceEnabled READ replaceEnabled NOTIFY enabledChanged)

public:
    explicit ZEVFindPanelQueryParamsController(QObject *parent = nullptr);
    ~ZEVFindPanelQueryParamsController() override;

    bool showReplace() const override { return true; }

    /// There is something to find that was not found yet.
    bool findEnabled() const;
    /// What is to be found has been found.
    bool replaceEnabled() const;

    /// The last one that was saved comes first.
    const QList<ZEVFindPanelQuery> &savedQueries() const { return m_savedQueriesSet; }
    /// A query without a pattern is not saved; one that is saved already moves to the front.
    void addSavedQuery(const ZEVFindPanelQuery &query);
    void removeSavedQuery(const ZEVFindPanelQuery &query);

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;
    void customizeMenuBeforeDisplay(ZEVTokenField *tokenField, QMenu *menu) override;

Q_SIGNALS:
    void enabledChanged();

protected:
    void viewDidLoad() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    void replaceButtonPressed(const QObject *sender);
    void replaceAllButtonPressed(const QObject *sender);

private:
    void loadSavedQueries();
    void restoreLastQuery();
    void persistLastQuery();
    void persistSavedToDefaults();
    void setUpMenus();
    void setUpButtons();
    void updateControls();
    void updateRecentsMenu();
    void addSavedQueryItem(const ZEVFindPanelQuery &query);
    void popupFindMenu();
    void popupReplaceMenu();

    QPointer<QMenu> m_recentsMenu;
    QPointer<QAbstractButton> m_scopeButton;
    QPointer<QAbstractButton> m_findButton;
    QPointer<QAbstractButton> m_caseSensitiveButton;
    QList<QPointer<QAbstractButton>> m_actionButtons;
    QList<ZEVFindPanelQuery> m_savedQueriesSet;
};
