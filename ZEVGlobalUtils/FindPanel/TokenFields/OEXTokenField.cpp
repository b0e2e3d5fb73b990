// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ShownTokenText_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/TokenFieldAccessible_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/TokenTextObject_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace {

// Room around the text, in points: that of a line edit at its sides; above and below it lets a token be a
// little taller than the line.
constexpr int TextMargin = 2;
constexpr int VerticalMargin = 1;
constexpr int SmallestTextHeight = 14;
constexpr int ShownCharacters = 17;
constexpr int FewestCharacters = 4;

} // namespace

ZEVSelectedRanges::~ZEVSelectedRanges() = default;

OEXTokenField::OEXTokenField(QWidget *parent)
    : OEXTokenField(std::make_unique<OEXTokenFieldCell>(), parent)
{
}

OEXTokenField::OEXTokenField(std::unique_ptr<OEXTokenFieldCell> cell, QWidget *parent)
    : QTextEdit(parent)
    , m_cell(std::move(cell))
{
    TokenFieldAccessible::install();
    setUp();
    m_cell->setControlView(this);
    m_cell->setDelegate(this);
    setUpText();
    updateFonts();
}

OEXTokenField::~OEXTokenField()
{
    // The text outlives the cell by the base class.
    textStorage()->setDelegate(nullptr);
}

void OEXTokenField::setUp()
{
    setProperty("isFieldEditor", true);
    setFrameShape(QFrame::NoFrame);
    setLineWrapMode(QTextEdit::NoWrap);
    setWordWrapMode(QTextOption::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    setAcceptRichText(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // The bezel is drawn by the field, beneath the text.
    viewport()->setAutoFillBackground(false);
    // One line never moves up or down, however small the field is made.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this] { verticalScrollBar()->setRange(0, 0); });
}

void OEXTokenField::setUpText()
{
    m_cell->setUpFieldEditorAttributes(this);
    OEXTokenTextStorage *text = textStorage();
    text->setDefaultFont(font());
    text->setDocumentMargin(TextMargin);
    text->clearUndoRedoStacks();
    text->documentLayout()->registerHandler(ZEVTextAttachments::ObjectType, new TokenTextObject(this));
    connect(text, &QTextDocument::contentsChanged, this, &OEXTokenField::takeEditedText);
}

void OEXTokenField::setDelegate(ZEVWeakRef<OEXTokenFieldDelegate> delegate)
{
    m_delegate = std::move(delegate);
    rebuildText();
}

void OEXTokenField::setCell(std::unique_ptr<OEXTokenFieldCell> cell)
{
    cell->takeSettingsFrom(*m_cell);
    m_cell->endEditing(this);
    m_cell->setControlView(nullptr);
    m_cell = std::move(cell);
    m_cell->setControlView(this);
    m_cell->setUpFieldEditorAttributes(this);
    rebuildText();
    layOutEditor();
}

QVariantList OEXTokenField::objectValue() const { return m_cell->objectValue(); }

void OEXTokenField::setObjectValue(const QVariantList &objects)
{
    if (objects == m_cell->objectValue())
        return;
    {
        const QScopedValueRollback guard(m_settingValue, true);
        m_cell->setObjectValue(objects);
        textStorage()->replaceCharactersInRange({0, textStorage()->length()},
                                                m_cell->attributedStringValue());
    }
    Q_EMIT objectValueChanged();
}

/// The same value, but the delegate may say something else about its tokens now.
void OEXTokenField::rebuildText()
{
    const QScopedValueRollback guard(m_settingValue, true);
    textStorage()->replaceCharactersInRange({0, textStorage()->length()}, m_cell->attributedStringValue());
    textStorage()->clearUndoRedoStacks();
}

void OEXTokenField::takeEditedText()
{
    if (m_settingValue)
        return;
    const QVariantList before = m_cell->objectValue();
    m_cell->setAttributedStringValue(textStorage()->attributedString());
    if (m_cell->objectValue() != before)
        Q_EMIT objectValueChanged();
}

QString OEXTokenField::stringValue() const { return ShownTokenText(*textStorage()).string(); }

bool OEXTokenField::isBezeled() const { return m_cell->isBezeled(); }

void OEXTokenField::setBezeled(bool bezeled)
{
    m_cell->setBezeled(bezeled);
    layOutEditor();
    update();
}

ZEVControlSize OEXTokenField::controlSize() const { return m_cell->controlSize(); }

void OEXTokenField::setControlSize(ZEVControlSize size)
{
    m_cell->setControlSize(size);
    updateFonts();
}

OEXTokenTextStorage *OEXTokenField::textStorage() const
{
    return qobject_cast<OEXTokenTextStorage *>(document());
}

ZEVRange OEXTokenField::selectedRange() const
{
    const QTextCursor cursor = textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void OEXTokenField::setSelectedRange(ZEVRange range)
{
    const qsizetype length = textStorage()->length();
    QTextCursor cursor = textCursor();
    cursor.setPosition(int(qMin(range.location, length)));
    cursor.setPosition(int(qMin(range.end(), length)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void OEXTokenField::clickedOnCellAtIndex(qsizetype index) { setSelectedRange({index, 1}); }

QSize OEXTokenField::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics(font());
    const QSize text(metrics.horizontalAdvance(u'x') * ShownCharacters + 2 * TextMargin,
                     qMax(metrics.height(), SmallestTextHeight) + 2 * VerticalMargin);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, this);
}

QSize OEXTokenField::minimumSizeHint() const
{
    const QRectF bounds = QRect({0, 0}, sizeHint());
    const qreal outside = bounds.width() - m_cell->drawingRectForBounds(bounds).width();
    return {QFontMetrics(font()).horizontalAdvance(u'x') * FewestCharacters + qCeil(outside),
            qRound(bounds.height())};
}

/// The text stands in the middle of the cell's drawing rectangle; what is left above and below stays part of
/// the editor, since a token may reach a little out of its line.
void OEXTokenField::layOutEditor()
{
    const QRect bounds = rect();
    const QRect drawing =
        QStyle::visualRect(layoutDirection(), bounds, m_cell->drawingRectForBounds(bounds).toAlignedRect());
    m_cell->layOutButtons(bounds);
    const int textHeight = QFontMetrics(font()).height() + 2 * TextMargin;
    const int above = qMax(0, (drawing.height() - textHeight) / 2);
    setViewportMargins(drawing.left() - bounds.left() + TextMargin, drawing.top() - bounds.top() + above,
                       bounds.right() - drawing.right() + TextMargin, bounds.bottom() - drawing.bottom());
}

void OEXTokenField::updateFonts()
{
    m_cell->setFont(font());
    for (const ZEVTextAttachments::Run &run : ZEVTextAttachments::runs(textStorage()->attributedString())) {
        if (ZEVTextAttachmentCell *cell = run.attachment ? run.attachment->attachmentCell() : nullptr) {
            cell->setFont(font());
            cell->setControlSize(controlSize());
        }
    }
    textStorage()->setDefaultFont(font());
    textStorage()->markContentsDirty(0, document()->characterCount());
    updateGeometry();
    layOutEditor();
}

bool OEXTokenField::showsTokenForRepresentedObject(const OEXTokenFieldCell *, const QVariant &object) const
{
    return !m_delegate || m_delegate->styleForRepresentedObject(this, object) != ZEVTokenStyle::None;
}

std::unique_ptr<ZEVTextAttachmentCell>
OEXTokenField::attachmentCellForRepresentedObject(const OEXTokenFieldCell *, const QVariant &object) const
{
    const OEXTokenFieldDelegate::AttachmentCellClass cellClass = m_delegate
        ? m_delegate->attachmentCellClassForRepresentedObject(this, object)
        : OEXTokenFieldDelegate::AttachmentCellClass();
    return cellClass ? cellClass() : std::make_unique<ZEVTextAttachmentCell>();
}

std::optional<QString> OEXTokenField::displayStringForRepresentedObject(const OEXTokenFieldCell *,
                                                                        const QVariant &object) const
{
    return m_delegate ? m_delegate->displayStringForRepresentedObject(this, object) : std::nullopt;
}

bool OEXTokenField::event(QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        m_cell->drawBezel(&painter, rect(), this);
        return true;
    }
    return QTextEdit::event(event);
}

void OEXTokenField::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    drawTokens(&painter, event->rect());
}

/// Where the line begins in the viewport.
QPointF OEXTokenField::textOrigin() const
{
    const QPointF line = document()->documentLayout()->blockBoundingRect(document()->firstBlock()).topLeft();
    return line - QPointF(horizontalScrollBar()->value(), 0);
}

/// The line also holds what an input method is composing, which is not in the text yet: -1 stands for that.
qsizetype OEXTokenField::storageIndexOfLayoutIndex(qsizetype index) const
{
    const QTextLayout *layout = document()->firstBlock().layout();
    const qsizetype start = layout->preeditAreaPosition();
    const qsizetype length = layout->preeditAreaText().size();
    if (length == 0 || index < start)
        return index;
    return index < start + length ? -1 : index - length;
}

/// Only what lies in \a area is looked at: a pattern may be as long as a book.
void OEXTokenField::drawTokens(QPainter *painter, const QRect &area)
{
    const QTextLayout *layout = document()->firstBlock().layout();
    if (layout->lineCount() == 0)
        return;
    const QTextLine line = layout->lineAt(0);
    const QPointF origin = textOrigin();
    const qreal baseline = origin.y() + line.y() + line.ascent();
    // Of a list, since a pair of references to the two would outlive them.
    const auto [first, last] =
        std::minmax({line.xToCursor(area.left() - origin.x(), QTextLine::CursorOnCharacter),
                     line.xToCursor(area.right() - origin.x())});
    for (int index = first; index <= last; ++index) {
        const qsizetype storageIndex = storageIndexOfLayoutIndex(index);
        const ZEVTextAttachmentPointer attachment = textStorage()->attachmentAtIndex(storageIndex);
        ZEVTextAttachmentCell *cell = attachment ? attachment->attachmentCell() : nullptr;
        if (!cell)
            continue;
        const QPointF offset = cell->cellBaselineOffset();
        const qreal left = qMin(line.cursorToX(index), line.cursorToX(index + 1));
        QRectF frame({origin.x() + left + offset.x(), 0}, cell->cellSize());
        frame.moveBottom(baseline - offset.y());
        cell->drawWithFrame(painter, frame, this, storageIndex);
    }
}

void OEXTokenField::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateFonts();
    else if (event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange)
        layOutEditor();
    else if (event->type() == QEvent::ActivationChange)
        viewport()->update(); // tokens look different in an inactive window
}

void OEXTokenField::resizeEvent(QResizeEvent *event)
{
    layOutEditor();
    QTextEdit::resizeEvent(event);
}

void OEXTokenField::focusInEvent(QFocusEvent *event)
{
    m_cell->setUpFieldEditorAttributes(this);
    QTextEdit::focusInEvent(event);
    update();
}

void OEXTokenField::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        m_cell->endEditing(this);
    QTextEdit::focusOutEvent(event);
    update();
}
