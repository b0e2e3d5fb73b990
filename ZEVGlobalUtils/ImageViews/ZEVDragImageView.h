// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/ImageViews/ZEVDragImageViewDelegate.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QPoint>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include <memory>

class QDropEvent;
class QMenu;
class QPropertyAnimation;
class QThreadPool;
class QTimer;
class ZEVArtworkMotion;
class ZEVArtworkOutline;
class ZEVArtworkPreview;
class ZEVArtworkTransfer;
class ZEVDashView;
class ZEVDropProgressView;
class ZEVFocusFrame;
class ZEVImageDescription;
class ZEVInnerImageView;
class ZEVPasteboard;
class ZEVPasteboardItem;
class ZEVPboardImageWriter;

/// The name of ZEVDragImageView::didUpdate() for hosts that pass events on by name.
inline constexpr QStringView ZEVDragImageViewDidUpdateNotification =
    u"com.zevworks.dragimageview.events.imagechange";

/// An artwork well: shows one piece of artwork, takes another one by drop, paste or from a file, gives its
/// own away by drag, copy or cut, and removes it. Empty, it shows a dashed outline.
class ZEV_EXPORT ZEVDragImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable NOTIFY editableChanged)
    Q_PROPERTY(
        uint dashDisplayRule READ dashDisplayRule WRITE setDashDisplayRule NOTIFY dashDisplayRuleChanged)
    Q_PROPERTY(bool drawDashes READ drawDashes NOTIFY drawDashesChanged)
    Q_PROPERTY(QByteArray bitmapData READ bitmapData WRITE setBitmapData NOTIFY imageDescriptionChanged)

public:
    explicit ZEVDragImageView(QWidget *parent = nullptr);
    ~ZEVDragImageView() override;

    const ZEVWeakRef<ZEVDragImageViewDelegate> &delegate() const { return m_delegate; }
    void setDelegate(const ZEVWeakRef<ZEVDragImageViewDelegate> &delegate) { m_delegate = delegate; }

    /// True at first. Without it, artwork can only be copied and dragged out.
    bool isEditable() const { return m_editable; }
    void setEditable(bool editable);

    enum DashDisplayRule : uint { DashesAutomatic = 0, DashesNever = 1, DashesAlways = 2 };
    /// Numbers beyond those are automatic.
    uint dashDisplayRule() const { return m_dashDisplayRule; }
    void setDashDisplayRule(uint rule);
    /// Whether the outline shows: in an editable well without artwork or under a drag, or as the rule says.
    bool drawDashes() const;

    /// The encoded bytes, null for none.
    QByteArray bitmapData() const;
    void setBitmapData(const QByteArray &bytes) { setBitmapData(bytes, false, false); }
    /// \a notify emits didUpdate(); \a animate lets the artwork fade in and grow.
    void setBitmapData(const QByteArray &bytes, bool notify, bool animate = false);
    /// Null without artwork.
    const std::shared_ptr<ZEVImageDescription> &imageDescription() const { return m_imageDescription; }
    /// The same as setBitmapData() with artwork that has been decoded already, on whatever thread: setBitmapData()
    /// does it at once. Null for none.
    void setImageDescription(const std::shared_ptr<ZEVImageDescription> &description, bool notify = false,
                             bool animate = false);

    /// Shows artwork that came from \a source (invalid where there is none), and says so. Nothing happens for
    /// no bytes. Kept: the source becomes the origin of the artwork that is replaced.
    void applyImportedImageData(const QByteArray &bytes, const QUrl &source);

    /// The folder that browse() begins in.
    const QUrl &browseURL() const { return m_browseURL; }
    void setBrowseURL(const QUrl &url) { m_browseURL = url; }

    /// Paints over the well's own ground, under the artwork; \a bounds in points.
    using BackgroundDrawingBlock =
        std::function<void(QPainter &painter, bool isKeyWindow, const QRect &bounds)>;
    const BackgroundDrawingBlock &backgroundDrawingBlock() const { return m_backgroundDrawingBlock; }
    void setBackgroundDrawingBlock(const BackgroundDrawingBlock &block);

    ZEVDashView *dashView() const { return m_dashView; }
    ZEVInnerImageView *imageView() const { return m_imageView; }
    QWidget *innerImageViewContainerView() const { return m_innerImageViewContainerView; }
    QPropertyAnimation *alphaAnimation() const;
    QPropertyAnimation *scaleAnimation() const;
    /// Where files are read and pictures decoded.
    QThreadPool *filePromiseQueue() const;
    /// Whether artwork is still on its way.
    bool isImporting() const;

    /// What the picture can take, in pixels: all that has to be decoded of it for now.
    QSize roomForImage() const;

    /// Where the artwork lies, upright, in whole points; empty without any.
    QRect drawingImageRectInBounds() const;

    /// The context menu, the image view's.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /// Whether there is something to take, of a format that can be shown here: image bytes, an image file's
    /// address, or the promise of one.
    static bool canReadDataFromPasteboard(const ZEVPasteboard &pasteboard);

    /// Whether \a action, the name of one of the slots or of another slot of the view, makes sense now.
    bool validateUserInterfaceItem(const QByteArray &action) const;

    /// What \a item of \a pasteboard is to hold of \a type: the picture as TIFF or, as it is shown, as PDF; null for
    /// other types and without a picture.
    QByteArray provideDataForType(const ZEVPasteboard &pasteboard, const ZEVPasteboardItem *item,
                                  QStringView type) const;

    QSize sizeHint() const override { return {160, 160}; }
    QSize minimumSizeHint() const override { return {48, 48}; }

public Q_SLOTS:
    void copy();
    void cut();
    void paste();
    void clearImage();
    void browse();
    /// Opens the preview panel with the artwork, or closes it.
    void togglePreviewPanel();
    /// Gives up files that are still being read and answers of the delegate that have not come.
    void cancelImports();

Q_SIGNALS:
    void editableChanged(bool editable);
    void dashDisplayRuleChanged(uint rule);
    void drawDashesChanged(bool drawDashes);
    void imageDescriptionChanged();

    /// The user has changed the artwork, or a host that asked to notify. \a userInfo is empty, after
    /// clearImage() it holds "imageCleared": true.
    void didUpdate(const QVariantMap &userInfo);
    /// The same with what is shown now, decoded; null for none.
    void artworkDidUpdate(const std::shared_ptr<ZEVImageDescription> &artwork);

    /// Something was dropped, pasted or chosen that cannot be shown; the artwork is what it was. \a reason is for the
    /// user ("damaged", "no decoder for AVIF").
    void importWasRefused(const QString &reason);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    virtual void viewWillStartLiveResize();
    virtual void viewDidEndLiveResize();

    /// What a drag out of the well carries; only with artwork.
    std::shared_ptr<ZEVPboardImageWriter> pasteboardWriter();

private:
    void setUpViews();
    void setUpTransfer();
    void showDescription(const std::shared_ptr<ZEVImageDescription> &description, bool notifies,
                         bool animate);
    void showImported(const std::shared_ptr<ZEVImageDescription> &description, const QUrl &source);
    void notify(const QVariantMap &userInfo);
    void fitImage();

    void draggingEnded();
    bool prepareForDragOperation(const QDropEvent &event);
    bool performDragOperation(const QDropEvent &event);

    ZEVWeakRef<ZEVDragImageViewDelegate> m_delegate;
    bool m_editable = true;
    uint m_dashDisplayRule = DashesAutomatic;
    std::shared_ptr<ZEVImageDescription> m_imageDescription;
    QUrl m_browseURL;
    BackgroundDrawingBlock m_backgroundDrawingBlock;
    std::optional<QPoint> m_pressedAt;

    ZEVDashView *m_dashView;
    QWidget *m_innerImageViewContainerView;
    ZEVInnerImageView *m_imageView;
    ZEVFocusFrame *m_focusFrame;
    ZEVDropProgressView *m_progressView;
    QTimer *m_liveResize;
    ZEVArtworkMotion *m_motion;
    ZEVArtworkOutline *m_outline;
    ZEVArtworkTransfer *m_transfer;
    std::unique_ptr<ZEVArtworkPreview> m_preview;
};
