// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>

#include <QTextEdit>

void ZEVFocusTokenFieldCell::setObjectValue(const QVariantList &objects)
{
    if (!controlView() || !controlView()->hasFocus())
        setFocused(!objects.isEmpty());
    ZEVTokenFieldCell::setObjectValue(objects);
}

QTextEdit *ZEVFocusTokenFieldCell::setUpFieldEditorAttributes(QTextEdit *editor)
{
    if (editor->hasFocus())
        setFocused(true);
    return ZEVTokenFieldCell::setUpFieldEditorAttributes(editor);
}

void ZEVFocusTokenFieldCell::endEditing(QTextEdit *editor)
{
    setFocused(!editor->document()->isEmpty());
    ZEVTokenFieldCell::endEditing(editor);
}

void ZEVFocusTokenFieldCell::setFocused(bool focused)
{
    if (m_fakeCellView)
        m_fakeCellView->setFocused(focused);
}
