// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVShownTokenText_p.h>

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachmentCell.h>

ZEVShownTokenText::ZEVShownTokenText(const OEXTokenTextStorage &storage)
{
    const ZEVAttributedString text = storage.attributedString();
    for (const ZEVTextAttachments::Run &run : ZEVTextAttachments::runs(text)) {
        if (!run.attachment) {
            m_string += text.string().mid(run.range.location, run.range.length);
            continue;
        }
        const ZEVTextAttachmentCell *cell = run.attachment->attachmentCell();
        const QString title = cell ? cell->title() : QString();
        m_tokens.append(Token{run.range.location, {m_string.size(), title.size()}});
        m_string += title;
    }
}

qsizetype ZEVShownTokenText::storageIndex(qsizetype shownIndex, bool isEnd) const
{
    qsizetype surplus = 0; // by how much the titles so far are longer than their characters
    for (const Token &token : m_tokens) {
        if (shownIndex <= token.shown.location)
            break;
        if (shownIndex < token.shown.end())
            return token.storageIndex + (isEnd ? 1 : 0);
        surplus += token.shown.length - 1;
    }
    return shownIndex - surplus;
}

ZEVRange ZEVShownTokenText::storageRange(qsizetype shownStart, qsizetype shownEnd) const
{
    const qsizetype start = storageIndex(shownStart);
    return {start, qMax<qsizetype>(0, storageIndex(shownEnd, true) - start)};
}

qsizetype ZEVShownTokenText::shownIndex(qsizetype storageIndex) const
{
    qsizetype surplus = 0;
    for (const Token &token : m_tokens) {
        if (token.storageIndex < storageIndex)
            surplus += token.shown.length - 1;
    }
    return storageIndex + surplus;
}
