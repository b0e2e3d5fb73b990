// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkActions_p.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QKeyEvent>
#include <QMenu>

namespace {

struct Action {
    const char *name;
    QStringView title; ///< in the menu, in this order; empty for what is not there
    QKeySequence::StandardKey standardKey;
    QList<int> keys;
    bool (*isEnabled)(const ZEVDragImageView &);
};

bool hasImage(const ZEVDragImageView &well) { return !well.imageView()->image().isNull(); }
bool canRemove(const ZEVDragImageView &well) { return well.isEditable() && hasImage(well); }
bool isEditable(const ZEVDragImageView &well) { return well.isEditable(); }
bool isImporting(const ZEVDragImageView &well) { return well.isImporting(); }
bool isAlways(const ZEVDragImageView &) { return true; }

bool canPaste(const ZEVDragImageView &well)
{
    return well.isEditable()
        && ZEVDragImageView::canReadDataFromPasteboard(ZEVPasteboard::generalPasteboard());
}

const QList<Action> &table()
{
    constexpr auto NoKey = QKeySequence::UnknownKey;
    static const QList<Action> actions{
        {"cut", u"Cut", QKeySequence::Cut, {}, canRemove},
        {"copy", u"Copy", QKeySequence::Copy, {}, hasImage},
        {"paste", u"Paste", QKeySequence::Paste, {}, canPaste},
        {"clearImage", u"Remove", NoKey, {Qt::Key_Delete, Qt::Key_Backspace}, canRemove},
        {"browse", {}, NoKey, {}, isEditable},
        {"togglePreviewPanel", {}, NoKey, {Qt::Key_Space}, isAlways},
        {"cancelImports", {}, NoKey, {Qt::Key_Escape}, isImporting},
    };
    return actions;
}

const Action *find(const QByteArray &name)
{
    const auto found =
        std::ranges::find(table(), name, [](const Action &action) { return QByteArray(action.name); });
    return found == table().end() ? nullptr : &*found;
}

} // namespace

QMenu *ZEVArtworkActions::makeMenu(ZEVDragImageView *well)
{
    auto *const menu = new QMenu(well);
    for (const Action &action : table()) {
        if (action.title.isEmpty())
            continue;
        if (qstrcmp(action.name, "clearImage") == 0)
            menu->addSeparator();
        menu->addAction(ZEVGlobalHelper::localizedStringForKey(action.title))
            ->setData(QByteArray(action.name));
    }
    QObject::connect(menu, &QMenu::aboutToShow, well, [well, menu] {
        for (QAction *item : menu->actions())
            item->setEnabled(item->isSeparator() || isEnabled(*well, item->data().toByteArray()));
    });
    QObject::connect(menu, &QMenu::triggered, well,
                     [well](const QAction *item) { perform(well, item->data().toByteArray()); });
    return menu;
}

bool ZEVArtworkActions::isEnabled(const ZEVDragImageView &well, const QByteArray &action)
{
    if (const Action *const known = find(action))
        return known->isEnabled(well);
    return well.metaObject()->indexOfSlot(QByteArray(action + "()").constData()) >= 0;
}

QByteArray ZEVArtworkActions::actionForKey(const ZEVDragImageView &well, const QKeyEvent &event)
{
    for (const Action &action : table()) {
        const bool isStandard =
            action.standardKey != QKeySequence::UnknownKey && event.matches(action.standardKey);
        const bool isPlain = event.modifiers() == Qt::NoModifier && action.keys.contains(event.key());
        if (isStandard || (isPlain && (event.key() != Qt::Key_Escape || action.isEnabled(well))))
            return action.name;
    }
    return {};
}

bool ZEVArtworkActions::perform(ZEVDragImageView *well, const QByteArray &action)
{
    return !action.isEmpty() && isEnabled(*well, action)
        && QMetaObject::invokeMethod(well, action.constData());
}
