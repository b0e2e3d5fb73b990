// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Platform/Text/ZEVCaseMapping_p.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextLocale.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVWordIterator_p.h>

#include <QLocale>

using namespace Qt::StringLiterals;
using ZEVCaseMapping::Form;

namespace {

QString words(const QString &text, const QByteArray &locale = "en")
{
    QStringList found;
    ZEVWordIterator iterator(text, locale);
    while (const auto range = iterator.next())
        found.append(text.mid(range->location, range->length));
    return found.join(u'|');
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
    void wordsWithoutWhatStandsBetween()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"don't rock'n'roll: 3d, AC/DC vs. k.d."_s, u"don't|rock'n'roll|3d|AC|DC|vs|k.d"_s},
            {u" -- _ \U0001F468‍\U0001F469‍\U0001F467 ￼ "_s, {}},
            {u"ラジオ on 𐐨𐐩 _a"_s, u"ラジオ|on|𐐨𐐩|_a"_s},
            {{}, {}},
            {u"part:the"_s, u"part|the"_s},
            {u"In 1999, 3.14 times"_s, u"In|1999|3.14|times"_s},
            {u"عام ١٩٩٩، _7"_s, u"عام|١٩٩٩|_7"_s},
        };
        for (const auto &[text, expected] : rows)
            COMPARE_ROW(text, words(text), expected);
        QCOMPARE(words(u"part:the"_s, "sv"), u"part:the"_s); // a language breaks in its own way
    }

    void walksOfOneThreadMayOverlap()
    {
        ZEVWordIterator outer(u"one two", "en");
        QCOMPARE(outer.next(), (ZEVRange{0, 3}));
        QCOMPARE(words(u"a bc"_s), u"a|bc"_s);
        QCOMPARE(outer.next(), (ZEVRange{4, 3}));
    }

    void theUsersLocaleIsFollowed()
    {
        const QLocale before;
        for (const char *name : {"tr_TR", "ja_JP", "tr_TR"}) {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            QCOMPARE(ZEVTextLocale::userIdentifier(), name);
        }
        QLocale::setDefault(before);
        QCOMPARE(ZEVTextLocale::identifier(QLocale::c()), "en");
        QCOMPARE(ZEVTextLocale::identifier(QLocale(u"sr_Latn_RS"_s)), "sr-Latn");
    }

    /// The plain path for ASCII must be ICU's results, which a named language always takes.
    void asciiIsMappedAsIcuDoes()
    {
        for (char16_t pair = 0; pair < 0x4000; ++pair) {
            const QString text = QString(QChar(pair / 0x80)) + QChar(pair % 0x80) + u"aZ"_s;
            for (const Form form : {Form::Lower, Form::Upper, Form::Capitalized})
                QCOMPARE(mapped(text, form, {}), mapped(text, form, "en"));
        }
    }

    void mappingsMayChangeTheLength()
    {
        const std::tuple<QString, Form, const char *, QString> rows[] = {
            {u"straße"_s, Form::Upper, "", u"STRASSE"_s},
            {QString(50, u'ΐ'), Form::Upper, "", u"\u0399\u0308\u0301"_s.repeated(50)}, // beyond any guess
            {u"İI"_s, Form::Lower, "", u"i̇i"_s},
            {u"ijs"_s, Form::Capitalized, "nl_NL", u"IJs"_s},
            {u"ǆungla"_s, Form::Capitalized, "", u"ǅungla"_s},
            {u"É\xD83C\xDC00x\xDC00"_s, Form::Lower, "", u"é\xD83C\xDC00x\xDC00"_s},
        };
        for (const auto &[text, form, locale, expected] : rows)
            COMPARE_ROW(text, mapped(text, form, locale), expected);
    }
};

QTEST_GUILESS_MAIN(tst_ZEVWordIterator)
#include "tst_ZEVWordIterator.moc"
