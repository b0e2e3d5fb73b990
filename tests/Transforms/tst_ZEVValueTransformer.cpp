// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/ZEVByteCountFormatter.h>
#include <ZEVGlobalUtils/Transforms/ZEVValueTransformer.h>

#include <QLocale>
#include <QSet>
#include <QSizeF>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Most = std::numeric_limits<qint64>::max();
const QVariant Null = QVariant::fromValue(nullptr);

} // namespace

class tst_ZEVValueTransformer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(u"en_US"_s)); }
    void cleanup() { QLocale::setDefault(QLocale(u"en_US"_s)); }

    void byteCounts_data()
    {
        QTest::addColumn<qint64>("count");
        QTest::addColumn<QString>("expected");
        const auto row = [](qint64 count, const QString &expected) {
            QTest::addRow("%lld", static_cast<long long>(count)) << count << expected;
        };
        row(0, u"Zero KB"_s);
        row(1, u"1 byte"_s);
        row(2, u"2 bytes"_s);
        row(999, u"999 bytes"_s);
        row(1'000, u"1 KB"_s);
        row(1'499, u"1 KB"_s);
        row(1'500, u"2 KB"_s);
        row(999'499, u"999 KB"_s);
        row(999'500, u"1.0 MB"_s);
        row(1'000'000, u"1.0 MB"_s);
        row(1'250'000, u"1.3 MB"_s);
        row(999'949'999, u"999.9 MB"_s);
        row(999'950'000, u"1.00 GB"_s);
        row(1'234'000'000, u"1.23 GB"_s);
        row(5'000'000'000'000, u"5.00 TB"_s);
        row(Most, u"9.22 EB"_s);
        row(-1, u"-1 bytes"_s);
        row(-Most - 1, u"-9.22 EB"_s);
    }
    void byteCounts()
    {
        QFETCH(qint64, count);
        QTEST(FileSizeTransformer::byteCountFormatter().stringFromByteCount(count), "expected");
    }

    void zerosAreDroppedUnlessAskedFor()
    {
        const ZEVByteCountFormatter plain;
        QCOMPARE(plain.stringFromByteCount(1'000'000), u"1 MB"_s);
        QCOMPARE(plain.stringFromByteCount(1'100'000'000), u"1.1 GB"_s);
        QCOMPARE(plain.stringFromByteCount(100'000), u"100 KB"_s);
    }

    void byteCountsFollowTheUsersNumbers()
    {
        QLocale::setDefault(QLocale(u"de_DE"_s));
        QCOMPARE(FileSizeTransformer::byteCountFormatter().stringFromByteCount(1'500'000), u"1,5 MB"_s);
        QLocale::setDefault(QLocale(u"ar_EG"_s));
        QCOMPARE(FileSizeTransformer::byteCountFormatter().stringFromByteCount(1'500'000), u"١٫٥ MB"_s);
    }

    void values_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char *name, const char *description, const QVariant &value,
                            const QVariant &expected) {
            QTest::addRow("%s: %s", name, description) << QString::fromLatin1(name) << value << expected;
        };
        const auto list = [](std::initializer_list<QVariant> entries) {
            return QVariant(QVariantList(entries));
        };
        for (const char *name : {"FileSizeTransformer", "ByteSizeTransformer"}) {
            row(name, "number", 1000, u"1 KB"_s);
            row(name, "number 0", 0, u"Zero KB"_s);
            row(name, "fraction", 999.9, u"999 bytes"_s);
            row(name, "beyond 64 bits", 1e30, u"9.22 EB"_s);
            row(name, "nil", {}, {});
            row(name, "string", u"1000"_s, {});
            row(name, "empty list", list({}), {});
            row(name, "one 0", list({0}), u"Zero KB"_s);
            row(name, "one", list({2.0}), u"2 bytes"_s);
            row(name, "with a null", list({1000, Null}), u"1 KB (~ 500 bytes)"_s);
            row(name, "average cut off", list({5, 0, 2, QVariant()}), u"7 bytes (~ 1 byte)"_s);
            row(name, "a sum beyond 64 bits", list({Most, Most}), u"9.22 EB (~ 4.61 EB)"_s);
            row(name, "typed list", QVariant::fromValue(QList<qint64>{1000, 3000}), u"4 KB (~ 2 KB)"_s);
        }
        row("FileSizeTransformer", "one null", list({Null}), u"Zero KB"_s);
        row("ByteSizeTransformer", "one null", list({Null}), {});
        row("FileSizeTransformer", "nulls", list({Null, Null}), u"Zero KB"_s);
        row("ByteSizeTransformer", "nulls", list({Null, Null}), {});
        row("ByteSizeTransformer", "sum of 0", list({0, 0}), {});
        row("TagSizeTransformer", "empty list", list({}), {});
        row("TagSizeTransformer", "no list", 1000, {});
        row("TagSizeTransformer", "one 0", list({0}), u"NONE"_s);
        row("TagSizeTransformer", "one null", list({Null}), u"NONE"_s);
        row("TagSizeTransformer", "one", list({2000}), u"2 KB"_s);
        row("TagSizeTransformer", "sum without average", list({1000, Null, 1000}), u"2 KB"_s);
        row("TagSizeTransformer", "sum of 0", list({0, Null}), u"NONE"_s);

        const QString px = u"640\u2006×\u2006480 px"_s;
        row("ResolutionTransformer", "cut off", u"{640.9, 480.2}"_s, px);
        row("ResolutionTransformer", "spaces", u" { 640 ,480} "_s, px);
        row("ResolutionTransformer", "towards 0", u"{-640.9, 1e3}"_s, u"-640\u2006×\u20061000 px"_s);
        row("ResolutionTransformer", "large", u"{1e300, 1234567}"_s,
            u"%1\u2006×\u20061234567 px"_s.arg(Most));
        row("ResolutionTransformer", "no size", u"{a, b}"_s, u"0\u2006×\u20060 px"_s);
        row("ResolutionTransformer", "Qt's size", QSizeF(640.5, 480), px);
        row("ResolutionTransformer", "nil", {}, {});
        row("ZEVMatchesCountDisplayTransformer", "number", 12345, u"12345 matches"_s);
        row("ZEVMatchesCountDisplayTransformer", "nil", Null, {});
        row("ZEVResultsCountDisplayTransformer", "number", 1.9, u"1 Results Found"_s);
        row("ZEVResultsCountDisplayTransformer", "nil", {}, {});

        row("ZEVSelectedObjectsToOneTransformer", "list", list({u"a"_s, 2}), u"a"_s);
        row("ZEVSelectedObjectsToOneTransformer", "texts", QStringList{u"b"_s, u"a"_s}, u"b"_s);
        row("ZEVSelectedObjectsToOneTransformer", "set", QVariant::fromValue(QSet<int>{7}), 7);
        row("ZEVSelectedObjectsToOneTransformer", "empty", list({}), {});
        row("ZEVSelectedObjectsToOneTransformer", "text", u"abc"_s, {});
        row("ZEVSelectedObjectsToOneTransformer", "bytes", "abc"_ba, {});
        row("ZEVStringIsNotEmpty", "nil", {}, false);
        row("ZEVStringIsNotEmpty", "null", Null, false);
        row("ZEVStringIsNotEmpty", "empty", u""_s, false);
        row("ZEVStringIsNotEmpty", "NUL", QString(QChar(0)), true);
        row("ZEVStringIsEmptyOrNil", "nil", {}, true);
        row("ZEVStringIsEmptyOrNil", "empty", u""_s, true);
        row("ZEVStringIsEmptyOrNil", "space", u" "_s, false);
    }
    void values()
    {
        QFETCH(QString, name);
        QFETCH(QVariant, value);
        QFETCH(QVariant, expected);
        const auto transformer = ZEVValueTransformer::valueTransformerForName(name);
        QVERIFY(transformer);
        QVERIFY(!transformer->allowsReverseTransformation());
        const QVariant result = transformer->transformedValue(value);
        QCOMPARE(result, expected);
        QCOMPARE(result.isValid(), expected.isValid());
        const QMetaType output = transformer->transformedValueClass();
        QVERIFY(!result.isValid() || output == result.metaType()
                || output == QMetaType::fromType<QVariant>());
    }

    void hostsAddTheirOwn()
    {
        struct Doubling : ZEVValueTransformer {
            QMetaType transformedValueClass() const override { return QMetaType::fromType<int>(); }
            QVariant transformedValue(const QVariant &value) const override { return value.toInt() * 2; }
        };
        QCOMPARE(ZEVValueTransformer::valueTransformerNames().size(), 9);
        QVERIFY(!ZEVValueTransformer::valueTransformerForName(u"Doubling"_s));
        ZEVValueTransformer::setValueTransformer(std::make_shared<Doubling>(), u"Doubling"_s);
        QCOMPARE(ZEVValueTransformer::valueTransformerForName(u"Doubling"_s)->transformedValue(4), 8);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVValueTransformer)
#include "tst_ZEVValueTransformer.moc"
