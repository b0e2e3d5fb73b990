// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVImageView.h>

#include <QMenu>
#include <QPointer>

/// The picture inside an artwork well. Drops and clicks go to the well around it, whose window a drag of the
/// picture never moves.
class ZEV_EXPORT ZEVInnerImageView : public ZEVImageView {
    Q_OBJECT
    Q_PROPERTY(qreal opacity READ opacity WRITE setOpacity)
    Q_PROPERTY(qreal scale READ scale WRITE setScale)

public:
    explicit ZEVInnerImageView(QWidget *parent = nullptr);

    qreal opacity() const { return m_opacity; }
    void setOpacity(qreal opacity);

    /// About the middle, 1 for the picture as it is.
    qreal scale() const { return m_scale; }
    void setScale(qreal scale);

    /// Opens at a right click and with the menu key; not owned, null for none.
    QMenu *menu() const { return m_menu; }
    void setMenu(QMenu *menu);

    /// The well may be smaller than the picture.
    QSize minimumSizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    qreal m_opacity = 1;
    qreal m_scale = 1;
    QPointer<QMenu> m_menu;
};
