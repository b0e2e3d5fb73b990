// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVControlSize.h>

#include <QObject>
#include <QPointer>

#include <memory>

class ZEVMenuTitleFilter;
class QAction;
class QKeyEvent;
class QLineEdit;
class QMenu;
class QWidgetAction;
class ZEVMenuFilterClient;
class ZEVMenuFilterDelegate;
class ZEVMenuFilterView;

/// A search field as an item of a menu, so that typing narrows the items below it. Down goes from the field
/// into the items when the delegate says that there are any, and Up back from the first one, Return chooses
/// the only one, Escape clears what is typed and closes the menu when there is nothing; what is typed while an
/// item is reached goes to the field. All other keys are the menu's.
class ZEV_EXPORT ZEVMenuFilterViewController : public QObject {
    Q_OBJECT

public:
    /// The size is that of the more button; the search field is small whatever it is.
    explicit ZEVMenuFilterViewController(ZEVControlSize controlSize, QObject *parent = nullptr);
    ~ZEVMenuFilterViewController() override;

    bool hasNeedle() const { return m_hasNeedle; }
    bool filterCleared() const { return !m_hasNeedle; }
    QString needle() const;

    /// Of the last needle that was not empty; nil before there was one. Made when it is asked for.
    const std::optional<ZEVRegularExpression> &regex() const;

    /// The search field has the focus when the menu opens, and after the more action.
    bool autofocus() const { return m_autofocus; }
    void setAutofocus(bool autofocus) { m_autofocus = autofocus; }

    QLineEdit *searchField() const { return m_searchField; }

    /// For the host to put into its menu, first of all. Both belong to the controller.
    QWidgetAction *filterMenuItem() const { return m_filterMenuItem; }
    QWidgetAction *moreMenuItem() const { return m_moreMenuItem; }

    /// The one that holds the filter's item; null while there is none.
    QMenu *menu() const;

    /// Kept: a plain reference, neither owned nor watched. It must outlive the controller or be taken back.
    ZEVMenuFilterDelegate *delegate() const { return m_delegate; }
    void setDelegate(ZEVMenuFilterDelegate *delegate) { m_delegate = delegate; }

    void controlTextDidChange() { updateRegexAndNotifyDelegate(); }
    void updateRegexAndNotifyDelegate();
    void clearFilter(); ///< tells nobody
    void clearFilterAndNotifyDelegate();
    void showMoreAction();

    /// Those that pass what is typed, in their order; all of them when nothing is. A title passes that has the
    /// words of the string in their order and in one line, both case-folded in full (Unicode, 3.13): in linear
    /// time, and for "i" also "ﬁsh" and "İstanbul", which the string's expression would not match. A submenu
    /// passes also for the sake of what is in it, a separator between two items that pass.
    QList<QAction *> filteredItems(const QList<QAction *> &items) const;
    QList<QAction *> filteredItems(const QList<QAction *> &items, const QString &forSearchString) const;

    /// The same with an expression of one's own, which is run: titles pass that it matches. Kept: without one
    /// the string is looked for, whatever the case and the diacritics, within as many UTF-16 units of a title
    /// as it has itself; std::out_of_range for a shorter title.
    QList<QAction *> filteredItems(const QList<QAction *> &items, const QString &forSearchString,
                                   const std::optional<ZEVRegularExpression> &regex) const;

    std::unique_ptr<ZEVMenuFilterClient> newClient();
    /// It is the controller's delegate then, so the caller must keep it.
    std::unique_ptr<ZEVMenuFilterClient> newDelegatedClient();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class ZEVMenuFilterView;
    void makeFilterItem();
    void makeMoreItem(ZEVControlSize controlSize);
    void viewDidShow();
    void watchKeysOfMenu();

    bool keyInField(QKeyEvent *event);
    bool keyInMenu(QKeyEvent *event);
    bool leaveField(QKeyEvent *event);
    bool clearByKey();

    QLineEdit *m_searchField;
    QPointer<QMenu> m_keptMenu; ///< whose keys come here
    QWidgetAction *m_filterMenuItem;
    QWidgetAction *m_moreMenuItem;
    ZEVMenuFilterDelegate *m_delegate = nullptr;
    QString m_regexNeedle; ///< the last one that was not empty
    mutable std::optional<ZEVRegularExpression> m_regex;
    std::unique_ptr<ZEVMenuTitleFilter> m_titles;
    bool m_hasNeedle = false;
    bool m_autofocus = false;
};
