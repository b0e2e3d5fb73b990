// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedUnarchiver.h>

#include <QCborArray>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
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

class tst_ZEVKeyedArchive : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void valuesKeepTheirType_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("boolean") << QVariant(true);
        QTest::newRow("large number") << QVariant(Q_INT64_C(-9007199254740993));
        QTest::newRow("real number") << QVariant(0.1);
        QTest::newRow("string of digits") << QVariant(u"12"_s);
        QTest::newRow("empty string") << QVariant(u""_s);
        QTest::newRow("bytes") << QVariant("\0\xFF"_ba);
        QTest::newRow("list of one string") << QVariant(QVariantList{u"a"_s});
        QTest::newRow("empty list") << QVariant(QVariantList());
        QTest::newRow("URL") << QVariant(QUrl(u"file:///a%20b"_s));
        QTest::newRow("map with odd keys")
            << QVariant(QVariantMap{{u"$class"_s, 1}, {u"\xD83C"_s, QVariantMap()}, {u""_s, QVariantList{}}});
        QTest::newRow("item in a list")
            << QVariant(QVariantList{QVariantList{QVariant::fromValue(ZEVPatternItem::tab())}});
    }
    void valuesKeepTheirType()
    {
        QFETCH(QVariant, value);
        const QVariant restored = archivedAndRestored(value);
        if (value.typeId() != QMetaType::QVariantMap && value.typeId() != QMetaType::QVariantList)
            QCOMPARE(restored.typeId(), value.typeId());
        if (value.toList().value(0).typeId() == QMetaType::QVariantList) // a tab's template is not archived
            QCOMPARE(restored.toList()[0].toList()[0].value<ZEVPatternItem>().tokenTitle(), u"→"_s);
        else
            QCOMPARE(restored, value);
    }

    void whatCannotBeArchivedIsNil()
    {
        const QVariant restored = archivedAndRestored(QVariantList{QVariant::fromValue(this), u"a"_s});
        QCOMPARE(restored, QVariant(QVariantList{QVariant(), u"a"_s}));
    }

    void damagedArchivesAreNil_data()
    {
        const QCborValue text = u"x"_s;
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("foreign") << "<?xml version=\"1.0\"?>"_ba;
        QTest::newRow("bare CBOR") << QCborValue(text).toCbor();
        QTest::newRow("something behind the end") << queryArchive() + 'x';
        QTest::newRow("unknown class") << archive(object(u"QProcess"_s, u"program"_s, text));
        QTest::newRow("class name that is a number") << archive(QCborMap{{u"$class"_s, 12}});
        QTest::newRow("map without a class") << archive(QCborMap{{u"title"_s, text}});
        QTest::newRow("title that is a number") << archive(object(u"ZEVPatternItem"_s, u"title"_s, 12));
        QTest::newRow("pattern that is a text")
            << archive(object(u"ZEVFindPanelQuery"_s, u"searchPattern"_s, text));
        QTest::newRow("case that is a number")
            << archive(object(u"ZEVFindPanelQuery"_s, u"caseInsensitiveSearch"_s, 1));
        QTest::newRow("damaged item in a query")
            << archive(object(u"ZEVFindPanelQuery"_s, u"searchPattern"_s,
                              QCborArray{object(u"ZEVPatternItem"_s, u"title"_s, 12)}));
        QTest::newRow("half a code unit") << archive(QCborMap{{u"$utf16be"_s, "abc"_ba}});
        QTest::newRow("foreign tag") << archive(QCborValue(QCborTag(9), text));
        QTest::newRow("deep") << archive(nested(500));
        QTest::newRow("deeper than the parser goes") << QByteArray(1'000'000, '\x81');
        QTest::newRow("a text of 2^62 bytes") << "\x7B\x40\0\0\0\0\0\0\0abc"_ba;
        QTest::newRow("an array of 2^62 elements") << "\x9B\x40\0\0\0\0\0\0\0abc"_ba;
    }
    void damagedArchivesAreNil()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!ZEVKeyedUnarchiver::unarchivedObject(bytes).isValid());
    }

    void whatIsNotTooDeepIsRead()
    {
        QVERIFY(ZEVKeyedUnarchiver::unarchivedObject(archive(nested(50))).isValid());
    }

    void everyTruncationIsNil()
    {
        const QByteArray whole = queryArchive();
        QVERIFY(ZEVKeyedUnarchiver::unarchivedObjectOfClass<ZEVFindPanelQuery>(whole));
        for (qsizetype length = 0; length < whole.size(); ++length)
            QVERIFY2(!ZEVKeyedUnarchiver::unarchivedObject(whole.first(length)).isValid(),
                     qPrintable(QString::number(length)));
    }

    void anotherClassIsNil()
    {
        QVERIFY(!ZEVKeyedUnarchiver::unarchivedObjectOfClass<ZEVPatternItem>(queryArchive()));
        QVERIFY(!ZEVKeyedUnarchiver::unarchivedObjectOfClass<QString>(queryArchive()));
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
};

QTEST_GUILESS_MAIN(tst_ZEVKeyedArchive)
#include "tst_ZEVKeyedArchive.moc"
