// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakeCellView.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldCell.h>

/// The cell of a pattern field that draws no frame of its own: it tells the view behind it whether the field
/// is edited or holds something.
class ZEV_EXPORT ZEVFocusTokenFieldCell : public ZEVTokenFieldCell {
public:
    ZEVTextFinderFakeCellView *fakeCellView() const { return m_fakeCellView; }
    void setFakeCellView(ZEVTextFinderFakeCellView *view) { m_fakeCellView = view; }

    void setObjectValue(const QVariantList &objects) override;
    QTextEdit *setUpFieldEditorAttributes(QTextEdit *editor) override;
    void endEditing(QTextEdit *editor) override;

private:
    void setFocused(bool focused);

    QPointer<ZEVTextFinderFakeCellView> m_fakeCellView;
};
