// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/artwork/ArtworkDock.h>

#include <tageditor/artwork/ArtworkTag.h>
#include <tageditor/tracks/TagValues.h>
#include <tageditor/tracks/ValueCommand.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectUserDefaultsBindings.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace {

QSpinBox *limitBox(int most, int value, const QString &suffix)
{
    auto *const box = new QSpinBox;
    box->setRange(16, most);
    box->setValue(value);
    box->setSuffix(suffix);
    box->setSingleStep(100);
    return box;
}

/// What height is left belongs to the tags.
constexpr int MostLines = 18;

/// Most tracks of a folder share their artwork: equal bytes are kept once.
QByteArray shared(const QByteArray &bytes, QSet<QByteArray> &known) { return *known.insert(bytes); }

} // namespace

ArtworkDock::ArtworkDock(TrackTableModel *model, QTableView *table, QUndoStack *stack)
    : QDockWidget(tr("Artwork"))
    , m_model(model)
    , m_stack(stack)
    , m_selected(new SelectedArtwork(model, table))
    , m_well(new ZEVDragImageView)
    , m_description(new QLabel)
{
    setObjectName(u"ArtworkDock"_s);
    m_well->setDelegate(&m_vetting);
    m_description->setAlignment(Qt::AlignCenter);
    m_description->setTextFormat(Qt::PlainText);
    m_description->setWordWrap(true);
    auto *const content = new QWidget;
    auto *const rows = new QVBoxLayout(content);
    rows->addWidget(m_well, 1);
    rows->addWidget(m_description);
    rows->addWidget(makeButtons());
    content->setMaximumHeight(content->fontMetrics().height() * MostLines);
    setWidget(content);
    connect(m_selected, &SelectedArtwork::changed, this, &ArtworkDock::showArtwork);
    connect(m_well, &ZEVDragImageView::importWasRefused, m_description,
            [this](const QString &reason) { m_description->setText(tr("Not taken: %1").arg(reason)); });
    connect(m_well, &ZEVDragImageView::didUpdate, this, [this] { changeArtwork(m_well->bitmapData()); });
    showArtwork();
}

QWidget *ArtworkDock::makeButtons()
{
    auto *const buttons = new QWidget;
    auto *const row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    m_browse = new QPushButton(tr("&Browse…"));
    m_remove = new QPushButton(tr("Re&move"));
    m_remove->setObjectName(u"remove"_s);
    row->addWidget(m_browse, 1);
    row->addWidget(m_remove, 1);
    row->addWidget(makeLimitButton());
    connect(m_browse, &QPushButton::clicked, m_well, &ZEVDragImageView::browse);
    connect(m_remove, &QPushButton::clicked, this, [this] { changeArtwork({}); }); // mixed artwork, too
    return buttons;
}

/// Out of the way until somebody wants it.
QWidget *ArtworkDock::makeLimitButton()
{
    auto *const menu = new QMenu(this);
    auto *const action = new QWidgetAction(menu);
    action->setDefaultWidget(makeLimit());
    menu->addAction(action);
    auto *const button = new QToolButton;
    button->setText(u"…"_s);
    button->setToolTip(tr("Limit new artwork"));
    button->setAccessibleName(button->toolTip());
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    return button;
}

QWidget *ArtworkDock::makeLimit()
{
    auto *const limit = new QWidget;
    auto *const form = new QFormLayout(limit);
    m_isLimited = new QCheckBox(tr("Limit new art&work"));
    m_pixels = limitBox(10000, 1000, tr(" px"));
    m_kilobytes = limitBox(100000, 500, tr(" kB"));
    m_pixels->setObjectName(u"pixels"_s);
    form->addRow(m_isLimited);
    form->addRow(tr("Lon&ger edge:"), m_pixels);
    form->addRow(tr("&Size:"), m_kilobytes);
    connect(m_isLimited, &QCheckBox::toggled, this, &ArtworkDock::updateLimit);
    connect(m_pixels, &QSpinBox::valueChanged, this, &ArtworkDock::updateLimit);
    connect(m_kilobytes, &QSpinBox::valueChanged, this, &ArtworkDock::updateLimit);
    using ZEVObjectUserDefaultsBindings::bind;
    bind(m_isLimited, u"checked"_s, u"ArtworkIsLimited"_s);
    bind(m_pixels, u"value"_s, u"ArtworkLimitPixels"_s);
    bind(m_kilobytes, u"value"_s, u"ArtworkLimitKilobytes"_s);
    updateLimit();
    return limit;
}

void ArtworkDock::updateLimit()
{
    const bool isLimited = m_isLimited->isChecked();
    m_pixels->setEnabled(isLimited);
    m_kilobytes->setEnabled(isLimited);
    m_vetting.setLimit(isLimited ? ArtworkLimit{m_pixels->value(), m_kilobytes->value() * 1000LL}
                                 : ArtworkLimit());
}

QString ArtworkDock::description() const
{
    switch (m_selected->state()) {
    case SelectedArtwork::NoTracks:
        return tr("No tracks selected");
    case SelectedArtwork::Reading:
        return tr("Reading…");
    case SelectedArtwork::None:
        return tr("No artwork");
    case SelectedArtwork::Mixed:
        return tr("Mixed artwork");
    case SelectedArtwork::Same:
        break;
    }
    const auto artwork = m_well->imageDescription();
    if (!artwork)
        return {};
    return artwork->remark().isEmpty() ? artwork->imageDescription()
                                       : artwork->imageDescription() + u", "_s + artwork->remark();
}

/// What was dropped is there already, and need not be decoded again.
void ArtworkDock::showArtwork()
{
    const SelectedArtwork::State state = m_selected->state();
    const bool isKnown = state != SelectedArtwork::NoTracks && state != SelectedArtwork::Reading;
    const auto artwork = m_selected->artwork();
    m_selected->setRoom(m_well->roomForImage());
    if (state != SelectedArtwork::Reading
        && m_well->bitmapData() != (artwork ? artwork->bitmapData() : QByteArray()))
        m_well->setImageDescription(artwork);
    m_well->setEditable(isKnown);
    m_browse->setEnabled(isKnown);
    m_remove->setEnabled(state == SelectedArtwork::Same || state == SelectedArtwork::Mixed);
    const QList<Track> tracks = isKnown ? m_selected->tracks() : QList<Track>();
    m_vetting.setExportName(tracks.isEmpty() ? QString()
                                             : TagValues::joined(tracks.first().text(TrackField::Album)));
    m_description->setText(description());
    m_well->setAccessibleDescription(description());
}

void ArtworkDock::changeArtwork(const QByteArray &bytes)
{
    QSet<QByteArray> known{bytes};
    QList<ArtworkChange> changes;
    for (const Track &track : m_selected->tracks()) {
        const auto changed = m_model->changedArtwork(track.id);
        const QByteArray before = changed ? *changed : ArtworkTag::read(track.path);
        if (before != bytes)
            changes.append({track.id, shared(before, known), bytes});
    }
    if (!changes.isEmpty())
        m_stack->push(
            new ArtworkCommand(bytes.isEmpty() ? tr("Remove Artwork") : tr("Artwork"), m_model, changes));
}
