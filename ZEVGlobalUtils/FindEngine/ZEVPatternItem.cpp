// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVAddressScan_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QString localized(QStringView key) { return ZEVGlobalHelper::localizedStringForKey(key); }

/// The plain wildcards are edited as the expression that they are.
ZEVPatternItem wildcard(QStringView title, const QString &tokenTitle, QStringView regexString)
{
    return ZEVPatternItem::itemWithTitle(localized(title), tokenTitle, regexString.toString(),
                                         regexString.toString());
}

ZEVPatternItem withTemplate(ZEVPatternItem item, QStringView regexTemplate)
{
    item.setRegexTemplateString(regexTemplate.toString());
    return item;
}

void registerForArchives()
{
    ZEVKeyedArchiver::registerClass<ZEVPatternItem>(u"ZEVPatternItem"_s);
    ZEVKeyedUnarchiver::registerClass<ZEVPatternItem>(u"ZEVPatternItem"_s);
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerForArchives)

ZEVPatternItem ZEVPatternItem::itemWithTitle(const Text &title, const Text &tokenTitle,
                                             const Text &editingString, const Text &regexString)
{
    ZEVPatternItem item;
    item.m_title = title;
    item.m_tokenTitle = tokenTitle;
    item.m_editingString = editingString;
    item.m_regexString = regexString;
    return item;
}

ZEVPatternItem ZEVPatternItem::wildCard() { return wildcard(u"Wildcard", u"＊"_s, u"(.*)"); }

ZEVPatternItem ZEVPatternItem::anyCharacters()
{
    return wildcard(u"Any Characters", localized(u"Any"), u"(.+)");
}

ZEVPatternItem ZEVPatternItem::anyCharacter()
{
    return wildcard(u"Any Character", localized(u"Char"), u"(.)");
}

ZEVPatternItem ZEVPatternItem::anyWord() { return wildcard(u"Any Word", localized(u"Word"), u"(\\w+)"); }

ZEVPatternItem ZEVPatternItem::whiteSpace() { return wildcard(u"White Space", u" "_s, u"(\\s+)"); }

ZEVPatternItem ZEVPatternItem::digits() { return wildcard(u"Digits", u"#"_s, u"(\\d+)"); }

ZEVPatternItem ZEVPatternItem::tab() { return withTemplate(wildcard(u"Tab", u"→"_s, u"(\\t)"), u"\\\t"); }

ZEVPatternItem ZEVPatternItem::email()
{
    return itemWithTitle(localized(u"Email Address"), u"Email"_s, u"(\\@)"_s,
                         ZEVEmailScan::Expression.toString());
}

ZEVPatternItem ZEVPatternItem::webAddress()
{
    return itemWithTitle(localized(u"Web Address"), u"URL"_s, u"(\\URL)"_s,
                         ZEVWebAddressScan::Expression.toString());
}

ZEVPatternItem ZEVPatternItem::lineBreak()
{
    return withTemplate(wildcard(u"Line Break", u"↵"_s, u"(\\n)"), u"\\\n");
}

QList<ZEVPatternItem> ZEVPatternItem::escapeItems()
{
    return {wildCard(), anyCharacters(), anyWord(), anyCharacter(), whiteSpace(), digits()};
}

QString ZEVPatternItem::escapeMenuLocalizedName() { return localized(u"Wildcards"); }

bool ZEVPatternItem::isEqualToPatternItem(const ZEVPatternItem &other) const
{
    return m_metadataKeyPath == other.m_metadataKeyPath
        && regexTemplateString() == other.regexTemplateString() && tokenTitle() == other.tokenTitle();
}

size_t ZEVPatternItem::hash() const
{
    return size_t(isDummy()) ^ qHash(tokenTitle().value_or(QString()))
        ^ qHash(regexTemplateString().value_or(QString()));
}

void ZEVPatternItem::encodeWithCoder(ZEVKeyedArchiver &archiver) const
{
    const auto encode = [&archiver](const Text &text, QStringView key) {
        if (text)
            archiver.encodeObject(*text, key);
    };
    encode(title(), u"title");
    encode(tokenTitle(), u"tokenTitle");
    encode(editingString(), u"editingString");
    encode(regexString(), u"regexString");
}

ZEVPatternItem::ZEVPatternItem(ZEVKeyedUnarchiver &unarchiver)
    : m_title(unarchiver.decodeString(u"title"))
    , m_tokenTitle(unarchiver.decodeString(u"tokenTitle"))
    , m_editingString(unarchiver.decodeString(u"editingString"))
    , m_regexString(unarchiver.decodeString(u"regexString"))
{
}
