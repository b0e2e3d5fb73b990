// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tageditor/files/FileJournal.h>

#include <QList>
#include <QUndoCommand>

#include <functional>
#include <memory>

/// A batch that has been done to files, among the steps to undo. Both ways take their time: the step only
/// starts them.
class FileCommand : public QUndoCommand {
public:
    /// As they were done last.
    using Changes = std::shared_ptr<QList<FileChange>>;
    using Run = std::function<void(const Changes &)>;

    FileCommand(const QString &name, Changes changes, Run takeBack, Run repeat)
        : QUndoCommand(name)
        , m_changes(std::move(changes))
        , m_takeBack(std::move(takeBack))
        , m_repeat(std::move(repeat))
    {
    }

    void undo() override { m_takeBack(m_changes); }
    void redo() override
    {
        if (std::exchange(m_isPushed, true))
            m_repeat(m_changes);
    }

private:
    Changes m_changes;
    Run m_takeBack;
    Run m_repeat;
    bool m_isPushed = false;
};
