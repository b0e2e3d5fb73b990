// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/PatternString.h>

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QVariant item(const ZEVPatternItem &item) { return QVariant::fromValue(item); }

} // namespace

class tst_PatternString : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textBecomesAPattern_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariantList>("pattern");
        const QVariant digits = item(ZEVPatternItem::digits());
        QTest::newRow("empty") << QString() << QVariantList{};
        QTest::newRow("literal") << u"Track (1)"_s << QVariantList{u"Track (1)"_s};
        QTest::newRow("token") << u"%(\\d+)%"_s << QVariantList{digits};
        QTest::newRow("between texts") << u"a %(\\d+)% b"_s << QVariantList{u"a "_s, digits, u" b"_s};
        QTest::newRow("two tokens") << u"%(\\d+)%%(\\URL)%"_s
                                    << QVariantList{digits, item(ZEVPatternItem::webAddress())};
        QTest::newRow("doubled percent sign") << u"100%%"_s << QVariantList{u"100%"_s};
        QTest::newRow("doubled before a token's text") << u"%%(\\d+)%"_s << QVariantList{u"%(\\d+)%"_s};
        QTest::newRow("percent sign before a token") << u"%%%(\\d+)%"_s << QVariantList{u"%"_s, digits};
        QTest::newRow("single percent signs") << u"5% of %x%"_s << QVariantList{u"5% of %x%"_s};
        QTest::newRow("unfinished token") << u"%(\\d+)"_s << QVariantList{u"%(\\d+)"_s};
        QTest::newRow("unknown token") << u"%(\\q)%"_s << QVariantList{u"%(\\q)%"_s};
        QTest::newRow("only a percent sign") << u"%"_s << QVariantList{u"%"_s};
    }
    void textBecomesAPattern()
    {
        QFETCH(QString, text);
        QTEST(PatternString::patternFromText(text), "pattern");
    }

    void everyItemHasATextOfItsOwn()
    {
        const QList<ZEVPatternItem> vocabulary = PatternString::vocabulary();
        QCOMPARE(vocabulary.size(), 10);
        for (const ZEVPatternItem &each : vocabulary)
            QCOMPARE(PatternString::patternFromText(PatternString::textForItem(each)),
                     QVariantList{item(each)});
    }
};

QTEST_GUILESS_MAIN(tst_PatternString)
#include "tst_PatternString.moc"
