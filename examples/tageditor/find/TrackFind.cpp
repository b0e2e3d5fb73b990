// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TrackFind.h>

#include <tageditor/find/FieldScope.h>
#include <tageditor/find/FindInterfaces.h>
#include <tageditor/find/FindPanelDialog.h>
#include <tageditor/find/ReplaceDialog.h>
#include <tageditor/find/TagTokens.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QTableView>

/// Bar and panel search the same table: this tells which of them asks.
class TrackFind::Asker : public QObject, public ZEVTextFinderUserInterfaceDelegate {
public:
    Asker(TrackFind *find, ZEVTextFinderUserInterfaceVC *interface)
        : QObject(interface)
        , m_find(find)
        , m_interface(interface)
    {
    }

    void performAction(qint64 action) override { m_find->finder().performAction(action); }
    void performSearchAgainstExpression(const std::optional<ZEVRegularExpression> &expression) override
    {
        m_find->search(m_interface, expression);
    }

private:
    TrackFind *m_find;
    ZEVTextFinderUserInterfaceVC *m_interface;
};

TrackFind::TrackFind(TrackTableModel *model, QTableView *table, TextEditing *editing)
    : FindPlace(table)
    , m_model(model)
    , m_editing(editing)
    , m_client(new ZEVItemModelFinderClient(model, table, &finder()))
    , m_asker(&bar())
{
    addAsker(&bar());
    m_client->setWriter([this](const auto &changes, const QString &name) { return write(changes, name); });
    actor().setQuerySource([this] { return m_asker->query(); });
    actor().setReplacePatternSource([this] { return m_asker->replacePattern(); });
    actor().setPlaceholderValue(
        [this](const ZEVPatternItem &item, const ZEVRange &match) { return valueOf(item, match); });
    table->setItemDelegate(new ZEVMatchHighlightDelegate(m_client, table));
    watchSearch();
}

TrackFind::~TrackFind() = default;

void TrackFind::watchSearch()
{
    connect(m_client, &ZEVItemModelFinderClient::textChanged, &actor(), &ZEVTextFinderActor::searchAgainSoon);
    connect(&finder(), &ZEVTextFinder::numberOfMatchesChanged, this, [this] {
        if (m_asker != &bar())
            m_asker->setNumberOfMatches(finder().numberOfMatches());
    });
    connect(&finder(), &ZEVTextFinder::searchPerformed, this, [this] {
        if (m_asker == &bar())
            return;
        m_asker->setSearchLimitReached(finder().limitReached());
        bar().setNumberOfMatches(std::nullopt); // it is not the bar's pattern that was counted
    });
}

void TrackFind::addAsker(ZEVTextFinderUserInterfaceVC *asker) { asker->setDelegate(new Asker(this, asker)); }

void TrackFind::search(ZEVTextFinderUserInterfaceVC *asker,
                       const std::optional<ZEVRegularExpression> &expression)
{
    m_asker = asker;
    const auto *scope = dynamic_cast<const FieldScope *>(asker->query().scope().get());
    m_client->setColumns(scope ? scope->columns() : QList<int>());
    finder().performSearchAgainstExpression(expression);
}

QList<TrackFind::Match> TrackFind::matches()
{
    QList<Match> matches;
    if (!actor().searchIfChanged())
        return matches;
    for (const ZEVRange &found : finder().foundMatches()) {
        Match match;
        const QModelIndex cell = m_client->cellOfRange(found, &match.range);
        match.row = cell.row();
        match.field = TrackField(cell.column());
        matches.append(match);
    }
    return matches;
}

bool TrackFind::write(const QList<ZEVItemModelFinderClient::CellChange> &changes, const QString &name)
{
    QList<TextChange> texts;
    for (const auto &change : changes)
        texts.append(
            {m_model->track(change.index.row()).id, TrackField(change.index.column()), change.after});
    return m_editing->change(name, texts);
}

std::optional<ZEVOrvCaptureMatch> TrackFind::valueOf(const ZEVPatternItem &item, const ZEVRange &match) const
{
    const std::optional<TrackField> field = TagTokens::fieldOf(item);
    const QModelIndex cell = m_client->cellOfRange(match);
    if (!field || !cell.isValid())
        return std::nullopt;
    return ZEVOrvCaptureMatch{item, m_model->track(cell.row()).text(*field)};
}

void TrackFind::showPanel()
{
    if (!m_panel) {
        m_panel = new FindPanelDialog(this);
        addAsker(&m_panel->panel());
        connect(m_panel, &FindPanelDialog::reviewRequested, this, &TrackFind::reviewReplacements);
    }
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
}

void TrackFind::reviewReplacements()
{
    auto *dialog = new ReplaceDialog(actor().preview(), *m_client, m_asker == &bar() ? window() : m_panel);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { actor().apply(dialog->chosen()); });
    dialog->open();
}
