// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QObject>
#include <QVariant>

#include <memory>

class QSettings;

/// What the application remembers for its user. Values keep their type on the way through the store: a list
/// of one string, an empty list and a "/" in a key come back as they were, which bare QSettings does not
/// promise. Main thread.
class ZEV_EXPORT ZEVUserDefaults : public QObject {
    Q_OBJECT

public:
    /// The application's own store, made at the first call from the application's and organization's names.
    static ZEVUserDefaults *standardUserDefaults();

    /// Lets a host or a test put its own store beneath standardUserDefaults(). The old store is written out.
    static void setStandardStore(std::unique_ptr<QSettings> store);

    explicit ZEVUserDefaults(std::unique_ptr<QSettings> store, QObject *parent = nullptr);
    ~ZEVUserDefaults() override;

    /// Invalid when nothing is stored under \a key, or only bytes that cannot be read.
    QVariant objectForKey(const QString &key) const;

    /// The elements of a list that is stored under \a key, each as far as it can be read by itself: one that
    /// cannot is a ZEVUnreadableObject, which setObject() stores again as it was. Empty for anything else.
    QVariantList elementsForKey(const QString &key) const;

    /// Stores a boolean, number, string, byte array, list or map of these, or an object of a class that is
    /// registered for archives; an invalid \a value removes the key.
    /// What stands there and cannot be read at all, of a later version or damaged, is kept beside it under the
    /// key with "-unreadable" behind it.
    void setObject(const QVariant &value, const QString &key);
    void removeObjectForKey(const QString &key) { setObject({}, key); }

    /// Writes what is pending; false when the store cannot be written (a full disk, a missing right).
    bool synchronize();

Q_SIGNALS:
    /// The value under \a key is another one than before.
    void didChange(const QString &key);

private:
    QByteArray archiveForKey(const QString &key) const;

    std::unique_ptr<QSettings> m_store;
};
