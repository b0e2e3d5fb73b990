// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuItem.h>

#include <ZEVGlobalUtils/Menus/Items/ZEVMenuKeeper_p.h>
#include <ZEVGlobalUtils/Menus/Items/ZEVMenuTitleDrawing_p.h>

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr char TitlesKey[] = "zevTitles";
constexpr char TagKey[] = "tag"; // as interface files call it
constexpr int LastIndentationLevel = 15;

struct Titles {
    QString title;
    std::optional<ZEVAttributedString> attributedTitle;
    int indentationLevel = 0;
    QString text; ///< the action's, as long as the host sets no other
};

/// Out of a text in which "&" marks a mnemonic.
QString literalTitle(const QString &text)
{
    if (!text.contains(u'&'))
        return text;
    QString title;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && ++i == text.size())
            break;
        title += text[i];
    }
    return title;
}

/// A menu would take what follows a tab for a shortcut, and an item is one line.
QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (character.isSpace())
            character = u' ';
    }
    return text;
}

Titles titles(const QAction *item)
{
    auto titles = item->property(TitlesKey).value<Titles>();
    if (titles.text != item->text() || titles.text.isEmpty())
        titles = {literalTitle(item->text()), std::nullopt, titles.indentationLevel, {}};
    return titles;
}

QString indentation(const Titles &titles) { return QString(titles.indentationLevel, QChar(0x2003)); }

void setTitles(QAction *item, Titles titles)
{
    const QString shown = titles.attributedTitle ? titles.attributedTitle->string() : titles.title;
    titles.text = indentation(titles) + onOneLine(shown).replace(u'&', u"&&"_s);
    item->setProperty(TitlesKey, QVariant::fromValue(titles));
    if (item->text() == titles.text)
        Q_EMIT item->changed(); // the title may be another one all the same
    item->setText(titles.text);
    for (QObject *object : item->associatedObjects()) {
        auto *menu = qobject_cast<QMenu *>(object);
        if (menu && titles.attributedTitle)
            ZEVMenuKeeper::keeperOfMenu(menu);
        if (auto *widget = qobject_cast<QWidget *>(object))
            widget->update(); // the same text may have other colours
    }
}

} // namespace

Q_DECLARE_METATYPE(Titles)

std::optional<ZEVMenuTitleDrawing::ShownTitle> ZEVMenuTitleDrawing::shownTitle(const QAction *item)
{
    if (!item->property(TitlesKey).isValid())
        return std::nullopt;
    const Titles titles = ::titles(item);
    if (!titles.attributedTitle)
        return std::nullopt;
    ZEVAttributedString text(onOneLine(titles.attributedTitle->string()));
    for (const QTextLayout::FormatRange &range : titles.attributedTitle->formats())
        text.setFormat({range.start, range.length}, range.format);
    return ShownTitle{text, indentation(titles)};
}

/// Without a copy of all the titles: a filter asks for thousands at every key.
QString ZEVMenuItem::title(const QAction *item)
{
    const QVariant stored = item->property(TitlesKey);
    const auto *titles = stored.metaType() == QMetaType::fromType<Titles>()
        ? static_cast<const Titles *>(stored.constData())
        : nullptr;
    const bool isOurs = titles && !titles->text.isEmpty() && titles->text == item->text();
    return isOurs ? titles->title : literalTitle(item->text());
}

void ZEVMenuItem::setTitle(QAction *item, const QString &title)
{
    Titles titles = ::titles(item);
    titles.title = title;
    setTitles(item, titles);
}

std::optional<ZEVAttributedString> ZEVMenuItem::attributedTitle(const QAction *item)
{
    return titles(item).attributedTitle;
}

void ZEVMenuItem::setAttributedTitle(QAction *item, const std::optional<ZEVAttributedString> &title)
{
    if (title)
        ZEVMenuTitleDrawing::begin();
    Titles titles = ::titles(item);
    titles.attributedTitle = title;
    setTitles(item, titles);
}

int ZEVMenuItem::indentationLevel(const QAction *item) { return titles(item).indentationLevel; }

void ZEVMenuItem::setIndentationLevel(QAction *item, int level)
{
    Titles titles = ::titles(item);
    titles.indentationLevel = qBound(0, level, LastIndentationLevel);
    setTitles(item, titles);
}

QVariant ZEVMenuItem::representedObject(const QAction *item) { return item->data(); }
void ZEVMenuItem::setRepresentedObject(QAction *item, const QVariant &object) { item->setData(object); }

qint64 ZEVMenuItem::tag(const QAction *item) { return item->property(TagKey).toLongLong(); }
void ZEVMenuItem::setTag(QAction *item, qint64 tag) { item->setProperty(TagKey, tag); }

ZEVMenuItem::State ZEVMenuItem::state(const QAction *item) { return item->isChecked() ? On : Off; }

void ZEVMenuItem::setState(QAction *item, State state)
{
    if (state == On)
        item->setCheckable(true);
    item->setChecked(state == On);
}

QAction *ZEVMenuItem::copyOfItem(QAction *item, QObject *parent)
{
    auto *copy = new QAction(item->icon(), item->text(), parent);
    copy->setProperty(TitlesKey, item->property(TitlesKey));
    copy->setProperty(TagKey, item->property(TagKey));
    copy->setData(item->data());
    copy->setSeparator(item->isSeparator());
    copy->setShortcut(item->shortcut());
    copy->setFont(item->font());
    copy->setCheckable(item->isCheckable());
    copy->setChecked(item->isChecked());
    copy->setEnabled(item->isEnabled());
    copy->setVisible(item->isVisible());
    QObject::connect(copy, &QAction::triggered, item, &QAction::trigger);
    return copy;
}
