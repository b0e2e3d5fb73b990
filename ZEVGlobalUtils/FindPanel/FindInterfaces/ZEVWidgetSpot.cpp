// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVWidgetSpot_p.h>

#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>
#include <QSplitter>

#include <memory>

namespace {

/// False where \a parent holds \a old in no way that could be kept.
bool exchange(QWidget *parent, QWidget *old, QWidget *replacement)
{
    if (auto *splitter = qobject_cast<QSplitter *>(parent)) {
        splitter->replaceWidget(splitter->indexOf(old), replacement);
        return true;
    }
    if (auto *window = qobject_cast<QMainWindow *>(parent); window && window->centralWidget() == old) {
        window->takeCentralWidget();
        window->setCentralWidget(replacement);
        return true;
    }
    if (auto *dock = qobject_cast<QDockWidget *>(parent); dock && dock->widget() == old) {
        dock->setWidget(replacement);
        return true;
    }
    const std::unique_ptr<QLayoutItem> item(
        parent->layout() ? parent->layout()->replaceWidget(old, replacement) : nullptr);
    return item != nullptr;
}

} // namespace

ZEVWidgetSpot::ZEVWidgetSpot(QWidget *occupant)
    : m_parent(occupant->isWindow() ? nullptr : occupant->parentWidget())
    , m_geometry(occupant->geometry())
    , m_isShown(occupant->isVisible())
{
    auto placeholder = std::make_unique<QWidget>();
    const bool isHidden = occupant->isHidden() && occupant->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (m_parent && exchange(m_parent, occupant, placeholder.get()))
        m_placeholder = placeholder.release();
    if (m_placeholder)
        occupant->setVisible(!isHidden); // some hide what they let go
}

void ZEVWidgetSpot::put(QWidget *widget) const
{
    if (!m_parent)
        return;
    if (m_placeholder) {
        exchange(m_parent, m_placeholder, widget);
        delete m_placeholder;
    } else {
        widget->setParent(m_parent);
        widget->setGeometry(m_geometry);
    }
    if (m_isShown)
        widget->show();
}
