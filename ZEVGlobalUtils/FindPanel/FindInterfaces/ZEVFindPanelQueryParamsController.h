// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldMenuDelegate.h>

/// The query panel: remembers the last query and a list of saved ones in the user defaults, and enables its
/// buttons as the last search allows. Beside what its base looks for, its view may hold scopeButton, findButton
/// and caseSensitiveButton.
class ZEV_EXPORT ZEVFindPanelQueryParamsController : public ZEVTextFinderUserInterfaceVC,
                                                     public ZEVTokenFieldMenuDelegate {
    Q_OBJECT
    Q_PROPERTY(bool findEnabled READ findEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool replaceEnabled READ replaceEnabled NOTIFY enabledChanged)

public:
    explicit ZEVFindPanelQueryParamsController(QObject *parent = nullptr);
    /// Loads the interface file named \a nibName instead.
    explicit ZEVFindPanelQueryParamsController(const QString &nibName, QObject *parent = nullptr);
    ~ZEVFindPanelQueryParamsController() override;

    bool showReplace() const override { return true; }

    /// There is something to find that was not found yet.
    bool findEnabled() const;
    /// What is to be found has been found.
    bool replaceEnabled() const;

    /// What the user may choose from at scopeButton; empty, as at first, leaves the choice to the host. A query
    /// without a scope then gets the first of them. (See ZEVFindPanelSharedScope.)
    using Scopes = QList<std::shared_ptr<ZEVFindPanelScope>>;
    const Scopes &scopes() const { return m_scopes; }
    void setScopes(const Scopes &scopes);

    /// The last one that was saved comes first. All panels of the program share them.
    const QList<ZEVFindPanelQuery> &savedQueries() const;
    /// A query without a pattern is not saved; one that is saved already moves to the front.
    void addSavedQuery(const ZEVFindPanelQuery &query);
    void removeSavedQuery(const ZEVFindPanelQuery &query);

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;
    void customizeMenuBeforeDisplay(ZEVTokenField *tokenField, QMenu *menu) override;

public Q_SLOTS:
    virtual void replaceButtonPressed(QObject *sender);
    virtual void replaceAllButtonPressed(QObject *sender);
    void popupFindMenu() override;
    void menuNeedsUpdate(QMenu *menu) override;

Q_SIGNALS:
    void enabledChanged();

protected:
    void viewDidLoad() override;
    void actionButtonPressed(QObject *sender) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadSavedQueries() const;
    void restoreLastQuery();
    void persistLastQuery();
    void persistSavedToDefaults();
    void setUpMenus();
    void setUpButtons();
    void setUpScopeMenu();
    void noteEnabled();
    void updateControls();
    void updateScope();
    void updateScopeMenu(QMenu *menu);
    void updateRecentsMenu();
    void addSavedQueryItem(const ZEVFindPanelQuery &query);

    QPointer<QMenu> m_recentsMenu;
    Scopes m_scopes;
    mutable QList<ZEVFindPanelQuery> m_savedQueriesSet;
    mutable QVariantList m_unreadableQueries; ///< as they are stored, behind the others
    mutable bool m_hasLoadedQueries = false;
    std::pair<bool, bool> m_toldEnabled; ///< to find, to replace
};
