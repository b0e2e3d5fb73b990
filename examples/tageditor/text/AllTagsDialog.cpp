// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/AllTagsDialog.h>

#include <tageditor/tracks/TagValues.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { Name, Text };

/// Line breaks and the ends of values show as marks, which no text is likely to hold.
constexpr QChar ShownBreak = u'\u2424';

QString shown(QString text)
{
    return text.replace(TagValues::Separator, TagValues::ShownSeparator).replace(u'\n', ShownBreak);
}
QString taken(QString text)
{
    return text.replace(TagValues::ShownSeparator, TagValues::Separator).replace(ShownBreak, u'\n');
}

} // namespace

AllTagsDialog::AllTagsDialog(QList<Track> tracks, QList<OtherTags> others, QWidget *parent)
    : QDialog(parent)
    , m_tracks(std::move(tracks))
    , m_others(std::move(others))
    , m_table(new QTableWidget(0, 2))
{
    setWindowTitle(tr("All Tags"));
    layOut();
    fill();
}

void AllTagsDialog::layOut()
{
    m_table->setAccessibleName(windowTitle());
    m_table->setHorizontalHeaderLabels({tr("Tag"), tr("Text")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton *add = buttons->addButton(tr("&Add…"), QDialogButtonBox::ActionRole);
    QPushButton *remove = buttons->addButton(tr("&Remove"), QDialogButtonBox::ActionRole);
    for (QPushButton *button : {add, remove})
        button->setAutoDefault(false);
    connect(add, &QPushButton::clicked, this, &AllTagsDialog::askForName);
    connect(remove, &QPushButton::clicked, this, &AllTagsDialog::removeSelected);
    connect(buttons, &QDialogButtonBox::accepted, this, &AllTagsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &AllTagsDialog::reject);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_table, 1);
    rows->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 28);
}

void AllTagsDialog::fill()
{
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field) {
        QStringList texts;
        for (const Track &track : std::as_const(m_tracks))
            texts.append(track.text(TrackField(field)));
        addRow({{}, TrackField(field), shownText(texts)}, TrackTableModel::titleForField(TrackField(field)));
    }
    QMap<QString, QStringList> others;
    for (const OtherTags &tags : std::as_const(m_others)) {
        for (const QString &name : tags.keys())
            others.insert(name, {});
    }
    for (auto tag = others.begin(); tag != others.end(); ++tag) {
        for (const OtherTags &tags : std::as_const(m_others))
            tag->append(tags.value(tag.key()));
        addRow({tag.key(), std::nullopt, shownText(*tag)}, tag.key());
    }
    m_table->resizeColumnToContents(Name);
}

QString AllTagsDialog::shownText(const QStringList &texts) const
{
    const bool isMixed =
        std::ranges::any_of(texts, [&](const QString &text) { return text != texts.first(); });
    return isMixed ? tr("‹Mixed›") : shown(texts.value(0));
}

void AllTagsDialog::addRow(const Row &row, const QString &title)
{
    const int place = m_table->rowCount();
    m_table->insertRow(place);
    auto *name = new QTableWidgetItem(title);
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    m_table->setItem(place, Name, name);
    m_table->setItem(place, Text, new QTableWidgetItem(row.shown));
    m_rows.push_back(row);
}

void AllTagsDialog::askForName()
{
    const QString name = QInputDialog::getText(this, tr("Add Tag"), tr("Name, such as MOOD:"));
    if (!name.trimmed().isEmpty())
        addTag(name.trimmed().toUpper());
}

void AllTagsDialog::addTag(const QString &name)
{
    auto row = std::ranges::find(m_rows, name, &Row::name);
    if (row == m_rows.end()) {
        addRow({name, std::nullopt, QString()}, name);
        row = std::prev(m_rows.end());
    }
    QTableWidgetItem *text = m_table->item(int(row - m_rows.begin()), Text);
    m_table->setCurrentItem(text);
    if (isVisible())
        m_table->editItem(text);
}

void AllTagsDialog::removeSelected()
{
    for (const QTableWidgetItem *item : m_table->selectedItems())
        m_table->item(item->row(), Text)->setText({});
}

/// Nil where the user has changed nothing.
std::optional<QString> AllTagsDialog::changedText(size_t row) const
{
    const QString text = m_table->item(int(row), Text)->text();
    return text == m_rows.at(row).shown ? std::nullopt : std::optional(taken(text));
}

QList<TextChange> AllTagsDialog::textChanges() const
{
    QList<TextChange> changes;
    for (size_t row = 0; row < m_rows.size(); ++row) {
        const std::optional<QString> text = changedText(row);
        for (const Track &track : m_tracks) {
            if (text && m_rows[row].field)
                changes.append({track.id, *m_rows[row].field, *text});
        }
    }
    return changes;
}

QList<OtherTagsChange> AllTagsDialog::otherChanges() const
{
    QList<OtherTagsChange> changes;
    for (qsizetype n = 0; n < m_tracks.size(); ++n) {
        OtherTags tags = m_others.at(n);
        for (size_t row = 0; row < m_rows.size(); ++row) {
            const std::optional<QString> text = changedText(row);
            if (!text || m_rows[row].field)
                continue;
            tags.insert(m_rows[row].name, *text);
            if (text->isEmpty())
                tags.remove(m_rows[row].name);
        }
        if (tags != m_others.at(n))
            changes.append({m_tracks.at(n).id, m_others.at(n), tags});
    }
    return changes;
}
