// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPattern_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternConversion_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

ZEVPatternConversion::Fidelity fidelity(bool lossless)
{
    return lossless ? ZEVPatternConversion::Fidelity::Lossless : ZEVPatternConversion::Fidelity::AsDescribed;
}

/// The key for inserting a token: Ctrl with whatever key types a plus, on its shift level too, or with the key
/// of an equals sign, which on many keyboards is the same.
bool asksForMenu(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Plus)
        return (modifiers & ~(Qt::ShiftModifier | Qt::GroupSwitchModifier)) == Qt::ControlModifier;
    if (modifiers == Qt::ControlModifier)
        return event.key() == Qt::Key_Equal;
    return modifiers == (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)
        && event.key() == Qt::Key_P;
}

/// In every part, while items are equal that would be searched for alike.
bool isSameItem(const ZEVPatternItem &one, const ZEVPatternItem &other)
{
    const auto parts = [](const ZEVPatternItem &item) {
        return std::tuple(item.title(), item.tokenTitle(), item.editingString(), item.regexString(),
                          item.regexTemplateString(), item.valueTransformerName(), item.metadataKeyPath(),
                          item.representsNumericValue(), item.representsDate());
    };
    return parts(one) == parts(other);
}

bool hasToken(const QVariantList &pattern)
{
    return std::ranges::any_of(pattern,
                               [](const QVariant &object) { return !ZEVPattern::literalText(object); });
}

/// Nothing for a value of another type, whoever stored it.
QStringList storedStrings(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QVariantList
        ? value.toStringList()
        : QStringList();
}

} // namespace

ZEVTokenField::ZEVTokenField(QWidget *parent)
    : ZEVTokenField(std::make_unique<ZEVTokenFieldCell>(), parent)
{
}

ZEVTokenField::ZEVTokenField(std::unique_ptr<ZEVTokenFieldCell> cell, QWidget *parent)
    : OEXTokenField(std::move(cell), parent)
{
    setTokenizingCharacterSet(u"%"_s);
    setUpMenus();
    connect(this, &OEXTokenField::objectValueChanged, this, &ZEVTokenField::patternStringValueChanged);
}

ZEVTokenField::~ZEVTokenField() = default;

void ZEVTokenField::setAutosaveName(const QString &name)
{
    m_autosaveName = name;
    if (!name.isEmpty())
        loadDefaults();
}

QString ZEVTokenField::patternsDefaultsKey() const { return m_autosaveName + u".recentPatterns"; }

void ZEVTokenField::loadDefaults()
{
    if (m_autosaveName.isEmpty())
        return;
    const ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    const QVariant lastUsed = defaults->objectForKey(lastUsedPatternDefaultsKey());
    setPatterns(storedStrings(defaults->objectForKey(patternsDefaultsKey())));
    // Last, for it is told of.
    setPatternStringValue(lastUsed.typeId() == QMetaType::QString ? lastUsed.toString() : QString());
}

void ZEVTokenField::saveDefaults()
{
    if (m_autosaveName.isEmpty())
        return;
    ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    defaults->setObject(patternStringValue(), lastUsedPatternDefaultsKey());
    defaults->setObject(m_patternsSet, patternsDefaultsKey());
}

QString ZEVTokenField::patternStringValue() const { return patternStringForConversionPattern(objectValue()); }

void ZEVTokenField::setPatternStringValue(const QString &patternString)
{
    setObjectValue(conversionPatternForPatternString(patternString));
}

QString ZEVTokenField::patternStringForConversionPattern(const QVariantList &pattern) const
{
    return ZEVPatternConversion::patternString(pattern, [this](const QVariant &object) {
        return delegate() ? delegate()->editingStringForRepresentedObject(this, object) : std::nullopt;
    });
}

QVariantList ZEVTokenField::conversionPatternForPatternString(const QString &patternString) const
{
    return ZEVPatternConversion::pattern(
        patternString, [this](const QString &text) { return objectForEditingString(text); },
        fidelity(m_lossless));
}

QVariant ZEVTokenField::objectForEditingString(const QString &editingString) const
{
    return delegate() ? delegate()->representedObjectForEditingString(this, editingString) : QVariant();
}

bool ZEVTokenField::isSameObject(const QVariant &one, const QVariant &other) const
{
    const ZEVPatternItem *item = ZEVPattern::item(one);
    const ZEVPatternItem *otherItem = ZEVPattern::item(other);
    return item && otherItem ? isSameItem(*item, *otherItem) : OEXTokenField::isSameObject(one, other);
}

/// Tokens that have become text elsewhere are tokens again here. Where there is none, the text is no pattern,
/// and its percent signs are its own.
QVariantList ZEVTokenField::objectsForPastedText(const QString &text) const
{
    const QString line = OEXTokenTextStorage::singleLine(text);
    const QVariantList pattern = ZEVPatternConversion::pattern(
        line, [this](const QString &editingString) { return objectForEditingString(editingString); },
        ZEVPatternConversion::Fidelity::Lossless);
    return hasToken(pattern) ? pattern : QVariantList{line};
}

void ZEVTokenField::setPatterns(const QStringList &patterns)
{
    m_patternsSet = patterns;
    m_patternsSet.removeDuplicates();
}

/// A pattern that is saved again moves to the end. One of blanks alone keeps them.
void ZEVTokenField::addPatternToSaved(const QVariantList &pattern)
{
    if (pattern.isEmpty())
        return;
    const QString whole = patternStringForConversionPattern(pattern);
    const QString patternString = whole.trimmed().isEmpty() ? whole : whole.trimmed();
    m_patternsSet.removeAll(patternString);
    m_patternsSet.append(patternString);
    saveDefaults();
}

void ZEVTokenField::insertToken(const QVariant &token)
{
    if (isReadOnly())
        return;
    if (!isBeingEdited())
        setFocus();
    const ZEVRange selection = selectedRange();
    const auto edited = ZEVPatternConversion::insertedToken(
        token, objectValue(), selection.location, selection.length,
        [this](const QString &text) { return objectForEditingString(text); }, fidelity(m_lossless));
    replaceValue(edited.objects, ZEVValueStep::User);
    setSelectedRange({edited.caret, 0});
    ensureCursorVisible();
    reportValue();
}

QTextEdit *ZEVTokenField::ensureFieldEditor()
{
    if (!isBeingEdited())
        setFocus();
    // The window may be inactive: the field has its focus all the same.
    return window()->focusWidget() == this ? this : nullptr;
}

void ZEVTokenField::moveEditorCaretToEndOfStringIfNeeded()
{
    if (!isBeingEdited())
        return;
    setSelectedRange({textStorage()->length(), 0});
    ensureCursorVisible();
}

void ZEVTokenField::insertNewline() { sendAction(); }

void ZEVTokenField::clear()
{
    if (isReadOnly())
        return;
    setFocus();
    const QPointer guard(this);
    setObjectValue({}, ZEVValueStep::User);
    if (guard)
        sendAction();
}

void ZEVTokenField::savePattern() { addPatternToSaved(objectValue()); }

void ZEVTokenField::removePattern()
{
    m_patternsSet.removeAll(patternStringValue());
    // Kept: what then stands in the field is the text of the first pattern, not its tokens.
    if (!isReadOnly())
        replaceValue(m_patternsSet.isEmpty() ? QVariantList() : QVariantList{m_patternsSet.first()},
                     ZEVValueStep::User);
    saveDefaults();
    reportValue();
}

bool ZEVTokenField::performCommand(ZEVTextCommand command)
{
    switch (command) {
    case ZEVTextCommand::InsertNewline:
        insertNewline();
        return true;
    case ZEVTextCommand::MoveDown:
        moveDown();
        return true;
    case ZEVTextCommand::InsertNewlineBackward:
    case ZEVTextCommand::CancelOperation:
        return false;
    }
    return false;
}

bool ZEVTokenField::event(QEvent *event)
{
    // Before a shortcut of the window takes the key.
    if (event->type() == QEvent::ShortcutOverride && isBeingEdited()
        && asksForMenu(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Show)
        watchWindow();
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        m_hasBeenFocused = false;
    return OEXTokenField::event(event);
}

void ZEVTokenField::watchWindow()
{
    if (m_watchedWindow == window())
        return;
    if (m_watchedWindow)
        m_watchedWindow->removeEventFilter(this);
    m_watchedWindow = window();
    m_watchedWindow->installEventFilter(this);
}

bool ZEVTokenField::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == window())
        saveDefaults();
    return OEXTokenField::eventFilter(watched, event);
}

void ZEVTokenField::keyPressEvent(QKeyEvent *event)
{
    if (isBeingEdited() && asksForMenu(*event))
        popUpMenu();
    else
        OEXTokenField::keyPressEvent(event);
}

void ZEVTokenField::focusInEvent(QFocusEvent *event)
{
    OEXTokenField::focusInEvent(event);
    const bool comesBack =
        std::exchange(m_hasBeenFocused, true) && event->reason() == Qt::ActiveWindowFocusReason;
    if (comesBack || event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MouseFocusReason)
        return; // the caret stays, or goes where the user clicks
    if (m_selectsTextWhenFocused)
        selectAll();
    else
        moveEditorCaretToEndOfStringIfNeeded();
}

void ZEVTokenField::focusOutEvent(QFocusEvent *event)
{
    OEXTokenField::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        saveDefaults();
}
