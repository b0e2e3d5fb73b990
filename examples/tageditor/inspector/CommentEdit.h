// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>

class ZEVTextFinder;

/// An editor of several lines that has a finder of its own: the keys for finding reach it from the menu.
class CommentEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

    void setFinder(ZEVTextFinder *finder) { m_finder = finder; }

    Q_INVOKABLE void performTextFinderAction(QObject *sender);

private:
    ZEVTextFinder *m_finder = nullptr;
};
