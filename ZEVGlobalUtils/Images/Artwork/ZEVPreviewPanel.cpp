// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageFile_p.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewItem.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPicture_p.h>
#include <ZEVGlobalUtils/Images/Formats/ZEVImageDecoder_p.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVLocalFile_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QThreadPool>
#include <QVBoxLayout>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

ZEVPreviewPanel *sharedPanel = nullptr;
std::atomic_bool sharedPanelIsVisible = false;

const QString SizeKey = u"ZEVPreviewPanelSize"_s;

} // namespace

ZEVPreviewItem::~ZEVPreviewItem() = default;

ZEVPreviewPanel *ZEVPreviewPanel::sharedPreviewPanel()
{
    if (!sharedPanel) {
        sharedPanel = new ZEVPreviewPanel;
        qAddPostRoutine([] { delete std::exchange(sharedPanel, nullptr); });
    }
    return sharedPanel;
}

bool ZEVPreviewPanel::sharedPreviewPanelExists() { return sharedPanel != nullptr; }
bool ZEVPreviewPanel::sharedPreviewPanelIsVisible() { return sharedPanelIsVisible; }

ZEVPreviewPanel::ZEVPreviewPanel()
    : m_picture(new ZEVPreviewPicture(this))
    , m_title(new QLabel(this))
{
    m_title->setTextFormat(Qt::PlainText);
    m_title->setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_picture, 1);
    layout->addWidget(m_title);
    const QVariantList size = ZEVUserDefaults::standardUserDefaults()->objectForKey(SizeKey).toList();
    if (size.size() == 2)
        resize(QSize(size[0].toInt(), size[1].toInt())
                   .boundedTo(screen()->availableSize())
                   .expandedTo({160, 160}));
}

ZEVPreviewPanel::~ZEVPreviewPanel() { sharedPanelIsVisible = false; }

void ZEVPreviewPanel::setPreviewItems(Items items, qsizetype currentIndex)
{
    m_items = std::move(items);
    m_current = -1;
    setCurrentPreviewItemIndex(currentIndex);
}

void ZEVPreviewPanel::setCurrentPreviewItemIndex(qsizetype index)
{
    const qsizetype last = qsizetype(m_items.size()) - 1;
    const qsizetype nearest = std::min(std::max<qsizetype>(index, 0), last);
    const bool changes = nearest != std::exchange(m_current, nearest);
    showCurrentItem();
    if (changes)
        Q_EMIT currentPreviewItemIndexChanged(m_current);
}

void ZEVPreviewPanel::toggle()
{
    if (isVisible())
        return hide();
    show();
    raise();
    activateWindow();
}

/// Items have something to show only while the panel can be seen.
void ZEVPreviewPanel::showCurrentItem()
{
    const ZEVPreviewItem *const item = m_current < 0 ? nullptr : m_items.at(size_t(m_current)).get();
    const QImage image = item && isVisible() ? item->previewItemImage() : QImage();
    const auto path =
        item && image.isNull() ? ZEVLocalFile::path(item->previewItemURL()) : std::optional<QString>();
    const QString title = item ? item->previewItemTitle().value_or(QString()) : QString();
    ++m_shown;
    m_picture->setImage(image);
    if (path)
        showFile(*path);
    m_picture->setAccessibleName(title);
    m_title->setText(title);
    setWindowTitle(title);
}

/// Nobody knows how large the file is, and what it does to a decoder.
void ZEVPreviewPanel::showFile(const QString &path)
{
    QThreadPool::globalInstance()->start([panel = QPointer(this), path, shown = m_shown] {
        const QImage image = ZEVImageDecoder::pictureWithData(ZEVImageFile::read(path)).image;
        QMetaObject::invokeMethod(qApp, [=] {
            if (panel && panel->m_shown == shown)
                panel->m_picture->setImage(image);
        });
    });
}

void ZEVPreviewPanel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Escape:
        return hide();
    case Qt::Key_Left:
    case Qt::Key_Up:
        return setCurrentPreviewItemIndex(m_current - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return setCurrentPreviewItemIndex(m_current + 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ZEVPreviewPanel::showEvent(QShowEvent *event)
{
    sharedPanelIsVisible = true;
    showCurrentItem();
    QWidget::showEvent(event);
}

void ZEVPreviewPanel::hideEvent(QHideEvent *event)
{
    sharedPanelIsVisible = event->spontaneous(); // minimized, it is still open
    if (!event->spontaneous())
        ZEVUserDefaults::standardUserDefaults()->setObject(QVariantList{width(), height()}, SizeKey);
    QWidget::hideEvent(event);
}
