// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderUserInterface.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointer>

#include <memory>

class QComboBox;
struct ZEVFindControls;

/// The controller behind a find interface: its two pattern fields, the pop-up of matching types and the query
/// that is edited with them. Its view is loaded when it is first asked for, from an interface file named
/// after the class, in which the controls are found by their object names (findTokenField,
/// replaceTokenField, matchingTypeSelector, numberOfMatchesLabel, messageLabel, findMenuButton,
/// replaceMenuButton, and any number of buttons with an action number as property "tag"; none is a must).
class ZEV_EXPORT ZEVTextFinderUserInterfaceVC : public ZEVPatternTokens, public ZEVTextFinderUserInterface {
    Q_OBJECT
    Q_PROPERTY(ZEVFindPanelQuery query READ query NOTIFY queryChanged)
    Q_PROPERTY(QVariantList searchPattern READ searchPattern NOTIFY queryChanged)
    Q_PROPERTY(QVariantList replacePattern READ replacePattern NOTIFY replacePatternChanged)
    Q_PROPERTY(std::optional<ZEVFindPanelQuery> lastQuery READ lastQuery NOTIFY lastQueryChanged)
    Q_PROPERTY(bool searchTermUnchanged READ searchTermUnchanged NOTIFY searchTermUnchangedChanged)
    Q_PROPERTY(std::optional<qsizetype> numberOfMatches READ numberOfMatches NOTIFY numberOfMatchesChanged)
    Q_PROPERTY(bool showReplace READ showReplace WRITE setShowReplace)
    Q_PROPERTY(bool hasFocus READ hasFocus)

public:
    explicit ZEVTextFinderUserInterfaceVC(QObject *parent = nullptr);
    /// Loads the interface file named \a nibName instead.
    explicit ZEVTextFinderUserInterfaceVC(const QString &nibName, QObject *parent = nullptr);
    ~ZEVTextFinderUserInterfaceVC() override;

    /// Goes with the controller, whoever has taken it in; it may own the controller in turn.
    QWidget *view() override;

    ZEVTextFinderUserInterfaceDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> delegate) override;

    /// What would be searched for now: its pattern is what stands in the find field.
    ZEVFindPanelQuery query() const;
    /// As it was when last searched for; nil before that.
    const std::optional<ZEVFindPanelQuery> &lastQuery() const { return m_lastQuery; }
    void setSearchPattern(const std::optional<QVariantList> &pattern);
    void setMatchingType(qint64 matchingType);
    void setCaseInsensitiveSearch(bool insensitive);
    void setScope(const std::shared_ptr<ZEVFindPanelScope> &scope);
    /// Takes over a copy of the scope, the case option, the matching type and the pattern.
    void applyQuery(const ZEVFindPanelQuery &query);

    /// Applies the query, gives the find field the focus and searches, on the next turn of the event loop.
    void performSearchForQuery(const ZEVFindPanelQuery &query);

    /// Hands the query to the delegate. An expression that is none is told in messageLabel, since an alert at
    /// every key press would be in the way, and presented to the user where there is no such label.
    void performSearch();
    void searchIfChanged() override;
    /// Kept: never with a scope, unless its copy is itself (see ZEVFindPanelSharedScope).
    bool searchTermUnchanged() const { return m_lastQuery && query() == *m_lastQuery; }

    QVariantList searchPattern() const;
    QVariantList replacePattern() const override;

    /// The tokens that can be inserted, in groups. Those of the find field are the ones that either field
    /// understands (kept: so a line break is offered for replacing, but its text is not made a token again).
    const Groups &patternItems() const { return groups(); }
    void setPatternItems(const Groups &items) { setGroups(items); }
    const Groups &replacePatternItems() const { return m_replacePatternItems; }
    void setReplacePatternItems(const Groups &items) { m_replacePatternItems = items; }

    std::optional<qsizetype> numberOfMatches() const { return m_numberOfMatches; }
    void setNumberOfMatches(std::optional<qsizetype> number) override;
    void setSearchLimitReached(bool reached) override;
    void setSearching(bool searching) override;

    bool hasFocus() const override;
    virtual bool showReplace() const { return m_showReplace; }
    void setShowReplace(bool show) override { m_showReplace = show; }
    void focusFieldForAction(qint64 action) override;

    /// Reads the find pasteboard into the find field if it has changed, or writes the field's pattern to it,
    /// where that is the one that the user has edited last.
    void syncWithFindPboard(bool write);

    ZEVTokenField *findTokenField() const;
    ZEVTokenField *replaceTokenField() const;
    QComboBox *matchingTypeSelector() const;

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;

public Q_SLOTS:
    virtual void findTokenFieldAction();
    virtual void replaceTokenFieldAction();

    /// Open the menus of the fields, in the small system font.
    virtual void popupFindMenu();
    virtual void popupReplaceMenu();

    /// Fill the fields' insertion menus; menuNeedsUpdate() does so for either of the two, and is called before
    /// they open.
    virtual void menuNeedsUpdate(QMenu *menu);
    virtual void updateFindTokenFieldMenu();
    virtual void updateReplaceTokenFieldMenu();

Q_SIGNALS:
    void queryChanged();
    void lastQueryChanged();
    void searchTermUnchangedChanged(); ///< or not: one of the two that it compares is another one
    void replacePatternChanged();
    void numberOfMatchesChanged();

protected:
    /// Sets up the view once it is loaded.
    virtual void viewDidLoad();

    /// A button with the tag of an action.
    virtual void actionButtonPressed(QObject *sender);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

    const ZEVFindControls &controls() const { return *m_controls; }
    bool isShown() const;
    void performAction(qint64 action);
    /// Ends a search that takes so long that the user has been told. False when there is none.
    bool stopLongSearch();
    /// Opens \a menu below the field, in the small system font.
    void popUpMenuOfField(QMenu *menu, ZEVTokenField *field);

private:
    class Busy;
    void loadView();
    void setUpFields();
    void setUpField(ZEVTokenField *field);
    void setUpButtons();
    void setUpMatchingTypes();
    void noteEditedPattern();
    void readPboard(const QString &string);
    void showMatchingType();
    void showCount();
    void showMessage(const QString &message);
    void updateColors();
    QString countText() const;

    QString m_nibName;
    QPointer<QWidget> m_view;
    ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> m_delegate;
    std::unique_ptr<ZEVFindControls> m_controls;
    ZEVFindPanelQuery m_query; ///< without its pattern, where there is a field to hold that
    std::optional<ZEVFindPanelQuery> m_lastQuery;
    QMetaObject::Connection m_scopeTitle;
    Groups m_replacePatternItems;
    std::optional<qsizetype> m_numberOfMatches;
    QElapsedTimer m_sinceCountShown;
    QBasicTimer m_countTimer;
    QBasicTimer m_longSearchTimer;
    qint64 m_lastUsedFindPboardChangeCount = -1;
    int m_calls = 0; ///< of the delegate, that are under way
    bool m_showReplace = true;
    bool m_isReadingPboard = false;
    bool m_isLongSearch = false;
};
