// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/inspector/CommentEdit.h>

#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>

#include <QAction>

void CommentEdit::performTextFinderAction(QObject *sender)
{
    if (m_finder)
        m_finder->performAction(sender->property("tag").toLongLong());
}
