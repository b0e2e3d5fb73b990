// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

class ZEVPatternTokens;

/// Edits one tag of one or more tracks. What is typed may hold tokens for the other tags, which stand for
/// each track's own.
class TagField : public ZEVTokenField {
    Q_OBJECT

public:
    explicit TagField(ZEVPatternTokens *tokens, QWidget *parent = nullptr);

Q_SIGNALS:
    /// Return was pressed, or the focus went elsewhere.
    void editingFinished();

    /// Escape was pressed: what was typed is not meant.
    void cancelled();

    /// What a field shows nothing of is to be empty.
    void emptied();

protected:
    bool performCommand(ZEVTextCommand command) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
