// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVControlSize.h>

#include <QObject>

#include <memory>

class MenuTitleFilter;
class QAction;
class QKeyEvent;
class QLineEdit;
class QMenu;
class QWidgetAction;
class ZEVMenuFilterClient;
class ZEVMenuFilterDelegate;
class ZEVMenuFilterView;

/// A search field as an item of a menu, so that typing narrows the items below it. Down goes from the field
/// into the items and Up back from the first one, Return chooses the only one, Escape clears what is typed
/// and closes the menu when there is nothing; what is typed while an item is reached goes to the field.
class ZEV_EXPORT ZEVMenuFilterViewController : public QObject {
    Q_OBJECT

public:
    /// The size is that of the more button; the search field is small whatever it is.
    explicit ZEVMenuFilterViewController(ZEVControlSize controlSize, QObject *parent = nullptr);
    ~ZEVMenuFilterViewController() override;

    bool hasNeedle() const { return m_hasNeedle; }
    bool filterCleared() const { return !m_hasNeedle; }
    QString needle() const;

    /// Of the last needle that was not empty; nil before there was one.
    const std::optional<ZEVRegularExpression> &regex() const { return m_regex; }

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

    /// Those that pass what is typed, in their order; all of them when nothing is.
    QList<QAction *> filteredItems(const QList<QAction *> &items) const;
    QList<QAction *> filteredItems(const QList<QAction *> &items, const QString &forSearchString) const;

    /// Titles pass that \a regex matches; a submenu also for the sake of what is in it, a separator between
    /// two items that pass. The string's own expression takes linear time. Kept: without an expression the
    /// string is looked for, whatever the case and the diacritics, within as many UTF-16 units of a title as
    /// it has itself; std::out_of_range for a shorter title.
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

    bool keyInField(int key);
    bool keyInMenu(QKeyEvent *event);
    bool leaveField(int key);
    bool clearByKey();

    QLineEdit *m_searchField;
    QWidgetAction *m_filterMenuItem;
    QWidgetAction *m_moreMenuItem;
    ZEVMenuFilterDelegate *m_delegate = nullptr;
    std::optional<ZEVRegularExpression> m_regex;
    std::unique_ptr<MenuTitleFilter> m_titles;
    bool m_hasNeedle = false;
    bool m_autofocus = false;
};
