// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/FindLine.h>

#include <tageditor/FindTokens.h>
#include <tageditor/MessageLabel.h>
#include <tageditor/TrackSearch.h>

#include <ZEVGlobalUtils/FindPanel/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/ZEVTokenField.h>
#include <ZEVGlobalUtils/FindPanel/ZEVTokenFieldCell.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// A search may report a hundred thousand matches; the count is drawn about every so many milliseconds.
constexpr qint64 CountInterval = 50;

} // namespace

FindLine::FindLine(TrackSearch *search, QWidget *parent)
    : QWidget(parent)
    , m_search(search)
    , m_tokens(new ZEVPatternTokens({findTokens()}, this))
    , m_pattern(new ZEVTokenField(this))
    , m_matchingType(new QComboBox(this))
    , m_caseSensitive(new QCheckBox(tr("Case &Sensitive"), this))
    , m_message(new MessageLabel(this))
{
    setUpPattern();
    m_matchingType->setAccessibleName(tr("Matching Type"));
    m_matchingType->setToolTip(tr("How a cell must match the pattern"));
    fillMatchingTypes();
    layOut();
    watchSearch();
    showResult();
    setFocusProxy(m_pattern);
}

void FindLine::setUpPattern()
{
    m_pattern->setPlaceholderText(tr("Find in all tracks"));
    m_pattern->setAccessibleName(tr("Find"));
    m_pattern->installEventFilter(this);
    m_pattern->setDelegate(m_tokens);
    m_pattern->setLossless(true);
    m_pattern->setAutosaveName(u"FindPattern"_s);
    auto *cell = static_cast<ZEVTokenFieldCell *>(m_pattern->cell());
    cell->setActionButton(ZEVTokenFieldCell::cellButtonWithImageNamed(
        u"icoMenuTemplate", [this] { m_pattern->popUpRecentsMenu(); }));
    QAbstractButton *clear = ZEVTokenFieldCell::cellButtonWithImageNamed(
        u"NSStopProgressFreestandingTemplate", [this] { m_pattern->clear(); });
    clear->setAccessibleName(tr("Clear"));
    cell->setRightButton(clear);
}

void FindLine::fillMatchingTypes()
{
    for (qint64 type = 0; const auto title = ZEVFindPanelQuery::titleForMatchingType(type); ++type)
        m_matchingType->addItem(*title, type);
}

void FindLine::layOut()
{
    auto *controls = new QHBoxLayout;
    const QList<QWidget *> inOrder{m_pattern,
                                   makeTokenButton(),
                                   m_matchingType,
                                   m_caseSensitive,
                                   makeStepButton(Qt::LeftArrow, tr("Previous Match"), TrackSearch::Backward),
                                   makeStepButton(Qt::RightArrow, tr("Next Match"), TrackSearch::Forward)};
    for (QWidget *last = nullptr; QWidget * control : inOrder) {
        controls->addWidget(control, control == m_pattern ? 1 : 0);
        if (last)
            setTabOrder(last, control);
        last = control;
    }

    // The message has a row of its own, always: what stands in it never moves the table.
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(controls);
    rows->addWidget(m_message);
    rows->setSpacing(rows->spacing() / 2);
}

QWidget *FindLine::makeTokenButton()
{
    auto *menu = new QMenu(this);
    connect(menu, &QMenu::aboutToShow, this,
            [this, menu] { ZEVPatternTokens::fillMenu(menu, m_pattern, m_tokens->groups()); });
    m_pattern->setMenu(menu);
    auto *button = new QPushButton(tr("Insert &Token"), this);
    button->setToolTip(tr("Insert a token that stands for a kind of text"));
    button->setMenu(menu);
    return button;
}

QWidget *FindLine::makeStepButton(Qt::ArrowType arrow, const QString &name, int direction)
{
    auto *button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, m_search,
            [this, direction] { m_search->step(TrackSearch::Direction(direction)); });
    return button;
}

void FindLine::watchSearch()
{
    connect(m_pattern, &ZEVTokenField::objectValueChanged, this, &FindLine::submitQuery);
    connect(m_matchingType, &QComboBox::currentIndexChanged, this, &FindLine::submitQuery);
    connect(m_caseSensitive, &QCheckBox::toggled, this, &FindLine::submitQuery);
    connect(m_search, &TrackSearch::countChanged, this, &FindLine::showGrowingCount);
    connect(m_search, &TrackSearch::searched, this, &FindLine::showResult);
    connect(m_search, &TrackSearch::currentMatchChanged, this, &FindLine::showResult);
}

void FindLine::setPatternText(const QString &text) { m_pattern->setPatternStringValue(text); }

void FindLine::setMatchingType(qint64 matchingType)
{
    m_matchingType->setCurrentIndex(m_matchingType->findData(matchingType));
}

void FindLine::setCaseSensitive(bool sensitive) { m_caseSensitive->setChecked(sensitive); }

void FindLine::beginEditing()
{
    m_pattern->setFocus(Qt::ShortcutFocusReason);
    m_pattern->selectAll();
}

bool FindLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_pattern && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            const bool backward = key->modifiers().testFlag(Qt::ShiftModifier);
            m_search->step(backward ? TrackSearch::Backward : TrackSearch::Forward);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FindLine::submitQuery()
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(m_pattern->objectValue());
    query.setMatchingType(m_matchingType->currentData().toLongLong());
    query.setCaseInsensitiveSearch(!m_caseSensitive->isChecked());
    m_search->setQuery(query);
}

/// The search keeps the main thread, so the count is drawn at once. The first match only starts the clock:
/// most searches are done before it strikes, and their result does not flicker.
void FindLine::showGrowingCount()
{
    if (m_search->numberOfMatches().value_or(0) <= 1) {
        m_sinceShown.start();
    } else if (m_sinceShown.hasExpired(CountInterval)) {
        m_sinceShown.start();
        m_message->showMessage(countText(), false);
        m_message->repaint();
    }
}

void FindLine::showResult()
{
    const QString text = resultText();
    m_message->showMessage(text, !m_search->error().isEmpty());
    m_pattern->setAccessibleDescription(text);
}

QString FindLine::resultText() const
{
    if (!m_search->error().isEmpty())
        return m_search->error();
    if (!m_search->numberOfMatches())
        return {};
    const QString text = m_search->currentMatch() < 0
        ? countText()
        : tr("Match %L1 of %L2").arg(m_search->currentMatch() + 1).arg(*m_search->numberOfMatches());
    return m_search->isCutShort() ? tr("%1 (cut short)").arg(text) : text;
}

QString FindLine::countText() const
{
    switch (const qsizetype count = m_search->numberOfMatches().value_or(0)) {
    case 0:
        return tr("No matches");
    case 1:
        return tr("1 match");
    default:
        return tr("%L1 matches").arg(count);
    }
}
