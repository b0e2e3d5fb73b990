// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVKeyedUnarchiver.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QCborArray>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QVariant archivedAndRestored(const QVariant &value)
{
    return ZEVKeyedUnarchiver::unarchivedObject(ZEVKeyedArchiver::archivedDataWithRootObject(value));
}

QByteArray queryArchive()
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(QVariantList{u"Track "_s, QVariant::fromValue(ZEVPatternItem::digits())});
    return ZEVKeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(query));
}

/// An archive made by hand around \a root.
QByteArray archive(const QCborValue &root)
{
    return QCborValue(QCborMap{{u"$archive"_s, u"ZEVKeyedArchive/1"_s}, {u"$root"_s, root}}).toCbor();
}

QCborMap object(const QString &className, const QString &key, const QCborValue &value)
{
    return {{u"$class"_s, className}, {key, value}};
}

QCborValue nested(int depth)
{
    QCborValue value = u"x"_s;
    for (int i = 0; i < depth; ++i)
        value = QCborArray{value};
    return value;
}

} // namespace

/// What is kept between runs: archives, and the defaults that hold them.
class tst_Archives : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    std::unique_ptr<QSettings> store()
    {
        return std::make_unique<QSettings>(m_folder.filePath(u"defaults.ini"_s), QSettings::IniFormat);
    }

private Q_SLOTS:
    void valuesKeepTheirType()
    {
        const QVariant rows[] = {
            true,
            Q_INT64_C(-9007199254740993), // no double holds it
            0.1,
            u"12"_s,
            u""_s,
            "\0\xFF"_ba,
            QVariantList{u"a"_s},
            QVariantList(),
            QUrl(u"file:///a%20b"_s),
            QVariantMap{{u"$class"_s, 1}, {u"\xD83C"_s, QVariantMap()}, {u""_s, QVariantList{}}},
            QVariantList{QVariantList{QVariant::fromValue(ZEVPatternItem::digits())}},
        };
        for (const QVariant &value : rows) {
            COMPARE_ROW(value, archivedAndRestored(value), value);
            COMPARE_ROW(value, archivedAndRestored(value).typeId(), value.typeId());
        }
        const QVariant restored = archivedAndRestored(QVariantList{QVariant::fromValue(this), u"a"_s});
        QCOMPARE(restored, QVariant(QVariantList{QVariant(), u"a"_s})); // what cannot be archived is nil
    }

    void damagedArchivesAreNil()
    {
        const QCborValue text = u"x"_s;
        const QCborMap damagedItem = object(u"ZEVPatternItem"_s, u"title"_s, 12);
        const std::tuple<const char *, QByteArray> rows[] = {
            {"nothing", {}},
            {"foreign", "<?xml version=\"1.0\"?>"_ba},
            {"bare CBOR", text.toCbor()},
            {"something behind the end", queryArchive() + 'x'},
            {"unknown class", archive(object(u"QProcess"_s, u"program"_s, text))},
            {"class name that is a number", archive(QCborMap{{u"$class"_s, 12}})},
            {"map without a class", archive(QCborMap{{u"title"_s, text}})},
            {"title that is a number", archive(damagedItem)},
            {"pattern that is a text", archive(object(u"ZEVFindPanelQuery"_s, u"searchPattern"_s, text))},
            {"case that is a number", archive(object(u"ZEVFindPanelQuery"_s, u"caseInsensitiveSearch"_s, 1))},
            {"damaged item in a query",
             archive(object(u"ZEVFindPanelQuery"_s, u"searchPattern"_s, QCborArray{damagedItem}))},
            {"a key without a value", archive(QCborMap{{u"$map"_s, QCborArray{text}}})},
            {"half a code unit", archive(QCborMap{{u"$utf16be"_s, "abc"_ba}})},
            {"foreign tag", archive(QCborValue(QCborTag(9), text))},
            {"deep", archive(nested(500))},
            {"deeper than the parser goes", QByteArray(1'000'000, '\x81')},
            {"a text of 2^62 bytes", "\x7B\x40\0\0\0\0\0\0\0abc"_ba},
            {"an array of 2^62 elements", "\x9B\x40\0\0\0\0\0\0\0abc"_ba},
        };
        for (const auto &[name, bytes] : rows)
            QVERIFY2(!ZEVKeyedUnarchiver::unarchivedObject(bytes).isValid(), name);
        QVERIFY(ZEVKeyedUnarchiver::unarchivedObject(archive(nested(50))).isValid()); // not too deep
    }

    void everyTruncationAndAnotherClassAreNil()
    {
        const QByteArray whole = queryArchive();
        QVERIFY(ZEVKeyedUnarchiver::unarchivedObjectOfClass<ZEVFindPanelQuery>(whole));
        QVERIFY(!ZEVKeyedUnarchiver::unarchivedObjectOfClass<ZEVPatternItem>(whole));
        for (qsizetype length = 0; length < whole.size(); ++length)
            COMPARE_ROW(length, ZEVKeyedUnarchiver::unarchivedObject(whole.first(length)), QVariant());
    }

    void randomBytesDoNoHarm()
    {
        QRandomGenerator random(12);
        const QByteArray whole = queryArchive();
        for (int round = 0; round < 20'000; ++round) {
            QByteArray damaged = whole;
            for (int i = 0; i < 3; ++i)
                damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
            const QVariant object = ZEVKeyedUnarchiver::unarchivedObject(damaged);
            QVERIFY(!object.isValid() || archivedAndRestored(object).isValid()); // whole, or nothing
        }
    }

    void valuesComeBackFromTheFileAsTheyWere()
    {
        const QVariant rows[] = {
            QVariantList{u"a, b; c"_s},
            u"@ByteArray(x)"_s,
            u"\xD83C\0\r\n"_s,
            "\0\xFF\n"_ba,
            false,
            QVariant::fromValue(ZEVPatternItem::digits()),
        };
        const QString key = u"find/last \\ query.recentPatterns"_s;
        for (const QVariant &value : rows) {
            {
                ZEVUserDefaults defaults(store());
                defaults.setObject(value, key);
                defaults.setObject(u"other"_s, u"find"_s);
                QVERIFY(defaults.synchronize());
            }
            ZEVUserDefaults defaults(store());
            defaults.removeObjectForKey(u"find"_s); // no group: the longer key stays
            COMPARE_ROW(value, defaults.objectForKey(key), value);
            COMPARE_ROW(value, defaults.objectForKey(key).typeId(), value.typeId());
        }
    }

    void onlyARealChangeIsTold()
    {
        ZEVUserDefaults defaults(store());
        defaults.removeObjectForKey(u"k"_s);
        QSignalSpy changes(&defaults, &ZEVUserDefaults::didChange);
        defaults.setObject(1, u"k"_s);
        defaults.setObject(1, u"k"_s);
        defaults.setObject(2, u"k"_s);
        defaults.removeObjectForKey(u"k"_s);
        defaults.removeObjectForKey(u"k"_s);
        QCOMPARE(changes.size(), 3);
        QCOMPARE(changes.first().first().toString(), u"k");
    }

    void damagedValuesAreNothing()
    {
        auto settings = store();
        QSettings *const raw = settings.get();
        ZEVUserDefaults defaults(std::move(settings));
        for (const QVariant &stored : {QVariant(u"hello"_s), QVariant(QStringList{u"a"_s, u"b"_s}),
                                       QVariant(u"aGVsbG8="_s)}) { // base64 of something else
            raw->setValue(u"damaged"_s, stored);
            COMPARE_ROW(stored, defaults.objectForKey(u"damaged"_s), QVariant());
            defaults.setObject(1, u"damaged"_s);
            COMPARE_ROW(stored, raw->value(u"damaged-unreadable"_s), stored); // nothing is lost by it
        }
    }

    void aStoreThatCannotBeWrittenSaysSo()
    {
        ZEVUserDefaults defaults(std::make_unique<QSettings>(u"/proc/none/d.ini"_s, QSettings::IniFormat));
        defaults.setObject(1, u"k"_s);
        QVERIFY(!defaults.synchronize());
        QCOMPARE(defaults.objectForKey(u"k"_s), QVariant(1));
    }

    void aHostHandsInItsOwnStore()
    {
        ZEVUserDefaults::setStandardStore(store());
        ZEVUserDefaults::standardUserDefaults()->setObject(u"x"_s, u"standard"_s);
        QCOMPARE(ZEVUserDefaults(store()).objectForKey(u"standard"_s), QVariant(u"x"_s));
    }
};

QTEST_GUILESS_MAIN(tst_Archives)
#include "tst_Archives.moc"
