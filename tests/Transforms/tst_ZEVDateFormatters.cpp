// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/ZEVISO8601DateFormatter.h>
#include <ZEVGlobalUtils/Transforms/ZEVShortDateFormatter.h>

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

QString shortText(const char *locale)
{
    QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
    return ZEVShortDateFormatter::sharedInstance().stringFromDate(utc(2024, 5, 6, 13, 8, 9));
}

} // namespace

class tst_ZEVDateFormatters : public QObject {
    Q_OBJECT

public:
    /// Before anything asks for the time zone: one with half an hour, and with another one in summer.
    static void initMain() { qputenv("TZ", "Australia/Adelaide"); }

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void iso8601_data()
    {
        QTest::addColumn<QDateTime>("date");
        QTest::addColumn<QString>("expected");
        QTest::newRow("winter") << utc(2024, 6, 30, 22, 8, 9) << u"2024-07-01T07:38:09+09:30"_s;
        QTest::newRow("summer") << utc(2024, 1, 31, 14, 0, 0) << u"2024-02-01T00:30:00+10:30"_s;
        QTest::newRow("before the epoch") << utc(1968, 12, 31, 0, 0, 1) << u"1968-12-31T09:30:01+09:30"_s;
        QTest::newRow("year in a four-digit frame")
            << utc(2024, 12, 30, 0, 0, 0) << u"2024-12-30T10:30:00+10:30"_s;
        QTest::newRow("another zone") << QDateTime(QDate(2024, 7, 1), QTime(0, 0), Qt::OffsetFromUTC, -3600)
                                      << u"2024-07-01T10:30:00+09:30"_s;
    }
    void iso8601()
    {
        QFETCH(QDateTime, date);
        QFETCH(QString, expected);
        const ZEVISO8601DateFormatter &formatter = ZEVISO8601DateFormatter::sharedInstance();
        QLocale::setDefault(QLocale(u"ar_EG"_s)); // neither digits nor calendar follow the user
        QCOMPARE(formatter.stringFromDate(date), expected);
        QCOMPARE(formatter.dateFromString(expected), date);
    }

    void iso8601CountsYearsWithoutTheJulianCalendar()
    {
        const QString text =
            ZEVISO8601DateFormatter::sharedInstance().stringFromDate(utc(1500, 3, 1, 12, 0, 0));
        QVERIFY2(text.startsWith(u"1500-03-01T"), qPrintable(text));
    }

    void iso8601ReadsNothingElse_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "2024", "2024-05-06 07:08:09Z", "2024-05-06T07:08:09",
                                 "2024-13-06T07:08:09Z", "2024-05-06T07:08:09Z ", "2024-05-06T07:08:09Zx"})
            QTest::addRow("'%s'", text) << QString::fromLatin1(text);
    }
    void iso8601ReadsNothingElse()
    {
        QFETCH(QString, text);
        QCOMPARE(ZEVISO8601DateFormatter::sharedInstance().dateFromString(text), std::nullopt);
    }

    void iso8601ReadsUtc()
    {
        QCOMPARE(ZEVISO8601ID3DateFormatString, u"yyyy-MM-dd'T'HH:mm:ssZZZZZ");
        QCOMPARE(ZEVISO8601DateFormatter::sharedInstance().dateFromString(u"2024-05-06T07:08:09Z"),
                 utc(2024, 5, 6, 7, 8, 9));
    }

    void shortDatesFollowTheUser()
    {
        QCOMPARE(shortText("de_DE"), u"06.05.24, 22:38"_s);
        const QString english = shortText("en_US");
        QVERIFY2(english.startsWith(u"5/6/24, 10:38") && english.endsWith(u"PM"), qPrintable(english));
        QCOMPARE(shortText("C"), english);
        QVERIFY2(shortText("en_GB").startsWith(u"06/05/2024"), qPrintable(shortText("en_GB")));
        QVERIFY2(shortText("ar_EG").contains(u"٢٠٢٤"), qPrintable(shortText("ar_EG")));
        QCOMPARE(shortText("ja_JP"), u"2024/05/06 22:38"_s);
    }

    void noDateNoText()
    {
        QCOMPARE(ZEVShortDateFormatter::sharedInstance().stringFromDate({}), QString());
        QCOMPARE(ZEVISO8601DateFormatter::sharedInstance().stringFromDate({}), QString());
    }
};

QTEST_GUILESS_MAIN(tst_ZEVDateFormatters)
#include "tst_ZEVDateFormatters.moc"
