// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldCell.h>

#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldButtonCell.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedImages_p.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVPlatformVersion_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal CellHeight = 24;
constexpr qreal ButtonWidth = 22;
constexpr qreal CornerRadius = 8;
constexpr qreal BorderWidth = 1.15;
constexpr QSize CancelImageSize(12, 12);

/// The host's wording where it has one.
QString placeholder()
{
    const QString own = QCoreApplication::translate("ZEVFilterSearchFieldCell", "Filter");
    return own == "Filter"_L1 ? ZEVGlobalHelper::localizedStringForKey(u"Filter") : own;
}

} // namespace

ZEVFilterSearchFieldCell::ZEVFilterSearchFieldCell(QWidget *parent)
    : QLineEdit(parent)
    , m_searchButton(new ZEVFilterSearchFieldButtonCell(this))
    , m_cancelButton(new QToolButton(this))
{
    setup();
    addButtons();
    takeColors();
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        setActive(!text.trimmed().isEmpty());
        m_cancelButton->setVisible(!text.isEmpty());
    });
}

void ZEVFilterSearchFieldCell::setup()
{
    setPlaceholderText(placeholder());
    setFont(QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont));
    setFrame(false);
    // The field itself paints what lies behind the text.
    QPalette transparent;
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
}

void ZEVFilterSearchFieldCell::addButtons()
{
    connect(m_searchButton, &QAbstractButton::clicked, this, [this] { setFocus(); });
    m_searchButton->setAccessibleName(placeholder());
    m_cancelButton->setIcon(ZEVNamedImages::imageNamed(u"NSStopProgressFreestandingTemplate"));
    m_cancelButton->setIconSize(CancelImageSize);
    m_cancelButton->setAutoRaise(true);
    m_cancelButton->setFocusPolicy(Qt::NoFocus);
    m_cancelButton->setCursor(Qt::ArrowCursor);
    m_cancelButton->setStyleSheet(u"QToolButton { border: none; padding: 0 }"_s);
    m_cancelButton->setAccessibleName(ZEVGlobalHelper::localizedStringForKey(u"Clear"));
    m_cancelButton->hide();
    connect(m_cancelButton, &QAbstractButton::clicked, this, &QLineEdit::clear);
}

void ZEVFilterSearchFieldCell::setRoundedLook(bool rounded)
{
    m_roundedLook = rounded;
    update();
}

void ZEVFilterSearchFieldCell::setActive(bool active)
{
    m_searchButton->setActive(active);
    if (active == m_active)
        return;
    m_active = active;
    update();
    Q_EMIT activeChanged(active);
}

QLabel *ZEVFilterSearchFieldCell::noResultsField() const { return m_noResultsField; }

void ZEVFilterSearchFieldCell::setNoResultsField(QLabel *field)
{
    m_noResultsField = field;
    if (field)
        field->setText(ZEVGlobalHelper::localizedStringForKey(u"No Results"));
}

void ZEVFilterSearchFieldCell::setObservedStringValue(const QString &value)
{
    if (value == m_observedStringValue)
        return;
    m_observedStringValue = value;
    Q_EMIT observedStringValueChanged();
}

QSizeF ZEVFilterSearchFieldCell::cellSizeForBounds(const QRectF &bounds) const
{
    return {bounds.width(), CellHeight};
}

QRectF ZEVFilterSearchFieldCell::searchTextRectForBounds(const QRectF &bounds) const
{
    const QRectF between = bounds.adjusted(ButtonWidth, 0, -ButtonWidth, 0);
    if constexpr (ZEVPlatformIs26OrLater)
        return between.adjusted(-8, -1, 6, -1);
    return between.adjusted(4, 0, -2, 0);
}

QRectF ZEVFilterSearchFieldCell::searchButtonRectForBounds(const QRectF &bounds) const
{
    const QRectF button(bounds.x(), bounds.y(), ButtonWidth, bounds.height());
    if constexpr (ZEVPlatformIs26OrLater)
        return button.adjusted(-4, -1, -8, -1);
    return button;
}

QRectF ZEVFilterSearchFieldCell::cancelButtonRectForBounds(const QRectF &bounds) const
{
    const QRectF button(bounds.right() - ButtonWidth, bounds.y(), ButtonWidth, bounds.height());
    if constexpr (ZEVPlatformIs26OrLater)
        return button.adjusted(4, -1, 0, -1);
    return button;
}

QSize ZEVFilterSearchFieldCell::sizeHint() const { return {QLineEdit::sizeHint().width(), int(CellHeight)}; }

QSize ZEVFilterSearchFieldCell::minimumSizeHint() const
{
    return {QLineEdit::minimumSizeHint().width() + int(2 * ButtonWidth), int(CellHeight)};
}

void ZEVFilterSearchFieldCell::takeColors()
{
    const QPalette colors = palette();
    m_filterBackgroundColor = ZEVNamedColors::colorNamed(u"filterBackgroundColor", colors);
    m_filterBorderColor = ZEVNamedColors::colorNamed(u"filterBorderColor", colors);
    m_filterBorderColorSelected = ZEVNamedColors::colorNamed(u"filterBorderColorSelected", colors);
}

void ZEVFilterSearchFieldCell::layOutParts()
{
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QRect bounds = rect();
    const auto placed = [&](const QRectF &part) {
        return QStyle::visualRect(layoutDirection(), bounds, part.toRect());
    };
    m_searchButton->setGeometry(placed(searchButtonRectForBounds(bounds)));
    m_cancelButton->setGeometry(placed(cancelButtonRectForBounds(bounds)));
    const QRectF text = searchTextRectForBounds(bounds);
    const int leading = qRound(text.left() - bounds.left());
    const int trailing = qRound(bounds.width() - leading - text.width());
    setTextMargins(mirrored ? trailing : leading, 0, mirrored ? leading : trailing, 0);
}

void ZEVFilterSearchFieldCell::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        drawWithFrame(&painter, rect());
    }
    QLineEdit::paintEvent(event);
}

bool ZEVFilterSearchFieldCell::looksIdle() const { return !hasFocus() && text().isEmpty() && !m_active; }

void ZEVFilterSearchFieldCell::drawWithFrame(QPainter *painter, const QRectF &frame) const
{
    const qreal radius = m_roundedLook ? frame.height() / 2 : CornerRadius;
    QPainterPath outline;
    outline.addRoundedRect(frame, radius, radius);
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor controlBackground = QGuiApplication::palette().color(QPalette::Base);
    painter->fillPath(outline, looksIdle() ? m_filterBackgroundColor : controlBackground);
    painter->setClipPath(outline);
    painter->strokePath(outline,
                        QPen(looksIdle() ? m_filterBorderColor : m_filterBorderColorSelected, BorderWidth));
}

void ZEVFilterSearchFieldCell::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    layOutParts();
}

void ZEVFilterSearchFieldCell::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
    else if (event->type() == QEvent::LayoutDirectionChange)
        layOutParts();
}

void ZEVFilterSearchFieldCell::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}
