// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QList>

/// One widget behind the other, and on the next line where the width does not do. Widgets of a line share its
/// middle.
class ZEVWrappingLayout : public QLayout {
public:
    explicit ZEVWrappingLayout(QWidget *parent);
    ~ZEVWrappingLayout() override;

    void prependWidget(QWidget *widget);
    void addItem(QLayoutItem *item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return laidOut({0, 0, width, 0}, false); }
    QSize sizeHint() const override; ///< on one line
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    QList<QLayoutItem *> lineFrom(int first, int width) const;
    void placeLine(const QList<QLayoutItem *> &line, const QRect &place) const;
    int laidOut(const QRect &rect, bool places) const;

    QList<QLayoutItem *> m_items;
};
