// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Transforms/Formatters/FileSizeTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVByteCountFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVISO8601DateFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVShortDateFormatter.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVZeroAsNilNumericEnforcer.h>

#include <QLineEdit>
#include <QSet>
#include <QSizeF>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Most = std::numeric_limits<qint64>::max();
const QVariant Null = QVariant::fromValue(nullptr);

QString byteCount(qint64 count)
{
    return FileSizeTransformer::byteCountFormatter().stringFromByteCount(count);
}

QVariant list(const QVariantList &entries) { return entries; }

QDateTime utc(const QString &text) { return QDateTime::fromString(text + u'Z', Qt::ISODate); }

} // namespace

/// What is shown of numbers, sizes and dates, and read of what users type.
class tst_ShownValues : public QObject {
    Q_OBJECT

public:
    /// Before anything asks for the time zone: one with half an hour, and with another one in summer.
    static void initMain() { qputenv("TZ", "Australia/Adelaide"); }

private:
    const ZEVNumericEnforcer *m_shared = ZEVZeroAsNilNumericEnforcer::sharedNumericEnforcer();

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(u"en_US"_s)); }

    void byteCounts()
    {
        const std::tuple<qint64, QString> rows[] = {
            {0, u"Zero KB"_s},
            {1, u"1 byte"_s},
            {999, u"999 bytes"_s},
            {1'499, u"1 KB"_s},
            {1'500, u"2 KB"_s},
            {999'499, u"999 KB"_s},
            {999'500, u"1.0 MB"_s},
            {1'250'000, u"1.3 MB"_s},
            {999'949'999, u"999.9 MB"_s},
            {999'950'000, u"1.00 GB"_s},
            {5'000'000'000'000, u"5.00 TB"_s},
            {Most, u"9.22 EB"_s},
            {-1, u"-1 bytes"_s},
            {-Most - 1, u"-9.22 EB"_s},
        };
        for (const auto &[count, expected] : rows)
            COMPARE_ROW(count, byteCount(count), expected);
        QCOMPARE(ZEVByteCountFormatter().stringFromByteCount(1'100'000'000), u"1.1 GB"_s);
        QCOMPARE(ZEVByteCountFormatter().stringFromByteCount(100'000), u"100 KB"_s);
        QLocale::setDefault(QLocale(u"ar_EG"_s));
        QCOMPARE(byteCount(1'500'000), u"١٫٥ MB"_s);
    }

    void valuesOfTransformersAndOfTheHosts()
    {
        const QString px = u"640\u2006×\u2006480 px"_s;
        const std::tuple<QString, QVariant, QVariant> rows[] = {
            {u"FileSizeTransformer"_s, 0, u"Zero KB"_s},
            {u"FileSizeTransformer"_s, 1e30, u"9.22 EB"_s},
            {u"FileSizeTransformer"_s, u"1000"_s, {}},
            {u"FileSizeTransformer"_s, list({}), {}},
            {u"FileSizeTransformer"_s, list({Null}), u"Zero KB"_s},
            {u"FileSizeTransformer"_s, list({Null, Null}), u"Zero KB"_s},
            {u"FileSizeTransformer"_s, list({5, 0, 2, Null}), u"7 bytes (~ 1 byte)"_s},
            {u"ByteSizeTransformer"_s, 999.9, u"999 bytes"_s},
            {u"ByteSizeTransformer"_s, {}, {}},
            {u"ByteSizeTransformer"_s, list({}), {}},
            {u"ByteSizeTransformer"_s, list({0}), u"Zero KB"_s},
            {u"ByteSizeTransformer"_s, list({Null}), {}},
            {u"ByteSizeTransformer"_s, list({0, 0}), {}},
            {u"ByteSizeTransformer"_s, list({1000, Null}), u"1 KB (~ 500 bytes)"_s},
            {u"ByteSizeTransformer"_s, list({Most, Most}), u"9.22 EB (~ 4.61 EB)"_s},
            {u"ByteSizeTransformer"_s, QVariant::fromValue(QList<qint64>{1000, 3000}), u"4 KB (~ 2 KB)"_s},
            {u"TagSizeTransformer"_s, list({}), {}},
            {u"TagSizeTransformer"_s, 1000, {}},
            {u"TagSizeTransformer"_s, list({0, Null}), u"NONE"_s},
            {u"TagSizeTransformer"_s, list({1000, Null, 1000}), u"2 KB"_s},
            {u"ResolutionTransformer"_s, u" { 640.9 ,480} "_s, px},
            {u"ResolutionTransformer"_s, u"{-640.9, 1e3}"_s, u"-640\u2006×\u20061000 px"_s},
            {u"ResolutionTransformer"_s, u"{1e300, 7}"_s, u"9223372036854775807\u2006×\u20067 px"_s},
            {u"ResolutionTransformer"_s, u"{a, b}"_s, u"0\u2006×\u20060 px"_s},
            {u"ResolutionTransformer"_s, QSizeF(640.5, 480), px},
            {u"ZEVMatchesCountDisplayTransformer"_s, 12345, u"12345 matches"_s},
            {u"ZEVMatchesCountDisplayTransformer"_s, Null, {}},
            {u"ZEVResultsCountDisplayTransformer"_s, 1.9, u"1 Results Found"_s},
            {u"ZEVResultsCountDisplayTransformer"_s, {}, {}},
            {u"ZEVSelectedObjectsToOneTransformer"_s, QStringList{u"b"_s, u"a"_s}, u"b"_s},
            {u"ZEVSelectedObjectsToOneTransformer"_s, QVariant::fromValue(QSet<int>{7}), 7},
            {u"ZEVSelectedObjectsToOneTransformer"_s, list({}), {}},
            {u"ZEVSelectedObjectsToOneTransformer"_s, u"abc"_s, {}},
            {u"ZEVSelectedObjectsToOneTransformer"_s, "abc"_ba, {}},
            {u"ZEVStringIsNotEmpty"_s, Null, false},
            {u"ZEVStringIsNotEmpty"_s, u""_s, false},
            {u"ZEVStringIsNotEmpty"_s, u"\0"_s, true},
            {u"ZEVStringIsEmptyOrNil"_s, {}, true},
            {u"ZEVStringIsEmptyOrNil"_s, u""_s, true},
            {u"ZEVStringIsEmptyOrNil"_s, u" "_s, false},
        };
        for (const auto &[name, value, expected] : rows) {
            const auto transformer = ZEVValueTransformer::valueTransformerForName(name);
            const QMetaType output = transformer->transformedValueClass();
            COMPARE_ROW(name, transformer->transformedValue(value), expected);
            QVERIFY(!expected.isValid() || output.id() == QMetaType::QVariant
                    || output == expected.metaType());
            QVERIFY(!transformer->allowsReverseTransformation());
        }
        const auto isEmpty = ZEVValueTransformer::valueTransformerForName(u"ZEVStringIsEmptyOrNil"_s);
        ZEVValueTransformer::setValueTransformer(isEmpty, u"Own"_s);
        QCOMPARE(ZEVValueTransformer::valueTransformerForName(u"Own"_s), isEmpty);
    }

    void onlyDigitsMayBeTyped()
    {
        for (const QString &text : {u""_s, u"0129"_s, u"99999"_s, u"١٢"_s, u"\U0001D7D9"_s})
            QVERIFY2(m_shared->isPartialStringValid(text), qPrintable(text));
        for (const QString &text : {u"12a"_s, u"-1"_s, u"1 "_s, u"½²Ⅳ"_s, u"\xD835"_s})
            QVERIFY2(!m_shared->isPartialStringValid(text), qPrintable(text));

        QLineEdit edit;
        edit.setValidator(m_shared);
        QTest::keyClicks(&edit, u"1-2a 3"_s);
        QCOMPARE(edit.text(), u"123"_s);
        QVERIFY(edit.hasAcceptableInput());
        QTest::keyClicks(&edit, u"45"_s);
        QCOMPARE(edit.text(), u"12345"_s); // too great, but a step on the way
        QVERIFY(!edit.hasAcceptableInput());
    }

    void numbersAreRead()
    {
        const QVariant untouched(u"untouched"_s);
        const std::tuple<QString, QVariant> rows[] = {
            {u"007"_s, 7LL},         {u"0"_s, {}},
            {u"00"_s, {}},           {{}, {}},
            {u"9999"_s, 9999LL},     {u"١٢"_s, 12LL},
            {u"10000"_s, untouched}, {QString(30, u'9'), untouched},
            {u"-1"_s, untouched},    {u"1.5"_s, untouched},
            {u"-"_s, untouched},
        };
        for (const auto &[text, expected] : rows) {
            QVariant object = untouched;
            QString error;
            COMPARE_ROW(text, m_shared->getObjectValue(&object, text, &error), expected != untouched);
            COMPARE_ROW(text, object, expected);
            COMPARE_ROW(text, error.isEmpty(), expected != untouched);
        }
        const ZEVNumericEnforcer plain;
        QVariant object;
        QVERIFY(plain.getObjectValue(&object, u"0"_s));
        QCOMPARE(object, QVariant(0LL));
        QVERIFY(plain.getObjectValue(&object, u"-10000"_s));
        QCOMPARE(object, QVariant(-10000LL));
    }

    void numbersAreShownInTheUsersDigits()
    {
        QCOMPARE(m_shared->stringForObjectValue(1999), u"1999"_s);
        QCOMPARE(m_shared->stringForObjectValue({}), QString());
        QLocale::setDefault(QLocale(u"ar_EG"_s));
        QCOMPARE(m_shared->stringForObjectValue(1999), u"١٩٩٩"_s);
    }

    void iso8601GoesBothWays()
    {
        const std::tuple<QDateTime, QString> rows[] = {
            {utc(u"2024-06-30T22:08:09"_s), u"2024-07-01T07:38:09+09:30"_s},
            {utc(u"2024-01-31T14:00:00"_s), u"2024-02-01T00:30:00+10:30"_s},
            {utc(u"1968-12-31T00:00:01"_s), u"1968-12-31T09:30:01+09:30"_s},
            {utc(u"2024-12-30T00:00:00"_s), u"2024-12-30T10:30:00+10:30"_s}, // its week is next year's first
        };
        const ZEVISO8601DateFormatter &formatter = ZEVISO8601DateFormatter::sharedInstance();
        QLocale::setDefault(QLocale(u"ar_EG"_s)); // neither digits nor calendar follow the user
        for (const auto &[date, text] : rows) {
            COMPARE_ROW(text, formatter.stringFromDate(date), text);
            COMPARE_ROW(text, formatter.dateFromString(text), date);
        }
        QCOMPARE(formatter.dateFromString(u"2024-05-06T07:08:09Z"), utc(u"2024-05-06T07:08:09"_s));
        QVERIFY(formatter.stringFromDate(utc(u"1500-03-01T12:00:00"_s)).startsWith(u"1500-03-01T"));
        QCOMPARE(formatter.stringFromDate({}), QString());
        for (const QString &text : {u""_s, u"2024"_s, u"2024-05-06 07:08:09Z"_s, u"2024-05-06T07:08:09"_s,
                                    u"2024-13-06T07:08:09Z"_s, u"2024-05-06T07:08:09Z "_s})
            COMPARE_ROW(text, formatter.dateFromString(text), std::nullopt);
    }

    void shortDatesFollowTheUser()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"de_DE"_s, u"06.05.24, 22:38"_s},
            {u"en_US"_s, u"5/6/24, 10:38"_s},
            {u"C"_s, u"5/6/24, 10:38"_s},
            {u"en_GB"_s, u"06/05/2024"_s},
            {u"ar_EG"_s, u"٢٠٢٤"_s},
            {u"ja_JP"_s, u"2024/05/06 22:38"_s},
        };
        for (const auto &[locale, text] : rows) {
            QLocale::setDefault(QLocale(locale));
            const auto &formatter = ZEVShortDateFormatter::sharedInstance();
            const QString shown = formatter.stringFromDate(utc(u"2024-05-06T13:08:09"_s));
            COMPARE_ROW(shown, shown.contains(text), true);
            QCOMPARE(formatter.stringFromDate({}), QString());
        }
    }
};

QTEST_MAIN(tst_ShownValues)
#include "tst_ShownValues.moc"
