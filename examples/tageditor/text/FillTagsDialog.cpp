// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/FillTagsDialog.h>

#include <tageditor/find/TagTokens.h>
#include <tageditor/text/PreviewTable.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

FillTagsDialog::FillTagsDialog(const QList<Track> &tracks, QWidget *parent)
    : QDialog(parent)
    , m_model(tracks)
    , m_tokens(new ZEVPatternTokens({}, this))
    , m_source(new QComboBox)
    , m_pattern(new ZEVTokenField)
    , m_count(new QLabel)
    , m_fill(new QPushButton(tr("&Fill")))
{
    setWindowTitle(tr("Fill Tags"));
    fillSources();
    m_pattern->setAccessibleName(tr("Pattern"));
    m_pattern->setLossless(true);
    m_pattern->setDelegate(m_tokens);
    auto *menu = new QMenu(m_pattern);
    connect(menu, &QMenu::aboutToShow, m_pattern,
            [this, menu] { ZEVPatternTokens::fillMenu(menu, m_pattern, m_tokens->groups()); });
    m_pattern->setMenu(menu);
    layOut();
    useTokensOfSource();
    m_pattern->setAutosaveName(u"FillTagsPattern"_s);
    if (m_pattern->objectValue().isEmpty())
        m_pattern->setPatternStringValue(u"%track% - %title%"_s);
    connect(m_source, &QComboBox::currentIndexChanged, this, &FillTagsDialog::useTokensOfSource);
    connect(m_pattern, &ZEVTokenField::objectValueChanged, this, &FillTagsDialog::updatePreview);
    updatePreview();
}

void FillTagsDialog::fillSources()
{
    m_source->addItem(tr("File Name and Folders"), int(TrackField::FileName));
    for (int field = int(TrackField::Title); field < TrackFieldCount; ++field)
        m_source->addItem(TrackTableModel::titleForField(TrackField(field)), field);
}

void FillTagsDialog::layOut()
{
    auto *choices = new QFormLayout;
    choices->addRow(tr("Fr&om:"), m_source);
    choices->addRow(tr("&Pattern:"), m_pattern);
    m_pattern->setToolTip(tr("Text and the tags it stands between; “/” stands between folders"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(m_fill, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &FillTagsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FillTagsDialog::reject);

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(choices);
    rows->addWidget(makePreviewTable(&m_model), 1);
    rows->addWidget(m_count);
    rows->addWidget(buttons);
    m_fill->setDefault(true);
    m_pattern->setFocus();
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 28);
}

TrackField FillTagsDialog::source() const { return TrackField(m_source->currentData().toInt()); }

/// A folder's name ends at the slash, while another text may have one.
void FillTagsDialog::useTokensOfSource()
{
    const QString pattern = m_pattern->patternStringValue();
    m_tokens->setGroups({TagTokens::captureTokens(source() == TrackField::FileName ? u"/"_s : QString()),
                         {ZEVPatternItem::anyCharacters(), ZEVPatternItem::digits()}});
    m_pattern->setPatternStringValue(pattern);
    updatePreview();
}

void FillTagsDialog::updatePreview()
{
    m_model.set(source(), m_pattern->objectValue());
    m_count->setText(
        tr("%L1 of %Ln texts fit the pattern", nullptr, m_model.rowCount()).arg(m_model.numberOfMatches()));
    m_fill->setEnabled(!m_model.changes().isEmpty());
}

void FillTagsDialog::accept()
{
    if (!m_fill->isEnabled())
        return;
    m_pattern->saveDefaults();
    QDialog::accept();
}
