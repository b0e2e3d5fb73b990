// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindControls_p.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuBuilder.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QEvent>
#include <QFontDatabase>
#include <QLocale>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int TokenMenuFontPixels = 11;
constexpr int MenuDistance = -6;

/// A search may find a million matches; the growing count is painted this often, in milliseconds.
constexpr qint64 CountInterval = 50;

/// A search is said to be under way, and can be stopped, when it has taken this long, in milliseconds.
constexpr int LongSearch = 1000;

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

} // namespace

void ZEVTextFinderUserInterfaceVC::setUpField(ZEVTokenField *field)
{
    field->setDelegate(this);
    auto *menu = new QMenu(field);
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(TokenMenuFontPixels);
    menu->setFont(font);
    field->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { menuNeedsUpdate(menu); });
}

void ZEVTextFinderUserInterfaceVC::setUpFields()
{
    if (ZEVTokenField *field = m_controls->findTokenField) {
        setUpField(field);
        connect(field, &OEXTokenField::actionTriggered, this, [this] { findTokenFieldAction(); });
        connect(field, &OEXTokenField::objectValueChanged, this,
                &ZEVTextFinderUserInterfaceVC::noteEditedPattern);
    }
    if (ZEVTokenField *field = m_controls->replaceTokenField) {
        setUpField(field);
        connect(field, &OEXTokenField::actionTriggered, this, [this] { replaceTokenFieldAction(); });
        connect(field, &OEXTokenField::objectValueChanged, this,
                &ZEVTextFinderUserInterfaceVC::replacePatternChanged);
    }
}

void ZEVTextFinderUserInterfaceVC::setUpButtons()
{
    const auto connectMenuButton = [this](QAbstractButton *button, QStringView image, auto popUp) {
        if (!button)
            return;
        button->setIcon(ZEVNamedImages::imageNamed(image.toString()));
        connect(button, &QAbstractButton::pressed, this, [this, button, popUp] {
            button->setDown(false);
            (this->*popUp)();
        });
    };
    connectMenuButton(m_controls->findMenuButton, u"icoFilter", &ZEVTextFinderUserInterfaceVC::popupFindMenu);
    connectMenuButton(m_controls->replaceMenuButton, u"icoMenuTemplate",
                      &ZEVTextFinderUserInterfaceVC::popupReplaceMenu);
    for (QAbstractButton *button : std::as_const(m_controls->actionButtons))
        connect(button, &QAbstractButton::clicked, this, [this, button] { actionButtonPressed(button); });
}

/// The items may come from the file, each with its type as data or as its place.
void ZEVTextFinderUserInterfaceVC::setUpMatchingTypes()
{
    QComboBox *selector = m_controls->matchingTypeSelector;
    if (!selector)
        return;
    for (qint64 type = selector->count(); ZEVFindPanelQuery::titleForMatchingType(type); ++type)
        selector->addItem({}, type);
    for (int row = 0; row < selector->count(); ++row) {
        const QVariant tag =
            selector->itemData(row).isValid() ? selector->itemData(row) : QVariant(qint64(row));
        selector->setItemData(row, tag);
        selector->setItemText(row,
                              ZEVFindPanelQuery::titleForMatchingType(tag.toLongLong()).value_or(QString()));
    }
    showMatchingType();
    connect(selector, &QComboBox::currentIndexChanged, this, [this, selector](int row) {
        if (row >= 0) // none stands for a type that is none
            setMatchingType(selector->itemData(row).toLongLong());
    });
}

void ZEVTextFinderUserInterfaceVC::showMatchingType()
{
    if (QComboBox *selector = m_controls->matchingTypeSelector)
        selector->setCurrentIndex(selector->findData(m_query.matchingType()));
}

void ZEVTextFinderUserInterfaceVC::setNumberOfMatches(std::optional<qsizetype> number)
{
    if (number == m_numberOfMatches)
        return;
    m_numberOfMatches = number;
    // While the count grows the search has the thread, so it is painted at once, but not for every match.
    const bool isGrowing = number.value_or(0) > 1 && m_sinceCountShown.isValid();
    if (isGrowing && !m_sinceCountShown.hasExpired(CountInterval)) {
        if (!m_countTimer.isActive())
            m_countTimer.start(0, this);
    } else {
        showCount();
        if (isGrowing && m_controls->numberOfMatchesLabel)
            m_controls->numberOfMatchesLabel->repaint();
    }
    Q_EMIT numberOfMatchesChanged();
}

void ZEVTextFinderUserInterfaceVC::setSearchLimitReached(bool reached)
{
    if (reached)
        showMessage(localized(u"The search was too complex: matches are missing."));
    showCount();
}

void ZEVTextFinderUserInterfaceVC::setSearching(bool searching)
{
    if (searching) {
        m_longSearchTimer.start(LongSearch, this);
        return;
    }
    m_longSearchTimer.stop();
    if (std::exchange(m_isLongSearch, false))
        showMessage({});
}

void ZEVTextFinderUserInterfaceVC::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_countTimer.timerId()) {
        m_countTimer.stop();
        showCount();
    } else if (event->timerId() == m_longSearchTimer.timerId()) {
        m_longSearchTimer.stop();
        m_isLongSearch = true;
        showMessage(localized(u"Searching… Press Escape to stop."));
    }
}

/// Kept: the same words for every count.
QString ZEVTextFinderUserInterfaceVC::countText() const
{
    return m_numberOfMatches
        ? localized(u"%lu matches").replace(u"%lu"_s, QLocale().toString(*m_numberOfMatches))
        : QString();
}

void ZEVTextFinderUserInterfaceVC::showCount()
{
    m_sinceCountShown.start();
    if (m_controls->numberOfMatchesLabel)
        m_controls->numberOfMatchesLabel->setText(countText());
    if (m_controls->findTokenField)
        m_controls->findTokenField->setAccessibleDescription(countText());
}

void ZEVTextFinderUserInterfaceVC::showMessage(const QString &message)
{
    if (!m_controls->messageLabel)
        return;
    m_controls->messageLabel->setText(message);
    m_controls->messageLabel->setVisible(!message.isEmpty());
}

/// The count weighs less than what is typed beside it.
void ZEVTextFinderUserInterfaceVC::updateColors()
{
    if (!m_controls->numberOfMatchesLabel)
        return;
    QPalette palette = m_view->palette();
    palette.setColor(QPalette::WindowText, ZEVMatchColors::dimmedText(palette));
    m_controls->numberOfMatchesLabel->setPalette(palette);
}

bool ZEVTextFinderUserInterfaceVC::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::PaletteChange)
        updateColors();
    return ZEVPatternTokens::eventFilter(watched, event);
}

void ZEVTextFinderUserInterfaceVC::menuNeedsUpdate(QMenu *menu)
{
    if (findTokenField() && menu == findTokenField()->menu())
        updateFindTokenFieldMenu();
    else if (replaceTokenField() && menu == replaceTokenField()->menu())
        updateReplaceTokenFieldMenu();
}

void ZEVTextFinderUserInterfaceVC::updateFindTokenFieldMenu()
{
    if (ZEVTokenField *field = findTokenField(); field && field->menu())
        fillMenu(field->menu(), field, patternItems());
}

void ZEVTextFinderUserInterfaceVC::updateReplaceTokenFieldMenu()
{
    if (ZEVTokenField *field = replaceTokenField(); field && field->menu())
        fillMenu(field->menu(), field, m_replacePatternItems);
}

void ZEVTextFinderUserInterfaceVC::popupFindMenu()
{
    if (findTokenField())
        popUpMenuOfField(findTokenField()->dropDownMenu(), findTokenField());
}

void ZEVTextFinderUserInterfaceVC::popupReplaceMenu()
{
    if (replaceTokenField())
        popUpMenuOfField(replaceTokenField()->dropDownMenu(), replaceTokenField());
}

void ZEVTextFinderUserInterfaceVC::popUpMenuOfField(QMenu *menu, ZEVTokenField *field)
{
    menu->setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
    const QWidget *superview = field->parentWidget() ? field->parentWidget() : field;
    ZEVMenuBuilder::popUpMenu(menu, superview, {0, superview->height() - MenuDistance});
}
