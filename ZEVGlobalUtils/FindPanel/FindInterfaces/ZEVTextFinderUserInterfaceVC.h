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

class QComboBox;
class QLabel;

/// The controller behind a find interface: its two pattern fields, the pop-up of matching types and the query
/// that is edited with them. Its view is loaded when it is first asked for, from an interface file named
/// after the class, in which the controls are found by their object names (findTokenField,
/// replaceTokenField, matchingTypeSelector, numberOfMatchesLabel, messageLabel; none is a must).
class ZEV_EXPORT ZEVTextFinderUserInterfaceVC : public ZEVPatternTokens, public ZEVTextFinderUserInterface {
    Q_OBJECT
    Q_PROPERTY(bool showReplace READ showReplace WRITE setShowReplace)
    Q_PROPERTY(bool searchTermUnchanged READ searchTermUnchanged NOTIFY queryChanged)
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

    const ZEVFindPanelQuery &query() const { return m_query; }
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
    void performSearch();
    bool searchTermUnchanged() const { return m_lastQuery && m_query == *m_lastQuery; }

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

    bool hasFocus() const override;
    virtual bool showReplace() const { return m_showReplace; }
    void setShowReplace(bool show) override { m_showReplace = show; }
    void focusFieldForAction(qint64 action) override;

    /// Reads the find pasteboard into the find field if it has changed, or writes the field's pattern to it.
    void syncWithFindPboard(bool write);

    ZEVTokenField *findTokenField() const;
    ZEVTokenField *replaceTokenField() const;
    QComboBox *matchingTypeSelector() const;

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;

Q_SIGNALS:
    /// The query, or whether it is the one that was last searched for.
    void queryChanged();
    void numberOfMatchesChanged();

protected:
    /// Sets up the view once it is loaded.
    virtual void viewDidLoad();

    void timerEvent(QTimerEvent *event) override;

    virtual void findTokenFieldAction();
    virtual void replaceTokenFieldAction();
    void performAction(qint64 action);
    /// Opens \a menu below the field, in the small system font.
    void popUpMenuOfField(QMenu *menu, ZEVTokenField *field);

private:
    void loadView();
    void setUpFields();
    void setUpMatchingTypes();
    void showQuery();
    void showCount();
    void showMessage(const QString &message);
    QString countText() const;

    QString m_nibName;
    QPointer<QWidget> m_view;
    ZEVWeakRef<ZEVTextFinderUserInterfaceDelegate> m_delegate;
    QPointer<ZEVTokenField> m_findTokenField;
    QPointer<ZEVTokenField> m_replaceTokenField;
    QPointer<QComboBox> m_matchingTypeSelector;
    QPointer<QLabel> m_numberOfMatchesLabel;
    QPointer<QLabel> m_messageLabel;
    ZEVFindPanelQuery m_query;
    std::optional<ZEVFindPanelQuery> m_lastQuery;
    Groups m_replacePatternItems;
    std::optional<qsizetype> m_numberOfMatches;
    QElapsedTimer m_sinceCountShown;
    QBasicTimer m_countTimer;
    qint64 m_lastUsedFindPboardChangeCount = -1;
    bool m_showReplace = true;
    bool m_searchLimitReached = false;
};
