// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButtonDelegate.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVWeakRef.h>

#include <QHash>
#include <QPushButton>
#include <QUrl>

#include <memory>
#include <optional>

class QAction;
class QMimeData;
class ZEVRecentURLs;

/// How many recent locations are kept where the host sets no maximum.
inline constexpr int kZEVURLPopUpButtonMaxRecentsDefault = 5;

/// Lets the user choose one of the locations that were used last, another one in a panel, or none. Locations
/// may also be dropped on it. They are kept as file references and stored as bookmarks, so one that was
/// renamed in its folder is found again; one that has gone leaves the menu. Main thread.
class ZEV_EXPORT ZEVURLPopUpButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QUrl URL READ URL WRITE setURL NOTIFY URLDidChange)
    Q_PROPERTY(bool staticMenuOrder READ staticMenuOrder WRITE setStaticMenuOrder)
    Q_PROPERTY(int maximumRecentURLCount READ maximumRecentURLCount WRITE setMaximumRecentURLCount)
    Q_PROPERTY(bool keepsUnmountedURLs READ keepsUnmountedURLs WRITE setKeepsUnmountedURLs)

public:
    explicit ZEVURLPopUpButton(QWidget *parent = nullptr);
    ~ZEVURLPopUpButton() override;

    /// The selected location as a file reference (see ZEVFileReference); invalid for none. Setting it makes
    /// it the first of the recents and tells no delegate. A location that is not there, or on another
    /// machine, selects none. A receiver of the signal may delete the button.
    const QUrl &URL() const { return m_url; }
    void setURL(const QUrl &url);

    /// The selected URL is stored under this name in the user defaults, the recents under the name with
    /// ".recentURLs" appended. Nil stores nothing. Setting it loads what is stored.
    const std::optional<QString> &autosaveName() const { return m_autosaveName; }
    QString selectedURLDefaultsKey() const { return m_autosaveName.value_or(QString()); }
    QString recentURLsDefaultsKey() const; ///< both null without a name
    void setAutosaveName(const std::optional<QString> &name);

    /// Type identifiers or file-name extensions that the panel and drops accept; nil accepts all.
    const std::optional<QStringList> &allowedFileTypes() const { return m_allowedFileTypes; }
    void setAllowedFileTypes(const std::optional<QStringList> &types) { m_allowedFileTypes = types; }

    /// Recents are ordered by name; otherwise the selected one comes first, then the most recent. Counts from
    /// the next building of the menu.
    bool staticMenuOrder() const { return m_staticMenuOrder; }
    void setStaticMenuOrder(bool isStatic) { m_staticMenuOrder = isStatic; }

    /// At most 254. A negative number restores the default.
    int maximumRecentURLCount() const;
    void setMaximumRecentURLCount(int count);

    /// Recents on drives that are not mounted stay, disabled, until they are; otherwise they are forgotten
    /// like those that have gone. False at first; to be set before the autosave name.
    bool keepsUnmountedURLs() const { return m_keepsUnmountedURLs; }
    void setKeepsUnmountedURLs(bool keeps) { m_keepsUnmountedURLs = keeps; }

    ZEVURLPopUpButtonDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(const ZEVWeakRef<ZEVURLPopUpButtonDelegate> &delegate) { m_delegate = delegate; }

    QAction *noneItem() const { return m_noneItem; }
    QAction *lastUsedItem() const { return m_lastUsedItem; } ///< hidden; what it means is left to the host
    QAction *otherItem() const { return m_otherItem; }
    QAction *clearRecentsItem() const { return m_clearRecentsItem; } ///< for the host to put into a menu

    /// File references, the most recent first, each item once.
    const QList<QUrl> &recentURLSet() const;
    const QHash<QUrl, QByteArray> &bookmarksKeyedByURL() const;

    void addRecentURL(const QUrl &url);
    void buildMenu();
    void loadDefaults();
    void saveBookmarks();
    QAction *makeItemWithURL(const QUrl &url);
    QAction *itemForURL(const QUrl &url) const; ///< null for an invalid one, too
    QAction *selectedItem() const { return m_selectedItem; }
    void notifyDelegateOfURLSelection();

    // Actions of the items.
    Q_INVOKABLE void selectURL(QAction *sender);
    Q_INVOKABLE void browse(QAction *sender = nullptr);
    /// Kept: the menu shows them until it is built the next time, which is when it opens.
    Q_INVOKABLE void clearRecents();

    Qt::DropAction draggingEntered(const QMimeData *mimeData) const;
    bool performDragOperation(const QMimeData *mimeData);

Q_SIGNALS:
    void URLDidChange(const QUrl &url);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUp();
    void setUpMenuItems();
    void addItem(const QUrl &url);
    void showFolderOfNamesakes();
    void selectItem(QAction *item);
    void unselectItem(QAction *item);
    void selectByUser(const QUrl &url);
    void showSelectedItem();

    QUrl m_url;
    std::optional<QString> m_autosaveName;
    std::optional<QStringList> m_allowedFileTypes;
    bool m_staticMenuOrder = false;
    bool m_keepsUnmountedURLs = false;
    int m_maximumRecentURLCount = -1; ///< -1 where none was set
    ZEVWeakRef<ZEVURLPopUpButtonDelegate> m_delegate;
    QAction *m_noneItem = nullptr;
    QAction *m_lastUsedItem = nullptr;
    QAction *m_otherItem = nullptr;
    QAction *m_clearRecentsItem = nullptr;
    QAction *m_selectedItem = nullptr;
    std::unique_ptr<ZEVRecentURLs> m_recents;
};
