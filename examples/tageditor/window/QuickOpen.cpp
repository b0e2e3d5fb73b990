// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/window/QuickOpen.h>

#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVHighlightDelegate.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// The size in average characters and in lines, as far as the window has room for it.
constexpr int Columns = 72;
constexpr int Lines = 22;

} // namespace

QuickOpen::QuickOpen(const TrackTableModel *tracks, QWidget *window)
    : QFrame(window)
    , m_tracks(tracks)
    , m_field(new QLineEdit)
    , m_list(new QListView)
    , m_count(new QLabel)
{
    setAccessibleName(tr("Quick Open"));
    setFrameStyle(QFrame::Box | QFrame::Plain); // stands out from any window beneath
    setAutoFillBackground(true);
    m_field->setPlaceholderText(tr("Title or artist"));
    m_field->setAccessibleName(tr("Quick Open"));
    m_field->installEventFilter(this);
    setFocusProxy(m_field);
    setUpList();
    layOut();
    window->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &QuickOpen::showTracks);
    connect(qApp, &QApplication::focusChanged, this, &QuickOpen::closeWithoutFocus);
    hide();
}

void QuickOpen::setUpList()
{
    m_list->setAccessibleName(tr("Tracks"));
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new ZEVHighlightDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFocusPolicy(Qt::NoFocus); // what is typed goes to the field, whatever was clicked
    connect(m_list, &QListView::clicked, this, &QuickOpen::choose);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &QuickOpen::describeCurrent);
}

void QuickOpen::layOut()
{
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_field);
    rows->addWidget(m_list, 1);
    rows->addWidget(m_count);
}

void QuickOpen::open()
{
    if (isVisible()) {
        m_field->selectAll();
        return;
    }
    m_previousFocus = window()->focusWidget();
    m_model.load(*m_tracks);
    m_field->clear();
    showTracks({});
    place();
    show();
    raise();
    m_field->setFocus(Qt::ShortcutFocusReason);
}

/// In the middle, and near the top.
void QuickOpen::place()
{
    const QSize room = parentWidget()->size();
    const QSize wanted(fontMetrics().averageCharWidth() * Columns, fontMetrics().height() * Lines);
    const QSize size = wanted.boundedTo(room * 9 / 10);
    setGeometry(QRect(QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 4), size));
}

void QuickOpen::dismiss()
{
    if (m_previousFocus)
        m_previousFocus->setFocus(Qt::OtherFocusReason);
    hide();
}

bool QuickOpen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress)
        return handleKey(static_cast<QKeyEvent *>(event));
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}

bool QuickOpen::handleKey(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentIndex());
        return true;
    case Qt::Key_Escape:
        dismiss();
        return true;
    default:
        return false;
    }
}

void QuickOpen::choose(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const int trackId = index.data(QuickOpenModel::TrackIdRole).toInt();
    dismiss();
    Q_EMIT trackChosen(trackId);
}

void QuickOpen::showTracks(const QString &text)
{
    m_model.setTypedText(text);
    const auto transformer =
        ZEVValueTransformer::valueTransformerForName(u"ZEVResultsCountDisplayTransformer"_s);
    m_count->setText(transformer->transformedValue(m_model.rowCount()).toString());
    m_list->setCurrentIndex(m_model.index(0));
    describeCurrent();
}

/// The focus never leaves the field, so the field has to tell a screen reader what is current in the list.
void QuickOpen::describeCurrent()
{
    const QString current = m_list->currentIndex().data().toString();
    m_field->setAccessibleDescription(current.isEmpty() ? m_count->text()
                                                        : tr("%1, %2").arg(current, m_count->text()));
}

/// The focus goes nowhere when another window takes it; then it comes back.
void QuickOpen::closeWithoutFocus(const QWidget *, const QWidget *now)
{
    if (isVisible() && now && now->window() == window() && !isAncestorOf(now))
        hide();
}
