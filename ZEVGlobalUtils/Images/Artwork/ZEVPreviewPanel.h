// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QWidget>

#include <memory>
#include <vector>

class QLabel;
class ZEVPreviewItem;
class ZEVPreviewPicture;

/// The one window in which the application previews its artwork. In it, the arrow keys step through the
/// items; the space bar, which opens it in the views that have something to show, closes it, as Escape does.
class ZEV_EXPORT ZEVPreviewPanel : public QWidget {
    Q_OBJECT

public:
    ~ZEVPreviewPanel() override;

    using Items = std::vector<std::shared_ptr<const ZEVPreviewItem>>;

    /// Made when it is first asked for. Main thread only.
    static ZEVPreviewPanel *sharedPreviewPanel();
    static bool sharedPreviewPanelExists();
    /// Whether there is a panel that the user can see. Any thread.
    static bool sharedPreviewPanelIsVisible();

    const Items &previewItems() const { return m_items; }
    /// Shows the item of that index, or of the nearest one that there is.
    void setPreviewItems(Items items, qsizetype currentIndex = 0);

    /// -1 without items.
    qsizetype currentPreviewItemIndex() const { return m_current; }
    void setCurrentPreviewItemIndex(qsizetype index);

    /// Opens the panel in front of all windows or closes it: what the space bar does in a view. It has the size that
    /// the user gave it last, and keeps no application running.
    void toggle();

Q_SIGNALS:
    void currentPreviewItemIndexChanged(qsizetype index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    ZEVPreviewPanel();
    void showCurrentItem();
    void showFile(const QString &path);

    Items m_items;
    qsizetype m_current = -1;
    quint64 m_shown = 0; ///< counts what was to be shown: what is decoded too late is not
    ZEVPreviewPicture *m_picture;
    QLabel *m_title;
};
