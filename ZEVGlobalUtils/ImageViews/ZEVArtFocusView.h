// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QWidget>

class QGraphicsOpacityEffect;
class QPropertyAnimation;

/// Shows a toolbar over artwork only while the mouse is over the artwork, or the keyboard in the toolbar.
class ZEV_EXPORT ZEVArtFocusView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool hidesToolbarView READ hidesToolbarView WRITE setHidesToolbarView)
    Q_PROPERTY(qreal toolbarAlpha READ toolbarAlpha WRITE setToolbarAlpha)

public:
    explicit ZEVArtFocusView(QWidget *parent = nullptr);

    /// May lie anywhere and go first. Its graphics effect becomes the view's.
    QWidget *toolbarView() const { return m_toolbarView; }
    void setToolbarView(QWidget *toolbar);

    bool hidesToolbarView() const { return m_hidesToolbarView; }
    /// False shows the toolbar for good.
    void setHidesToolbarView(bool hides);

    /// From 0, unseen, to 1; 1 without a toolbar.
    qreal toolbarAlpha() const;
    void setToolbarAlpha(qreal alpha);
    void setAlphaWithAnimation(qreal alpha);

    /// Whether the mouse is in the view: where it is now or, without \a isCurrent, where the window last
    /// heard of it.
    bool isMouseInsideForCurrentEvent(bool isCurrent) const;

    /// Shows or hides the toolbar at once: the mouse may be inside without ever having entered.
    void updateTrackingAreas();

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void followFocus(QWidget *old, QWidget *now);
    bool isFocusInToolbar() const;

    QPointer<QWidget> m_toolbarView;
    QPointer<QGraphicsOpacityEffect> m_effect;
    QPropertyAnimation *m_alphaAnimation;
    bool m_hidesToolbarView = false;
};
