// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVCaseMapping.h>
#include <ZEVGlobalUtils/Platform/ZEVTextLocale.h>
#include <ZEVGlobalUtils/Platform/ZEVWordIterator.h>

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Form;

namespace {

QStringList words(const QString &text, const QByteArray &locale = "en")
{
    QStringList found;
    ZEVWordIterator iterator(text, locale);
    while (const auto range = iterator.next())
        found.append(text.mid(range->location, range->length));
    return found;
}

QString mapped(QStringView text, Form form, const QByteArray &locale)
{
    ZEVCaseMapping::Buffer result;
    ZEVCaseMapping::append(result, u"before ");
    ZEVCaseMapping::append(result, text, form, locale);
    return ZEVCaseMapping::view(result).sliced(7).toString();
}

} // namespace

class tst_ZEVWordIterator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wordsWithoutWhatStandsBetween_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("apostrophes and digits")
            << u"don't rock'n'roll: 3d, 1st!"_s
            << QStringList{u"don't"_s, u"rock'n'roll"_s, u"3d"_s, u"1st"_s};
        QTest::newRow("full stop and slash")
            << u"AC/DC vs. k.d."_s << QStringList{u"AC"_s, u"DC"_s, u"vs"_s, u"k.d"_s};
        QTest::newRow("no word") << u" -- \U0001F468‍\U0001F469‍\U0001F467 ￼ "_s << QStringList();
        QTest::newRow("empty") << QString() << QStringList();
        QTest::newRow("kana and letters") << u"ラジオ on"_s << QStringList{u"ラジオ"_s, u"on"_s};
        QTest::newRow("beyond the BMP") << u"𐐨𐐩 a"_s << QStringList{u"𐐨𐐩"_s, u"a"_s};
    }
    void wordsWithoutWhatStandsBetween()
    {
        QFETCH(QString, text);
        QTEST(words(text), "expected");
    }

    void walksOfOneThreadMayOverlap()
    {
        ZEVWordIterator outer(u"one two", "en");
        QCOMPARE(outer.next(), (ZEVRange{0, 3}));
        QCOMPARE(words(u"a bc"_s), (QStringList{u"a"_s, u"bc"_s}));
        QCOMPARE(outer.next(), (ZEVRange{4, 3}));
        QCOMPARE(outer.next(), std::nullopt);
    }

    void languagesBreakTheirOwnWay()
    {
        QCOMPARE(words(u"part:the"_s, "en"), (QStringList{u"part"_s, u"the"_s}));
        QCOMPARE(words(u"part:the"_s, "sv"), QStringList{u"part:the"_s});
    }

    void localesHaveTheirNames_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("C") << u"C"_s << "en"_ba;
        QTest::newRow("territory") << u"ar_EG"_s << "ar_EG"_ba;
        QTest::newRow("script") << u"sr_Latn_RS"_s << "sr-Latn"_ba;
    }
    void localesHaveTheirNames()
    {
        QFETCH(QString, locale);
        QTEST(ZEVTextLocale::identifier(QLocale(locale)), "expected");
    }

    void theUsersLocaleIsFollowed()
    {
        const QLocale before;
        for (const char *name : {"tr_TR", "ja_JP", "tr_TR"}) {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            QCOMPARE(ZEVTextLocale::userIdentifier(), name);
        }
        QLocale::setDefault(before);
    }

    /// The plain path for ASCII must be ICU's results, which a named language always takes.
    void asciiIsMappedAsIcuDoes()
    {
        for (const Form form : {Form::Lower, Form::Upper, Form::Capitalized}) {
            for (char16_t first = 0; first < 0x80; ++first) {
                for (char16_t second = 0; second < 0x80; ++second) {
                    const QString text = QString(QChar(first)) + QChar(second) + u"aZ"_s;
                    QCOMPARE(mapped(text, form, {}), mapped(text, form, "en"));
                }
            }
        }
    }

    void mappingsMayChangeTheLength_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("form");
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &text, Form form, const char *locale,
                            const QString &expected) {
            QTest::newRow(name) << text << int(form) << QByteArray(locale) << expected;
        };
        row("sharp s", u"straße"_s, Form::Upper, "", u"STRASSE"_s);
        row("longer than any guess", QString(50, u'ΐ'), Form::Upper, "",
            u"\u0399\u0308\u0301"_s.repeated(50));
        row("digit leads", u"1ST"_s, Form::Capitalized, "", u"1st"_s);
        row("final sigma", u"ΟΔΟΣ"_s, Form::Lower, "", u"οδος"_s);
        row("i in no language", u"İI"_s, Form::Lower, "", u"i̇i"_s);
        row("i in Turkish", u"istanbul"_s, Form::Capitalized, "tr", u"İstanbul"_s);
        row("ij in Dutch", u"ijs"_s, Form::Capitalized, "nl_NL", u"IJs"_s);
        row("digraph", u"ǆungla"_s, Form::Capitalized, "", u"ǅungla"_s);
        row("lone halves", QString(u"É\xD83C\xDC00x\xDC00"_s), Form::Lower, "", u"é\xD83C\xDC00x\xDC00"_s);
    }
    void mappingsMayChangeTheLength()
    {
        QFETCH(QString, text);
        QFETCH(int, form);
        QFETCH(QByteArray, locale);
        QTEST(mapped(text, Form(form), locale), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_ZEVWordIterator)
#include "tst_ZEVWordIterator.moc"
