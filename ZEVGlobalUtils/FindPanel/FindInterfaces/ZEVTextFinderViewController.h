// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

class QAbstractButton;
class QAction;
class ZEVTextFinderBorderlessPopUpButton;

/// The find bar: searches as the user types, and sends its buttons' actions to its delegate. Beside what its
/// base looks for, its view may hold findMenuButton, replaceMenuButton, interfaceModePopupButton,
/// replaceContainerView, doneButton, and any number of buttons with an action number as property "tag".
class ZEV_EXPORT ZEVTextFinderViewController : public ZEVTextFinderUserInterfaceVC {
    Q_OBJECT
    Q_PROPERTY(bool wrapAround READ wrapAround WRITE setWrapAround NOTIFY wrapAroundChanged)

public:
    explicit ZEVTextFinderViewController(QObject *parent = nullptr);
    ~ZEVTextFinderViewController() override;

    /// Not at first.
    bool showReplace() const override { return m_showReplace; }
    void setShowReplace(bool show) override;

    /// Whether moving goes on at the other end of the text; it does at first.
    bool wrapAround() const { return m_wrapAround; }
    void setWrapAround(bool wraps);
    void toggleWrapAround() { setWrapAround(!m_wrapAround); }

    /// What the mode pop-up shows as its face.
    QAction *modeSelectorItem() const { return m_modeSelectorItem; }

    bool doCommandBySelector(OEXTokenField *control, ZEVTextCommand command) override;

Q_SIGNALS:
    void wrapAroundChanged();

protected:
    void viewDidLoad() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    void matchTypeSelected();
    void cancelOperation();
    void donePressed();
    void navigationSegmentPressed(const QObject *sender);
    void replaceSegmentPressed(const QObject *sender);

private:
    void setUpMenuButtons();
    void setUpModes();
    void alignReplaceRow();
    void setUpSegments();
    void updateInterfaceModeMenu();
    void updateInterfaceModeSelectorState();
    void chooseMode(const QAction *item);
    void updateFindMenu();
    void popupFindMenu();
    void popupReplaceMenu();
    QAction *modeItem(qint64 tag) const;

    QAction *m_modeSelectorItem;
    QPointer<QAbstractButton> m_findMenuButton;
    QPointer<QAbstractButton> m_replaceMenuButton;
    QPointer<ZEVTextFinderBorderlessPopUpButton> m_interfaceModePopupButton;
    QPointer<QWidget> m_replaceContainerView;
    bool m_showReplace = true;
    bool m_wrapAround = true;
};
