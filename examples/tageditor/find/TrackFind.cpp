// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/TrackFind.h>

#include <tageditor/find/FieldScope.h>
#include <tageditor/find/FindPanelDialog.h>
#include <tageditor/find/ReplaceDialog.h>
#include <tageditor/find/TagTokens.h>
#include <tageditor/find/TrackDelegate.h>
#include <tageditor/find/TrackFinderClient.h>
#include <tageditor/text/TextEditing.h>
#include <tageditor/tracks/TrackTableModel.h>

#include <ZEVGlobalUtils/FindEngine/ZEVOrvCaptureMatch.h>

#include <QTableView>

#include <numeric>

TrackFind::TrackFind(TrackTableModel *model, QTableView *table, TextEditing *editing)
    : ZEVFindPlace(static_cast<QWidget *>(table), std::make_unique<FindBar>())
    , m_model(model)
    , m_editing(editing)
    , m_client(new TrackFinderClient(model, table, &finder()))
{
    setKeysEnabled(false); // the window's menu has them
    m_client->setWriter([this](const auto &changes, const QString &name) { return write(changes, name); });
    actor().setPlaceholderValue(
        [this](const ZEVPatternItem &item, const ZEVRange &match) { return valueOf(item, match); });
    table->setItemDelegate(new TrackDelegate(m_client, table));
    connect(m_client, &ZEVItemModelFinderClient::textChanged, &actor(), &ZEVTextFinderActor::searchAgainSoon);
    connect(&finder(), &ZEVTextFinder::searchBegins, this, &TrackFind::searchColumnsOfScope);
}

TrackFind::~TrackFind() = default;

void TrackFind::searchColumnsOfScope()
{
    const auto *scope = dynamic_cast<const FieldScope *>(finder().lastRequest().query.scope().get());
    QList<int> fields(TrackFieldCount);
    std::iota(fields.begin(), fields.end(), 0);
    m_client->setColumns(scope && !scope->columns().isEmpty() ? scope->columns() : fields);
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
    return ZEVOrvCaptureMatch{item, TagTokens::textOf(*field, m_model->track(cell.row()))};
}

void TrackFind::showPanel()
{
    if (!m_panel) {
        m_panel = new FindPanelDialog(this);
        finder().addInterface(&m_panel->panel());
        connect(m_panel, &FindPanelDialog::reviewRequested, this, &TrackFind::reviewReplacements);
    }
    m_panel->show();
    m_panel->raise();
    m_panel->activateWindow();
}

void TrackFind::reviewReplacements()
{
    const bool isPanels = m_panel && finder().lastRequest().asker == &m_panel->panel();
    auto *dialog = new ReplaceDialog(actor().preview(), *m_client, isPanels ? m_panel : window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { actor().apply(dialog->chosen()); });
    dialog->open();
}
