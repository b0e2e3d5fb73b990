// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QWindow>

#include <memory>

/// One question to the program that a drag comes from: its data of one type. It may take minutes over the answer, or
/// never give one, and nobody waits for it. X Drag-and-Drop, version 5. Main thread only.
class ZEVDragRequest : public QObject {
    Q_OBJECT

public:
    /// Asks on behalf of \a window, the one with a title bar that the drop is for. What is asked while the drop is
    /// being handled reaches the source before it learns that the drop is over. Null where there is no other
    /// program to ask: the drag comes from this one, or not by way of an X server.
    static std::unique_ptr<ZEVDragRequest> ask(WId window, QStringView mimeType, qint64 mostBytes);

    /// Waits for what comes at once. The question stays open.
    virtual void waitForAnswer(int milliseconds) = 0;

Q_SIGNALS:
    /// Once. Null where the source refuses, goes away, or has more than is wanted.
    void answered(const QByteArray &data);
};
