// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/PatternString.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

using namespace Qt::StringLiterals;

namespace {

void appendLiteral(QVariantList &pattern, QString &literal)
{
    if (!literal.isEmpty())
        pattern.append(std::exchange(literal, {}));
}

/// The token that \a text begins with, or null.
const ZEVPatternItem *leadingToken(QStringView text, const QList<ZEVPatternItem> &vocabulary)
{
    for (const ZEVPatternItem &item : vocabulary) {
        if (text.startsWith(PatternString::textForItem(item)))
            return &item;
    }
    return nullptr;
}

} // namespace

QList<ZEVPatternItem> PatternString::vocabulary()
{
    return {ZEVPatternItem::wildCard(),     ZEVPatternItem::anyCharacters(), ZEVPatternItem::anyWord(),
            ZEVPatternItem::anyCharacter(), ZEVPatternItem::whiteSpace(),    ZEVPatternItem::digits(),
            ZEVPatternItem::tab(),          ZEVPatternItem::lineBreak(),     ZEVPatternItem::email(),
            ZEVPatternItem::webAddress()};
}

QVariantList PatternString::patternFromText(QStringView text)
{
    const QList<ZEVPatternItem> items = vocabulary();
    QVariantList pattern;
    QString literal;
    while (!text.isEmpty()) {
        const ZEVPatternItem *item = text.front() == u'%' ? leadingToken(text, items) : nullptr;
        if (item) {
            appendLiteral(pattern, literal);
            pattern.append(QVariant::fromValue(*item));
            text = text.sliced(textForItem(*item).size());
        } else {
            literal += text.front();
            text = text.sliced(text.startsWith(u"%%") ? 2 : 1);
        }
    }
    appendLiteral(pattern, literal);
    return pattern;
}

QString PatternString::textForItem(const ZEVPatternItem &item)
{
    return u'%' + item.editingString().value_or(QString()) + u'%';
}
