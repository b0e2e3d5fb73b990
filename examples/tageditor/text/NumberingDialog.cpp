// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/NumberingDialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHash>
#include <QSpinBox>

namespace {

constexpr int HighestNumber = 9999;

QString folderOf(const Track &track) { return displayedPath(track.path.parent_path()); }

} // namespace

NumberingDialog::NumberingDialog(QWidget *parent)
    : QDialog(parent)
    , m_field(new QComboBox)
    , m_first(new QSpinBox)
    , m_withTotal(new QCheckBox(tr("Set the &total, too")))
    , m_byFolder(new QCheckBox(tr("Begin anew in each &folder")))
{
    setWindowTitle(tr("Number Tracks"));
    m_field->addItem(tr("Tracks in their order in the table"), int(TrackField::Number));
    m_field->addItem(tr("Discs, one for each folder"), int(TrackField::Disc));
    m_first->setRange(0, HighestNumber);
    m_first->setValue(1);
    m_withTotal->setChecked(true);
    m_byFolder->setChecked(true);
    connect(m_field, &QComboBox::currentIndexChanged, m_byFolder,
            [this](int n) { m_byFolder->setEnabled(n == 0); });
    layOut();
}

void NumberingDialog::layOut()
{
    auto *form = new QFormLayout(this);
    form->addRow(tr("&Number:"), m_field);
    form->addRow(tr("&Begin with:"), m_first);
    form->addRow(m_byFolder);
    form->addRow(m_withTotal);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &NumberingDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NumberingDialog::reject);
    form->addRow(buttons);
}

QList<TextChange> NumberingDialog::changes(const QList<Track> &tracks) const
{
    const TrackField field{m_field->currentData().toInt()};
    const bool countsFolders = field == TrackField::Disc;
    const bool isApart = countsFolders || m_byFolder->isChecked();
    QHash<QString, int> counts; // of the tracks in a folder, or the number of the folder
    QList<std::pair<int, QString>> numbers;
    for (const Track &track : tracks) {
        const QString folder = isApart ? folderOf(track) : QString();
        if (!countsFolders)
            ++counts[folder];
        else if (!counts.contains(folder))
            counts.insert(folder, int(counts.size()) + 1);
        numbers.append({m_first->value() + counts.value(folder) - 1, folder});
    }
    QList<TextChange> changes;
    for (qsizetype n = 0; n < tracks.size(); ++n) {
        const int total = countsFolders ? int(counts.size()) : counts.value(numbers.at(n).second);
        changes.append({tracks.at(n).id, field, QString::number(numbers.at(n).first)});
        if (m_withTotal->isChecked())
            changes.append({tracks.at(n).id, *totalOf(field), QString::number(m_first->value() + total - 1)});
    }
    return changes;
}
