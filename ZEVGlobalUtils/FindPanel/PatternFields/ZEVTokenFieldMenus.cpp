// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItemHeadings.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMenu>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int MenuFontPixels = 12;
constexpr int MenuDistance = 6;

// Where the insertion menu opens, below the field.
constexpr int TokenMenuDistance = 4;
constexpr int TokenMenuDistanceOfLargeFields = -2;

// What an item does, for whoever has to say whether it can.
constexpr char ActionKey[] = "zevAction";
const QString SavePattern = u"savePattern"_s;
const QString RemovePattern = u"removePattern"_s;

std::unique_ptr<QMenu> madeMenu()
{
    auto menu = std::make_unique<QMenu>();
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(MenuFontPixels);
    menu->setFont(font);
    return menu;
}

} // namespace

ZEVTokenFieldMenuDelegate::~ZEVTokenFieldMenuDelegate() = default;
void ZEVTokenFieldMenuDelegate::customizeMenuBeforeDisplay(ZEVTokenField *, QMenu *) { }
bool ZEVTokenFieldMenuDelegate::tokenFieldShowCustomAddTokensMenu(ZEVTokenField *) { return false; }

void ZEVTokenField::setUpMenus()
{
    m_patternsMenu = madeMenu();
    m_dropDownMenu = madeMenu();
    for (QMenu *menu : {m_patternsMenu.get(), m_dropDownMenu.get()})
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { menuNeedsUpdate(menu); });
    m_addTokensItem = new QAction(ZEVGlobalHelper::localizedStringForKey(u"Insert Pattern"), this);
    m_addTokensItem->setShortcut(Qt::CTRL | Qt::Key_Plus); // shown; the field itself listens to the key
    connect(m_addTokensItem, &QAction::triggered, this, &ZEVTokenField::popUpMenu);
}

QMenu *ZEVTokenField::menu() const { return m_menu; }
void ZEVTokenField::setMenu(QMenu *menu) { m_menu = menu; }

void ZEVTokenField::menuNeedsUpdate(QMenu *menu)
{
    if (menu == m_patternsMenu.get())
        patternsMenuNeedsUpdate();
    else if (menu == m_dropDownMenu.get())
        dropDownMenuNeedsUpdate();
}

bool ZEVTokenField::isSaved() const { return m_patternsSet.contains(patternStringValue()); }

bool ZEVTokenField::validateMenuItem(const QAction *item) const
{
    const QString action = item->property(ActionKey).toString();
    if (action == SavePattern)
        return !patternStringValue().isEmpty() && !isSaved();
    if (action == RemovePattern)
        return isSaved();
    return true;
}

void ZEVTokenField::patternsMenuNeedsUpdate()
{
    m_patternsMenu->clear();
    for (const QString &patternString : std::as_const(m_patternsSet))
        addPatternItem(patternString);
    if (!m_patternsSet.isEmpty())
        m_patternsMenu->addSeparator();
    const bool saved = isSaved();
    QAction *item = m_patternsMenu->addAction(
        ZEVGlobalHelper::localizedStringForKey(saved ? u"Remove From Saved" : u"Save Current"), this,
        saved ? &ZEVTokenField::removePattern : &ZEVTokenField::savePattern);
    item->setProperty(ActionKey, saved ? RemovePattern : SavePattern);
    item->setEnabled(validateMenuItem(item));
}

void ZEVTokenField::addPatternItem(const QString &patternString)
{
    const QVariantList pattern = conversionPatternForPatternString(patternString);
    if (pattern.isEmpty())
        return;
    QAction *item =
        m_patternsMenu->addAction(QString(), this, [this] { usePattern(qobject_cast<QAction *>(sender())); });
    ZEVMenuItem::setAttributedTitle(item, ZEVArrayPatternDisplaySupport::patternDisplayString(pattern));
    ZEVMenuItem::setRepresentedObject(item, pattern);
    ZEVMenuItem::setState(item, patternString == patternStringValue() ? ZEVMenuItem::On : ZEVMenuItem::Off);
    ZEVMenuItem::setIndentationLevel(item, 1);
}

/// Kept: with a patterns menu that somebody else fills, the header still asks for the field's own patterns.
void ZEVTokenField::dropDownMenuNeedsUpdate()
{
    m_dropDownMenu->clear();
    m_dropDownMenu->addAction(m_addTokensItem);
    Q_EMIT m_patternsMenu->aboutToShow();
    const QList<QAction *> patternItems = m_patternsMenu->actions();
    if (!patternItems.isEmpty())
        m_dropDownMenu->addSeparator();
    if (!m_patternsSet.isEmpty())
        m_dropDownMenu->addAction(ZEVMenuItemHeadings::disabledItemWithTitle(
            ZEVGlobalHelper::localizedStringForKey(u"Saved Patterns"), m_dropDownMenu.get()));
    for (QAction *item : patternItems)
        m_dropDownMenu->addAction(ZEVMenuItem::copyOfItem(item, m_dropDownMenu.get()));
    if (m_menuDelegate)
        m_menuDelegate->customizeMenuBeforeDisplay(this, m_dropDownMenu.get());
}

void ZEVTokenField::usePattern(QAction *sender)
{
    setObjectValue(ZEVMenuItem::representedObject(sender).toList());
    if (!m_selectsTextWhenFocused)
        moveEditorCaretToEndOfStringIfNeeded();
    else if (isBeingEdited())
        selectAll();
}

/// The first item stands where the point is, so the menu begins a little above it.
void ZEVTokenField::moveDown()
{
    const int above =
        m_patternsMenu->style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, m_patternsMenu.get())
        + m_patternsMenu->style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, m_patternsMenu.get());
    m_patternsMenu->popup(mapToGlobal(QPoint(0, height() + MenuDistance - above)));
}

void ZEVTokenField::popUpRecentsMenu()
{
    m_dropDownMenu->popup(mapToGlobal(QPoint(0, height() + MenuDistance)));
}

void ZEVTokenField::popUpMenu()
{
    if (m_menuDelegate && m_menuDelegate->tokenFieldShowCustomAddTokensMenu(this))
        return;
    if (!window()->isVisible())
        return;
    if (!window()->isActiveWindow()) {
        window()->activateWindow();
        window()->raise();
    }
    if (!ensureFieldEditor() || !m_menu)
        return;
    ensureCursorVisible();
    QTextCursor caret = textCursor();
    caret.setPosition(caret.selectionStart());
    const int x = viewport()->mapTo(this, cursorRect(caret).topLeft()).x();
    const int distance =
        controlSize() == ZEVControlSize::Large ? TokenMenuDistanceOfLargeFields : TokenMenuDistance;
    m_menu->popup(mapToGlobal(QPoint(x, height() + distance)));
}

/// The usual menu of an editor, and the way to the tokens.
void ZEVTokenField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (m_menu && !isReadOnly()) {
        menu->addSeparator();
        menu->addAction(m_addTokensItem);
    }
    menu->popup(event->globalPos());
}
