// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
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
const QString UsePattern = u"usePattern"_s;

/// An item of blanks alone would look like an empty one.
ZEVAttributedString shownTitle(const QVariantList &pattern)
{
    const ZEVAttributedString title = ZEVArrayPatternDisplaySupport::patternDisplayString(pattern);
    const bool isBlank = title.formats().isEmpty() && title.string().trimmed().isEmpty();
    return isBlank ? ZEVAttributedString(QString(title.length(), QChar(0x2423))) : title;
}

QMenu *madeMenu()
{
    auto *menu = new QMenu;
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(MenuFontPixels);
    menu->setFont(font);
    return menu;
}

} // namespace

ZEVTokenFieldMenuDelegate::~ZEVTokenFieldMenuDelegate() = default;
void ZEVTokenFieldMenuDelegate::customizeMenuBeforeDisplay(ZEVTokenField *, QMenu *) { }
bool ZEVTokenFieldMenuDelegate::tokenFieldShowCustomAddTokensMenu(ZEVTokenField *) { return false; }

void ZEVTokenField::Later::operator()(QMenu *menu) const
{
    ZEVMenuBuilder::setMenuBuilder(menu, {});
    menu->deleteLater();
}

void ZEVTokenField::setUpMenus()
{
    m_patternsMenu.reset(madeMenu());
    m_dropDownMenu.reset(madeMenu());
    for (QMenu *menu : {m_patternsMenu.get(), m_dropDownMenu.get()})
        ZEVMenuBuilder::setMenuBuilder(menu, [this](QMenu *built) { menuNeedsUpdate(built); });
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
    if (action == UsePattern)
        return !isReadOnly();
    return item != m_addTokensItem || !isReadOnly();
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
    ZEVMenuItem::setAttributedTitle(item, shownTitle(pattern));
    ZEVMenuItem::setRepresentedObject(item, pattern);
    ZEVMenuItem::setState(item, patternString == patternStringValue() ? ZEVMenuItem::On : ZEVMenuItem::Off);
    ZEVMenuItem::setIndentationLevel(item, 1);
    item->setProperty(ActionKey, UsePattern);
    item->setEnabled(validateMenuItem(item));
}

/// Kept: with a patterns menu that somebody else fills, the header still asks for the field's own patterns.
void ZEVTokenField::dropDownMenuNeedsUpdate()
{
    m_dropDownMenu->clear();
    m_addTokensItem->setEnabled(validateMenuItem(m_addTokensItem));
    m_dropDownMenu->addAction(m_addTokensItem);
    ZEVMenuBuilder::buildMenu(m_patternsMenu.get());
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
    if (isReadOnly() || !sender)
        return;
    replaceValue(ZEVMenuItem::representedObject(sender).toList(), ZEVValueStep::User);
    if (!m_selectsTextWhenFocused)
        moveEditorCaretToEndOfStringIfNeeded();
    else if (isBeingEdited())
        selectAll();
    reportValue();
}

/// The first item stands where the point is, so the menu begins a little above it.
void ZEVTokenField::moveDown()
{
    const int above =
        m_patternsMenu->style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, m_patternsMenu.get())
        + m_patternsMenu->style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, m_patternsMenu.get());
    ZEVMenuBuilder::popUpMenu(m_patternsMenu.get(), this, {0, height() + MenuDistance - above});
}

void ZEVTokenField::popUpRecentsMenu()
{
    ZEVMenuBuilder::popUpMenu(m_dropDownMenu.get(), this, {0, height() + MenuDistance});
}

void ZEVTokenField::popUpMenu()
{
    const QPointer guard(this);
    if (m_menuDelegate && m_menuDelegate->tokenFieldShowCustomAddTokensMenu(this))
        return;
    if (!guard || isReadOnly() || !window()->isVisible())
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
    ZEVMenuBuilder::popUpMenu(m_menu, this, {isRightToLeft() ? width() - x : x, height() + distance});
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
