// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>

#include <QSettings>
#include <QUrl>

namespace {

const QString UnreadableSuffix = QStringLiteral("-unreadable");

/// QSettings makes groups of "/" and "\"; an encoded key stays the one key that it is.
QString storeKey(const QString &key) { return QString::fromLatin1(QUrl::toPercentEncoding(key)); }

} // namespace

ZEVUserDefaults *ZEVUserDefaults::standardUserDefaults()
{
    static ZEVUserDefaults defaults(std::make_unique<QSettings>());
    return &defaults;
}

void ZEVUserDefaults::setStandardStore(std::unique_ptr<QSettings> store)
{
    standardUserDefaults()->m_store = std::move(store);
}

ZEVUserDefaults::ZEVUserDefaults(std::unique_ptr<QSettings> store, QObject *parent)
    : QObject(parent)
    , m_store(std::move(store))
{
}

ZEVUserDefaults::~ZEVUserDefaults() = default;

/// Empty for what is no archive.
QByteArray ZEVUserDefaults::archiveForKey(const QString &key) const
{
    const QByteArray text = m_store->value(storeKey(key)).toString().toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? *decoded : QByteArray();
}

QVariant ZEVUserDefaults::objectForKey(const QString &key) const
{
    return ZEVKeyedUnarchiver::unarchivedObject(archiveForKey(key));
}

QVariantList ZEVUserDefaults::elementsForKey(const QString &key) const
{
    return ZEVKeyedUnarchiver::unarchivedElements(archiveForKey(key));
}

void ZEVUserDefaults::setObject(const QVariant &value, const QString &key)
{
    const QString name = storeKey(key);
    const QVariant before = m_store->value(name);
    if (before.isValid() && !objectForKey(key).isValid() && elementsForKey(key).isEmpty())
        m_store->setValue(storeKey(key + UnreadableSuffix), before);
    if (!value.isValid()) {
        m_store->remove(name);
    } else {
        const QByteArray archive = ZEVKeyedArchiver::archivedDataWithRootObject(value);
        m_store->setValue(name, QString::fromLatin1(archive.toBase64()));
    }
    if (m_store->value(name) != before)
        Q_EMIT didChange(key);
}

bool ZEVUserDefaults::synchronize()
{
    m_store->sync();
    return m_store->status() == QSettings::NoError;
}
