// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

#include <QCoreApplication>
#include <QEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextEdit>

namespace {

bool isText(const QVariant &object)
{
    return object.typeId() == QMetaType::QString
        || object.metaType() == QMetaType::fromType<ZEVAttributedString>();
}

/// What an attachment says of itself that came from elsewhere.
QVariant foreignObject(const ZEVTextAttachment *attachment)
{
    return attachment && !isText(attachment->contents()) ? attachment->contents() : QVariant();
}

QStyleOptionFrame lineEditOption(const QRectF &bounds, const QWidget *view)
{
    QStyleOptionFrame option;
    option.initFrom(view);
    option.rect = bounds.toRect();
    option.lineWidth = view->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, view);
    option.state |= QStyle::State_Sunken;
    option.state.setFlag(QStyle::State_HasFocus, view->hasFocus());
    return option;
}

} // namespace

OEXTokenFieldCellDelegate::~OEXTokenFieldCellDelegate() = default;

bool OEXTokenFieldCellDelegate::showsTokenForRepresentedObject(const OEXTokenFieldCell *,
                                                               const QVariant &) const
{
    return true;
}

std::unique_ptr<ZEVTextAttachmentCell>
OEXTokenFieldCellDelegate::attachmentCellForRepresentedObject(const OEXTokenFieldCell *,
                                                              const QVariant &) const
{
    return nullptr;
}

std::optional<QString> OEXTokenFieldCellDelegate::displayStringForRepresentedObject(const OEXTokenFieldCell *,
                                                                                    const QVariant &) const
{
    return std::nullopt;
}

OEXTokenFieldCell::OEXTokenFieldCell() = default;
OEXTokenFieldCell::~OEXTokenFieldCell() = default;

void OEXTokenFieldCell::takeSettingsFrom(const OEXTokenFieldCell &other)
{
    m_delegate = other.m_delegate;
    m_font = other.m_font;
    m_controlSize = other.m_controlSize;
    m_bezeled = other.m_bezeled;
}

QVariantList OEXTokenFieldCell::objectValue() const
{
    return m_storage ? objectsForAttributedString(m_storage->attributedString()) : QVariantList();
}

void OEXTokenFieldCell::setObjectValue(const QVariantList &objects)
{
    if (m_storage)
        m_storage->replaceCharactersInRange({0, m_storage->length()}, attributedStringForObjects(objects));
}

ZEVAttributedString OEXTokenFieldCell::attributedStringValue() const
{
    return m_storage ? m_storage->attributedString() : ZEVAttributedString();
}

void OEXTokenFieldCell::setAttributedStringValue(const ZEVAttributedString &text)
{
    setObjectValue(objectsForAttributedString(text));
}

ZEVAttributedString OEXTokenFieldCell::attributedStringForObjects(const QVariantList &objects) const
{
    ZEVAttributedString text;
    for (const QVariant &object : objects)
        text.append(textOfObject(object));
    return text;
}

QVariantList OEXTokenFieldCell::objectsForAttributedString(const ZEVAttributedString &text)
{
    QVariantList objects;
    const QString &string = text.string();
    for (const ZEVTextAttachments::Run &run : ZEVTextAttachments::runs(text))
        objects.append(representedObjectWithAttachment(run.attachment.get(),
                                                       string.mid(run.range.location, run.range.length)));
    return objects;
}

QTextEdit *OEXTokenFieldCell::setUpFieldEditorAttributes(QTextEdit *editor)
{
    auto *storage = qobject_cast<OEXTokenTextStorage *>(editor->document());
    if (!storage) {
        storage = new OEXTokenTextStorage(editor);
        editor->setDocument(storage);
    }
    storage->setDelegate(this);
    m_storage = storage;
    return editor;
}

void OEXTokenFieldCell::endEditing(QTextEdit *editor)
{
    if (auto *storage = qobject_cast<OEXTokenTextStorage *>(editor->document()))
        storage->setDelegate(nullptr);
}

void OEXTokenFieldCell::updateTokenAttachment(ZEVTextAttachment *attachment,
                                              const ZEVAttributedString &text) const
{
    if (attachment->representedObject().isValid())
        return;
    const QVariant object = representedObjectWithAttachment(attachment, text.string());
    attachment->setRepresentedObject(object);
    if (auto cell = attachmentCellForRepresentedObject(object))
        attachment->setAttachmentCell(std::move(cell));
}

void OEXTokenFieldCell::updateTokenAttachment(OEXTokenTextStorage *storage, ZEVTextAttachment *attachment,
                                              ZEVRange range)
{
    updateTokenAttachment(attachment, storage->attributedSubstring(range));
}

std::unique_ptr<ZEVTextAttachmentCell>
OEXTokenFieldCell::attachmentCellForRepresentedObject(const QVariant &object) const
{
    const OEXTokenFieldCellDelegate *delegate = m_delegate.get();
    auto cell = delegate ? delegate->attachmentCellForRepresentedObject(this, object) : nullptr;
    if (!cell)
        return nullptr;
    if (const std::optional<QString> title = delegate->displayStringForRepresentedObject(this, object))
        cell->setTitle(*title);
    cell->setRepresentedObject(object);
    cell->setFont(m_font);
    cell->setControlSize(m_controlSize);
    return cell;
}

QRectF OEXTokenFieldCell::drawingRectForBounds(const QRectF &bounds) const
{
    if (!m_bezeled || !m_controlView)
        return bounds;
    const QStyleOptionFrame option = lineEditOption(bounds, m_controlView);
    return m_controlView->style()->subElementRect(QStyle::SE_LineEditContents, &option, m_controlView);
}

void OEXTokenFieldCell::geometryDidChange()
{
    QEvent request(QEvent::LayoutRequest);
    if (m_controlView)
        QCoreApplication::sendEvent(m_controlView, &request);
}

void OEXTokenFieldCell::layOutButtons(const QRect & /*bounds*/) { }

void OEXTokenFieldCell::drawBezel(QPainter *painter, const QRectF &bounds, const QWidget *view) const
{
    if (!m_bezeled)
        return;
    const QStyleOptionFrame option = lineEditOption(bounds, view);
    view->style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, painter, view);
}

QVariant OEXTokenFieldCell::representedObjectWithAttachment(const ZEVTextAttachment *attachment,
                                                            const QString &text)
{
    if (attachment && attachment->representedObject().isValid())
        return attachment->representedObject();
    const QVariant object = foreignObject(attachment);
    return object.isValid() ? object : QVariant(text);
}

ZEVAttributedString OEXTokenFieldCell::textOfObject(const QVariant &object) const
{
    if (!object.isValid())
        return {};
    if (object.typeId() == QMetaType::QString)
        return ZEVAttributedString(object.toString());
    const OEXTokenFieldCellDelegate *delegate = m_delegate.get();
    if (delegate && !delegate->showsTokenForRepresentedObject(this, object))
        return ZEVAttributedString(
            delegate->displayStringForRepresentedObject(this, object).value_or(object.toString()));
    const auto attachment = std::make_shared<ZEVTextAttachment>(object);
    ZEVAttributedString text = ZEVTextAttachments::attributedStringWithAttachment(attachment);
    updateTokenAttachment(attachment.get(), text);
    return text;
}
