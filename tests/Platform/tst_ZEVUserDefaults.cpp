// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/ZEVUserDefaults.h>

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_ZEVUserDefaults : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    std::unique_ptr<QSettings> store()
    {
        return std::make_unique<QSettings>(m_folder.filePath(u"defaults.ini"_s), QSettings::IniFormat);
    }

private Q_SLOTS:
    void valuesComeBackFromTheFileAsTheyWere_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("list of one string") << QVariant(QVariantList{u"a, b; c"_s});
        QTest::newRow("empty list") << QVariant(QVariantList());
        QTest::newRow("string that looks like a value of the store") << QVariant(u"@ByteArray(x)"_s);
        QTest::newRow("lone surrogate, NUL and line break") << QVariant(QString(u"\xD83C\0\r\n"_s));
        QTest::newRow("bytes") << QVariant("\0\xFF\n"_ba);
        QTest::newRow("false") << QVariant(false);
        QTest::newRow("item") << QVariant::fromValue(ZEVPatternItem::digits());
    }
    void valuesComeBackFromTheFileAsTheyWere()
    {
        QFETCH(QVariant, value);
        const QString key = u"find/last \\ query.recentPatterns"_s;
        {
            ZEVUserDefaults defaults(store());
            defaults.setObject(value, key);
            defaults.setObject(u"other"_s, u"find"_s);
            QVERIFY(defaults.synchronize());
        }
        ZEVUserDefaults defaults(store());
        QCOMPARE(defaults.objectForKey(key), value);
        QCOMPARE(defaults.objectForKey(key).typeId(), value.typeId());
        defaults.removeObjectForKey(u"find"_s); // no group: the longer key stays
        QVERIFY(defaults.objectForKey(key).isValid());
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

    void damagedValuesAreNothing_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("plain text") << QVariant(u"hello"_s);
        QTest::newRow("list") << QVariant(QStringList{u"a"_s, u"b"_s});
        QTest::newRow("base64 of something else") << QVariant(u"aGVsbG8="_s);
    }
    void damagedValuesAreNothing()
    {
        QFETCH(QVariant, stored);
        auto settings = store();
        settings->setValue(u"damaged"_s, stored);
        ZEVUserDefaults defaults(std::move(settings));
        QVERIFY(!defaults.objectForKey(u"damaged"_s).isValid());
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
        ZEVUserDefaults::standardUserDefaults()->synchronize();
        QCOMPARE(ZEVUserDefaults(store()).objectForKey(u"standard"_s), QVariant(u"x"_s));
    }
};

QTEST_GUILESS_MAIN(tst_ZEVUserDefaults)
#include "tst_ZEVUserDefaults.moc"
