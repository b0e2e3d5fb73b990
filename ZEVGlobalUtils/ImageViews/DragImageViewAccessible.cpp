// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/DragImageViewAccessible_p.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *const view =
        className == QLatin1StringView("ZEVDragImageView") ? qobject_cast<QWidget *>(object) : nullptr;
    return view ? new DragImageViewAccessible(view) : nullptr;
}

} // namespace

void DragImageViewAccessible::install()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

DragImageViewAccessible::DragImageViewAccessible(QWidget *view)
    : QAccessibleWidget(view, QAccessible::Graphic)
{
}
