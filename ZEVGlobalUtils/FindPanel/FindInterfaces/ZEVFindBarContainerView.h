// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVFindBarContainer.h>

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

/// Shows a find bar above a content, and makes it slide in and out where the style animates.
/// Find actions that its content leaves go to the finder whose bar it shows.
class ZEV_EXPORT ZEVFindBarContainerView : public QWidget, public ZEVFindBarContainer {
    Q_OBJECT

public:
    explicit ZEVFindBarContainerView(QWidget *content, QWidget *parent = nullptr);
    ~ZEVFindBarContainerView() override;

    QWidget *contentView() const { return m_content; }

    QWidget *findBarView() const override { return m_findBarView; }
    void setFindBarView(QWidget *view) override;
    bool isFindBarVisible() const override { return m_findBarVisible; }
    void setFindBarVisible(bool visible) override;
    void findBarViewDidChangeHeight() override;
    QWidget *window() const override { return QWidget::window(); }
    void setFinder(ZEVTextFinder *finder) override;

    /// \a sender carries the action in its property "tag".
    Q_INVOKABLE void performTextFinderAction(QObject *sender);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void findBarVisibleChanged(bool visible);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int fittingHeight() const;
    void moveTo(int height);
    void layOut();

    QWidget *m_content;
    QPointer<QWidget> m_findBarView;
    QPointer<ZEVTextFinder> m_finder;
    QVariantAnimation m_animation;
    int m_shownHeight = 0;
    bool m_findBarVisible = false;
};
