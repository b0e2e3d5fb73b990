// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCellDelegate.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorageDelegate.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVControlSize.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QFont>
#include <QPointer>
#include <QRectF>

class OEXTokenTextStorage;
class QPainter;
class QTextEdit;
class QWidget;
class ZEVTextAttachment;

/// The half of a token field that converts between its text and its value, and knows its geometry. The value
/// is a list of represented objects: a QString for every stretch of text, any other object for a token.
class ZEV_EXPORT OEXTokenFieldCell : public OEXTokenTextStorageDelegate {
public:
    OEXTokenFieldCell();
    ~OEXTokenFieldCell() override;
    Q_DISABLE_COPY_MOVE(OEXTokenFieldCell)

    OEXTokenFieldCellDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(ZEVWeakRef<OEXTokenFieldCellDelegate> delegate) { m_delegate = std::move(delegate); }

    /// The widget that the cell belongs to; null while it belongs to none.
    QWidget *controlView() const { return m_controlView; }
    virtual void setControlView(QWidget *view) { m_controlView = view; }

    const QFont &font() const { return m_font; }
    void setFont(const QFont &font) { m_font = font; }
    ZEVControlSize controlSize() const { return m_controlSize; }
    void setControlSize(ZEVControlSize size) { m_controlSize = size; }

    /// Whether the cell draws the frame of a line edit around itself; it does at first.
    bool isBezeled() const { return m_bezeled; }
    void setBezeled(bool bezeled) { m_bezeled = bezeled; }

    /// Takes over what the user of \a other has set: delegate, font, size and bezel.
    void takeSettingsFrom(const OEXTokenFieldCell &other);

    /// The value is that of the editor which the cell has set up: the text of that one is its only store.
    /// Without an editor there is none, and nothing can be set.
    QVariantList objectValue() const;
    virtual void setObjectValue(const QVariantList &objects);

    /// The value as text, every token as an attachment that is ready to be drawn.
    ZEVAttributedString attributedStringValue() const;
    void setAttributedStringValue(const ZEVAttributedString &text);

    /// Neighbouring texts become one. What the delegate shows as no token becomes the text that it has.
    ZEVAttributedString attributedStringForObjects(const QVariantList &objects) const;
    static QVariantList objectsForAttributedString(const ZEVAttributedString &text);

    /// Makes \a editor's text an OEXTokenTextStorage that asks this cell, and answers \a editor.
    virtual QTextEdit *setUpFieldEditorAttributes(QTextEdit *editor);
    /// The editor's storage asks nobody any more; it stays.
    virtual void endEditing(QTextEdit *editor);

    /// Gives \a attachment its object and its cell, once. \a text is its character.
    void updateTokenAttachment(ZEVTextAttachment *attachment, const ZEVAttributedString &text) const;
    void updateTokenAttachment(OEXTokenTextStorage *storage, ZEVTextAttachment *attachment,
                               ZEVRange range) override;
    std::unique_ptr<ZEVTextAttachmentCell> attachmentCellForRepresentedObject(const QVariant &object) const;

    /// Where the text goes in a field of \a bounds.
    virtual QRectF drawingRectForBounds(const QRectF &bounds) const;
    /// Puts what else stands in the field to its place.
    virtual void layOutButtons(const QRect &bounds);

    /// The background and the frame; nothing when the cell is not bezeled.
    virtual void drawBezel(QPainter *painter, const QRectF &bounds, const QWidget *view) const;

protected:
    /// The field lays itself out anew: what stands in it has another place now.
    void geometryDidChange();

private:
    static QVariant representedObjectWithAttachment(const ZEVTextAttachment *attachment, const QString &text);
    ZEVAttributedString textOfObject(const QVariant &object) const;

    ZEVWeakRef<OEXTokenFieldCellDelegate> m_delegate;
    QWidget *m_controlView = nullptr;
    QPointer<OEXTokenTextStorage> m_storage;
    QFont m_font;
    ZEVControlSize m_controlSize = ZEVControlSize::Regular;
    bool m_bezeled = true;
};
