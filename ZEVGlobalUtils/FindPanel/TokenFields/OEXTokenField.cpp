// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVOneLineLayout_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVShownTokenText_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenAnswers_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenFieldAccessible_p.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVTokenTextObject_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>
#include <utility>

namespace {

// Room around the text, in points: that of a line edit at its sides; above and below it lets a token be a
// little taller than the line.
constexpr int TextMargin = 2;
constexpr int VerticalMargin = 1;
constexpr int SmallestTextHeight = 14;
constexpr int ShownCharacters = 17;
constexpr int FewestCharacters = 4;

/// The events with which a user edits. Others come in the middle of these.
bool edits(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress: // some desktops paste with a press, some with a release
    case QEvent::MouseButtonRelease:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

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
    ZEVTokenFieldAccessible::install();
    setUp();
    m_cell->setControlView(this);
    m_cell->setDelegate(new ZEVTokenAnswers(this));
    setUpText();
    updateFonts();
}

OEXTokenField::~OEXTokenField()
{
    // The text outlives the cell by the base class, and the cell's buttons tell the field that they go.
    textStorage()->setDelegate(nullptr);
    m_cell.reset();
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
    text->documentLayout()->registerHandler(ZEVTextAttachments::ObjectType, new ZEVTokenTextObject(this));
    m_report.setSingleShot(true);
    connect(text, &QTextDocument::contentsChanged, &m_report, qOverload<>(&QTimer::start));
    connect(&m_report, &QTimer::timeout, this, &OEXTokenField::reportValue);
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

void OEXTokenField::setObjectValue(const QVariantList &objects, ZEVValueStep step)
{
    if (isSameValue(objects, objectValue()))
        return;
    replaceValue(objects, step);
    reportValue();
}

bool OEXTokenField::isSameObject(const QVariant &one, const QVariant &other) const { return one == other; }

bool OEXTokenField::isSameValue(const QVariantList &one, const QVariantList &other) const
{
    return std::ranges::equal(one, other,
                              [this](const auto &a, const auto &b) { return isSameObject(a, b); });
}

void OEXTokenField::replaceValue(const QVariantList &objects, ZEVValueStep step)
{
    m_cell->setObjectValue(QVariantList(objects)); // which may be the value that was told of last
    if (step == ZEVValueStep::Program)
        textStorage()->clearUndoRedoStacks();
}

void OEXTokenField::reportValue()
{
    m_report.stop();
    const QVariantList value = objectValue();
    if (!isSameValue(std::exchange(m_reportedValue, value), value))
        Q_EMIT objectValueChanged();
}

/// The same value, but the delegate may say something else about its tokens now.
void OEXTokenField::rebuildText() { replaceValue(objectValue(), ZEVValueStep::Program); }

QString OEXTokenField::stringValue() const { return ZEVShownTokenText(*textStorage()).string(); }

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
    fitLayout();
}

void OEXTokenField::fitLayout()
{
    if (ZEVOneLineLayout *layout = oneLineLayout())
        layout->setAvailableWidth(viewport()->width());
}

void OEXTokenField::updateFonts()
{
    m_cell->setFont(font());
    textStorage()->setDefaultFont(font());
    textStorage()->markContentsDirty(0, document()->characterCount());
    updateGeometry();
    layOutEditor();
}

bool OEXTokenField::event(QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        m_cell->drawBezel(&painter, rect(), this);
        return true;
    }
    if (event->type() == QEvent::LayoutRequest)
        layOutEditor();
    const QPointer guard(this);
    const bool isDone = QTextEdit::event(event);
    if (guard && edits(*event) && m_report.isActive())
        reportValue();
    return isDone;
}

/// An edit is told of when the editor has done with it, so that whoever hears of it may delete the field.
bool OEXTokenField::viewportEvent(QEvent *event)
{
    const QPointer guard(this);
    const bool isDone = QTextEdit::viewportEvent(event);
    if (guard && edits(*event) && m_report.isActive())
        reportValue();
    return isDone;
}

ZEVOneLineLayout *OEXTokenField::oneLineLayout() const
{
    return qobject_cast<ZEVOneLineLayout *>(document()->documentLayout());
}

/// What lies under the viewport's upper left corner. From right to left a scroll bar counts from the other end.
QPointF OEXTokenField::textOrigin() const
{
    const QScrollBar *bar = horizontalScrollBar();
    return {-qreal(isRightToLeft() ? bar->maximum() - bar->value() : bar->value()), 0};
}

QRectF OEXTokenField::characterRect(qsizetype index) const
{
    return oneLineLayout()->characterRect(index).translated(textOrigin());
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
    fitLayout();
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
