// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldDelegate.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVSelectedRanges.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVControlSize.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QTextEdit>
#include <QTimer>

class OEXTokenFieldCell;
class OEXTokenTextStorage;
class ZEVOneLineLayout;

/// Whose step a change of a field's value is. The user's can be undone; with the program's, undo begins anew.
enum class ZEVValueStep {
    Program,
    User,
};

/// A line edit that holds tokens beside its text. It is its own editor: what the user types is the value at
/// once. A token is one character for the caret, the keys and the selection; copied tokens stay tokens in
/// other fields and become text elsewhere; a screen reader hears their titles.
class ZEV_EXPORT OEXTokenField : public QTextEdit, public ZEVSelectedRanges {
    Q_OBJECT
    Q_PROPERTY(QVariantList objectValue READ objectValue WRITE setObjectValue NOTIFY objectValueChanged)
    Q_PROPERTY(QString stringValue READ stringValue NOTIFY objectValueChanged)
    Q_PROPERTY(bool bezeled READ isBezeled WRITE setBezeled)

public:
    explicit OEXTokenField(QWidget *parent = nullptr);
    ~OEXTokenField() override;

    OEXTokenFieldDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(ZEVWeakRef<OEXTokenFieldDelegate> delegate);

    OEXTokenFieldCell *cell() const { return m_cell.get(); }
    /// \a cell takes over the settings of the one that it replaces. The value stays.
    void setCell(std::unique_ptr<OEXTokenFieldCell> cell);

    /// What stands in the field, in order: a QString for a stretch of text, any other object for a token.
    /// Neighbouring texts are one, and line breaks stand in it as marks. The same value changes nothing.
    QVariantList objectValue() const;
    void setObjectValue(const QVariantList &objects, ZEVValueStep step = ZEVValueStep::Program);

    /// The text with the title of every token in its place.
    QString stringValue() const;

    /// Whether the field draws the frame of a line edit.
    bool isBezeled() const;
    void setBezeled(bool bezeled);
    ZEVControlSize controlSize() const;
    void setControlSize(ZEVControlSize size);

    /// Typing one of these behind the editing string of a token makes it that token; none at first.
    const QString &tokenizingCharacterSet() const { return m_tokenizingCharacters; }
    void setTokenizingCharacterSet(const QString &characters) { m_tokenizingCharacters = characters; }

    OEXTokenTextStorage *textStorage() const;
    bool isBeingEdited() const { return hasFocus() && !isReadOnly(); }
    ZEVRange selectedRange() const;
    void setSelectedRange(ZEVRange range);
    QList<ZEVRange> selectedRanges() const override { return {selectedRange()}; }

    /// Selects the token at \a index, which the user has clicked.
    void clickedOnCellAtIndex(qsizetype index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Where the character at \a index stands in the viewport, in one piece wherever its neighbours are.
    QRectF characterRect(qsizetype index) const;

Q_SIGNALS:
    /// The value is another one, by typing or by program. A receiver may delete the field.
    void objectValueChanged();
    /// The user asks for what the field is there for, by Return.
    void actionTriggered();

protected:
    OEXTokenField(std::unique_ptr<OEXTokenFieldCell> cell, QWidget *parent);

    /// Whether two objects of a value are the same in all that a field shows or tells; more than ==, which may
    /// overlook a part.
    virtual bool isSameObject(const QVariant &one, const QVariant &other) const;

    /// Changes the text without telling anybody; reportValue() is to follow, last of all.
    void replaceValue(const QVariantList &objects, ZEVValueStep step);
    /// Tells of the value when it is not the one that was told of last.
    void reportValue();

    /// What a pasted \a text is in this field.
    virtual QVariantList objectsForPastedText(const QString &text) const;

    /// False passes the key on to the window.
    virtual bool performCommand(ZEVTextCommand command);

    void sendAction() { Q_EMIT actionTriggered(); }

    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
    void setUp();
    void setUpText();
    void rebuildText();
    bool isSameValue(const QVariantList &one, const QVariantList &other) const;
    void layOutEditor();
    void fitLayout();
    ZEVOneLineLayout *oneLineLayout() const;
    void updateFonts();
    void insertObjects(const QVariantList &objects);
    bool doCommand(ZEVTextCommand command);
    bool moveByWord(QKeyEvent *event);
    bool endsToken(const QKeyEvent &event) const;
    bool tokenizeBeforeCaret();
    std::optional<qsizetype> tokenAt(QPoint position) const;
    QPointF textOrigin() const;
    void selectClickedToken(qsizetype index);
    QString textFormOfObjects(const QVariantList &objects) const;

    ZEVWeakRef<OEXTokenFieldDelegate> m_delegate;
    std::unique_ptr<OEXTokenFieldCell> m_cell;
    QString m_tokenizingCharacters;
    std::optional<qsizetype> m_pressedToken;
    QVariantList m_reportedValue;
    QTimer m_report; ///< of an edit that no event of the field's has made
};
