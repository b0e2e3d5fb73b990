// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/TokenFieldsPage.h>

#include <tageditor/find/TagTokens.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBackgroundView.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVGreenTokenAttachmentCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVRoundTokenAttachmentCell.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QString SamplePattern = u"Track %(\\d+)% of %(\\w+)%"_s;

ZEVTokenField *tokenField(ZEVPatternTokens *tokens, const QString &pattern)
{
    auto *field = new ZEVTokenField;
    field->setDelegate(tokens);
    field->setLossless(true);
    field->setPlaceholderText(u"Placeholder"_s);
    field->setPatternStringValue(pattern);
    return field;
}

ZEVTokenField *fieldWithButtons(ZEVPatternTokens *tokens)
{
    ZEVTokenField *field = tokenField(tokens, SamplePattern);
    auto *cell = static_cast<ZEVTokenFieldCell *>(field->cell());
    cell->setActionButton(ZEVTokenFieldCell::cellButtonWithImageNamed(
        u"icoMenuTemplate", [field] { field->popUpRecentsMenu(); }));
    QAbstractButton *clear = ZEVTokenFieldCell::cellButtonWithImageNamed(
        u"NSStopProgressFreestandingTemplate", [field] { field->clear(); });
    clear->setAccessibleName(u"Clear"_s);
    cell->setRightButton(clear);
    return field;
}

/// A field without a frame on the backdrop that stands for it.
QWidget *fieldOnBackdrop(ZEVPatternTokens *tokens, const QString &pattern)
{
    auto *backdrop = new ZEVTextFinderFakeCellView;
    auto cell = std::make_unique<ZEVFocusTokenFieldCell>();
    cell->setFakeCellView(backdrop);
    auto *field = new ZEVTokenField(std::move(cell));
    field->setDelegate(tokens);
    field->setBezeled(false);
    field->setPlaceholderText(u"Placeholder"_s);
    field->setPatternStringValue(pattern);
    auto *layout = new QVBoxLayout(backdrop);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(field);
    return backdrop;
}

QWidget *onFindBar(QWidget *widget)
{
    auto *bar = new ZEVTextFinderBackgroundView;
    auto *layout = new QVBoxLayout(bar);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(widget);
    return bar;
}

/// Every kind of token in the sizes of controls, in one drawing mode.
class TokenSwatch : public QWidget {
public:
    explicit TokenSwatch(qint64 mode)
        : m_mode(mode)
    {
        setMinimumSize(480, 60);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QPointF place;
        for (const auto size : {ZEVControlSize::Regular, ZEVControlSize::Small, ZEVControlSize::Mini,
                                ZEVControlSize::Large, ZEVControlSize::ExtraLarge}) {
            place.setY(0);
            draw<ZEVTokenAttachmentCell>(painter, size, place);
            draw<ZEVRoundTokenAttachmentCell>(painter, size, place);
            draw<ZEVGreenTokenAttachmentCell>(painter, size, place);
            place.rx() += 96;
        }
    }

private:
    template <typename Cell>
    void draw(QPainter &painter, ZEVControlSize size, QPointF &place)
    {
        Cell cell;
        cell.setTitle(u"Word"_s);
        cell.setFont(font());
        cell.setControlSize(size);
        cell.setDrawingMode(m_mode);
        const QRectF frame(place, cell.cellSize());
        static_cast<ZEVTokenAttachmentCell &>(cell).drawWithFrame(&painter, frame, this);
        cell.drawInteriorWithFrame(&painter, frame, this);
        place.ry() += frame.height() + 5;
    }

    qint64 m_mode;
};

QWidget *withFont(QWidget *widget, int pixels)
{
    QFont font = widget->font();
    font.setPixelSize(pixels);
    widget->setFont(font);
    return widget;
}

QWidget *changed(ZEVTokenField *field, void (*change)(ZEVTokenField *))
{
    change(field);
    return field;
}

} // namespace

QWidget *tokenFieldsPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *tokens = new ZEVPatternTokens(TagTokens::findTokens(), page);
    const QString tall = u"Ünï 漢字 🎵 %(\\w+)%"_s;
    const QString mixed = u"Track %(\\d+)% שלום %(\\w+)% עולם, of %(\\s+)% and ערב %(\\t)%"_s;
    auto *rows = new QFormLayout(page);
    rows->addRow(u"Line edit"_s, new QLineEdit(u"Track 1 of this"_s));
    rows->addRow(u"Tokens and text"_s, tokenField(tokens, SamplePattern));
    rows->addRow(u"Neighbours"_s, tokenField(tokens, u"%(\\d+)%%(\\w+)%%(\\t)%"_s));
    rows->addRow(u"All selected"_s,
                 changed(tokenField(tokens, SamplePattern), [](auto *f) { f->selectAll(); }));
    rows->addRow(u"Empty"_s, tokenField(tokens, {}));
    rows->addRow(u"Read-only"_s,
                 changed(tokenField(tokens, SamplePattern), [](auto *f) { f->setReadOnly(true); }));
    rows->addRow(u"Disabled"_s,
                 changed(tokenField(tokens, SamplePattern), [](auto *f) { f->setEnabled(false); }));
    rows->addRow(u"With buttons"_s, fieldWithButtons(tokens));
    rows->addRow(u"Right to left"_s,
                 changed(fieldWithButtons(tokens), [](auto *f) { f->setLayoutDirection(Qt::RightToLeft); }));
    rows->addRow(u"Other scripts"_s, tokenField(tokens, tall));
    rows->addRow(u"Both directions"_s, tokenField(tokens, mixed));
    rows->addRow(u"Both, selected"_s, changed(tokenField(tokens, mixed), [](auto *f) { f->selectAll(); }));
    rows->addRow(u"Both, narrow"_s, changed(tokenField(tokens, mixed), [](auto *f) {
                     f->setFixedWidth(160);
                     f->moveCursor(QTextCursor::End);
                 }));
    rows->addRow(u"Both, right to left"_s,
                 changed(tokenField(tokens, mixed), [](auto *f) { f->setLayoutDirection(Qt::RightToLeft); }));
    rows->addRow(u"Hebrew"_s, tokenField(tokens, u"שלום %(\\d+)% עולם"_s));
    rows->addRow(u"Line breaks"_s, tokenField(tokens, u"One\nTwo %(\\w+)%\r\nThree"_s));
    rows->addRow(u"Selected in part"_s, changed(tokenField(tokens, SamplePattern), [](auto *f) {
                     f->setSelectedRange({3, 5});
                 }));
    rows->addRow(u"Small"_s, changed(tokenField(tokens, SamplePattern), [](auto *f) {
                     withFont(f, 11);
                     f->setControlSize(ZEVControlSize::Small);
                 }));
    rows->addRow(u"Large"_s, changed(tokenField(tokens, SamplePattern), [](auto *f) {
                     withFont(f, 18);
                     f->setControlSize(ZEVControlSize::Large);
                 }));
    rows->addRow(u"Backdrop, empty"_s, onFindBar(fieldOnBackdrop(tokens, {})));
    rows->addRow(u"Backdrop, filled"_s, onFindBar(fieldOnBackdrop(tokens, SamplePattern)));
    rows->addRow(u"Filter"_s, new ZEVFilterSearchFieldCell);
    auto *filter = new ZEVFilterSearchFieldCell;
    filter->setRoundedLook(true);
    filter->setText(u"jazz"_s);
    rows->addRow(u"Filter, rounded"_s, filter);
    rows->addRow(u"Tokens"_s, new TokenSwatch(0));
    rows->addRow(u"Tokens, selected"_s, new TokenSwatch(2));
    return page;
}
