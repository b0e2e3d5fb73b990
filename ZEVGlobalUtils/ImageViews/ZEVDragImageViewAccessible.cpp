// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageViewAccessible_p.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    auto *const view =
        className == QLatin1StringView("ZEVDragImageView") ? qobject_cast<QWidget *>(object) : nullptr;
    return view ? new ZEVDragImageViewAccessible(view) : nullptr;
}

} // namespace

void ZEVDragImageViewAccessible::install()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

ZEVDragImageViewAccessible::ZEVDragImageViewAccessible(QWidget *view)
    : QAccessibleWidget(view, QAccessible::Graphic)
{
}
