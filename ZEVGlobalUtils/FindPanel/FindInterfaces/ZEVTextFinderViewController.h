// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

class ZEVFindBarLayout;
class QAction;

/// The find bar: searches as the user types, while it is shown, and sends its buttons' actions to its delegate.
/// Beside what its base looks for, its view may hold interfaceModePopupButton, replaceContainerView and
/// doneButton.
class ZEV_EXPORT ZEVTextFinderViewController : public ZEVTextFinderUserInterfaceVC {
    Q_OBJECT
    Q_PROPERTY(bool wrapAround READ wrapAround WRITE setWrapAround NOTIFY wrapAroundChanged)

public:
    explicit ZEVTextFinderViewController(QObject *parent = nullptr);
    /// Loads the interface file named \a nibName instead.
    explicit ZEVTextFinderViewController(const QString &nibName, QObject *parent = nullptr);
    ~ZEVTextFinderViewController() override;

    /// Not at first.
    bool showReplace() const override { return m_showReplace; }
    void setShowReplace(bool show) override;

    /// Whether moving goes on at the other end of the text; it does at first.
    bool wrapAround() const override { return m_wrapAround; }
    void setWrapAround(bool wraps);

    /// What the mode pop-up shows as its face.
    QAction *modeSelectorItem() const { return m_modeSelectorItem; }

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;

public Q_SLOTS:
    virtual void matchTypeSelected();
    virtual void toggleWrapAround();
    /// By Escape: ends a long search or, where there is none, hides the interface.
    virtual void cancelOperation();
    virtual void donePressed();
    virtual void navigationSegmentPressed(QObject *sender);
    virtual void replaceSegmentPressed(QObject *sender);
    virtual void updateInterfaceModeMenu();
    virtual void updateInterfaceModeSelectorState();
    void menuNeedsUpdate(QMenu *menu) override;

Q_SIGNALS:
    void wrapAroundChanged();

protected:
    void viewDidLoad() override;
    void actionButtonPressed(QObject *sender) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpModes();
    void setUpFindMenu();
    void searchAsTyped();
    void chooseMode(const QAction *item);
    void updateFindMenu();
    QAction *modeItem(qint64 tag) const;
    QMenu *modeMenu() const;

    QAction *m_modeSelectorItem;
    std::unique_ptr<ZEVFindBarLayout> m_layout;
    bool m_showReplace = false;
    bool m_wrapAround = true;
};
