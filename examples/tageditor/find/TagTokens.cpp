// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TagTokens.h>

#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// The names of the fields in patterns and archives, whatever the user's language.
constexpr std::array<QStringView, TrackFieldCount> KeyPaths{
    u"file",    u"title",       u"artist",   u"album",      u"year", u"track",     u"genre",
    u"comment", u"albumartist", u"composer", u"tracktotal", u"disc", u"disctotal",
};

constexpr QStringView NextValueKeyPath = u"value";

ZEVPatternItem tokenOf(TrackField field)
{
    const QString title = TrackTableModel::titleForField(field);
    const QString keyPath = KeyPaths.at(size_t(field)).toString();
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(title, title, keyPath, std::nullopt);
    item.setMetadataKeyPath(keyPath);
    return item;
}

} // namespace

QList<ZEVPatternItem> TagTokens::fieldTokens()
{
    QList<ZEVPatternItem> items;
    for (int field = 0; field < TrackFieldCount; ++field)
        items.append(tokenOf(TrackField(field)));
    return items;
}

QList<ZEVPatternItem> TagTokens::captureTokens(const QString &excluded)
{
    QList<ZEVPatternItem> items;
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field) {
        ZEVPatternItem item = tokenOf(TrackField(field));
        const QString text = excluded.isEmpty() ? u"(.+?)"_s : u"([^"_s + excluded + u"]+?)"_s;
        item.setRegexString(isNumber(TrackField(field)) ? u"(\\d+)"_s : text);
        items.append(item);
    }
    return items;
}

ZEVPatternTokens::Groups TagTokens::findTokens()
{
    return {ZEVPatternItem::escapeItems(),
            {ZEVPatternItem::tab(), ZEVPatternItem::lineBreak()},
            {ZEVPatternItem::email(), ZEVPatternItem::webAddress()}};
}

ZEVPatternTokens::Groups TagTokens::replaceTokens()
{
    return ZEVPatternTokens::Groups{fieldTokens()} + findTokens();
}

std::optional<TrackField> TagTokens::fieldOf(const ZEVPatternItem &item)
{
    const auto *keyPath = std::ranges::find(KeyPaths, item.metadataKeyPath().value_or(QString()));
    if (keyPath == KeyPaths.end())
        return std::nullopt;
    return TrackField(keyPath - KeyPaths.begin());
}

ZEVPatternItem TagTokens::nextValue()
{
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(
        QCoreApplication::translate("TagTokens", "Next Value"), QString(TagValues::ShownSeparator),
        NextValueKeyPath.toString(), std::nullopt);
    item.setMetadataKeyPath(NextValueKeyPath.toString());
    return item;
}

QVariantList TagTokens::pattern(const QString &text)
{
    QVariantList pattern;
    for (const QString &value : TagValues::of(text)) {
        if (!pattern.isEmpty())
            pattern.append(QVariant::fromValue(nextValue()));
        pattern.append(value);
    }
    pattern.removeAll(QString());
    return pattern;
}

QString TagTokens::textOf(TrackField field, const Track &track)
{
    return TagValues::joined(track.text(field));
}

/// A tag that is taken over whole keeps its values.
QString TagTokens::filledIn(const QVariantList &pattern, const Track &track)
{
    QString text;
    for (const QVariant &part : pattern) {
        if (!part.canConvert<ZEVPatternItem>())
            text += part.toString();
        else if (const auto item = part.value<ZEVPatternItem>(); item == nextValue())
            text += TagValues::Separator;
        else if (const auto field = fieldOf(item))
            text += pattern.size() == 1 ? track.text(*field) : textOf(*field, track);
    }
    return text;
}
