// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Values/ZEVRange.h>

#include <QAccessibleWidget>

class OEXTokenField;
class ZEVShownTokenText;

/// What a screen reader is told of a token field: the text with the title of each token in its place. All
/// its offsets count in that text.
class ZEVTokenFieldAccessible : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface {
public:
    /// Lets every token field be described by this class, once a process.
    static void install();

    explicit ZEVTokenFieldAccessible(OEXTokenField *field);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text type) const override;
    void setText(QAccessible::Text type, const QString &text) override;
    QAccessible::State state() const override;

    void selection(int selectionIndex, int *startOffset, int *endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int *startOffset, int *endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int startOffset, int endOffset, const QString &text) override;

private:
    OEXTokenField *field() const;
    ZEVShownTokenText shownText() const;
};
