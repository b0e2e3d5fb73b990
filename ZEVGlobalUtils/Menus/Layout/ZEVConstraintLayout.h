// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVLayoutConstraint.h>

#include <QLayout>

#include <memory>
#include <vector>

/// Places widgets by constraints between each of them and the widget that holds the layout; rules between two
/// of the widgets have no effect. What the constraints leave open follows the size hint. Where they leave too
/// little room a centred widget shrinks, down to its minimum.
class ZEV_EXPORT ZEVConstraintLayout : public QLayout {
public:
    explicit ZEVConstraintLayout(QWidget *parent);
    ~ZEVConstraintLayout() override;

    const QList<ZEVLayoutConstraint> &constraints() const { return m_constraints; }
    void addConstraints(const QList<ZEVLayoutConstraint> &constraints);

    void addItem(QLayoutItem *item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    /// Forgets the constraints of the item's widget, too.
    QLayoutItem *takeAt(int index) override;
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;

private:
    QRect frame(const QLayoutItem &item, const QWidget *view, const QRect &rect) const;
    QSize padded(const QLayoutItem &item, QSize size) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    QList<ZEVLayoutConstraint> m_constraints;
};
