// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QPointer>
#include <QWidget>

class ZEVMenuFilterViewController;

/// The room of a search field among the items of a menu: 120 x 30 points, and wider with its menu.
class ZEV_EXPORT ZEVMenuFilterView : public QWidget {
    Q_OBJECT

public:
    explicit ZEVMenuFilterView(QWidget *parent = nullptr);

    ZEVMenuFilterViewController *filter() const;
    void setFilter(ZEVMenuFilterViewController *filter);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    QPointer<ZEVMenuFilterViewController> m_filter;
};
