// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelQuery.h>
#include <ZEVGlobalUtils/FindEngine/ZEVFindPanelScope.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/ZEVAttributedString.h>
#include <ZEVGlobalUtils/Platform/ZEVError.h>
#include <ZEVGlobalUtils/Platform/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedArchiver.h>
#include <ZEVGlobalUtils/Platform/ZEVKeyedUnarchiver.h>
#include <ZEVGlobalUtils/Platform/ZEVRegularExpression.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QVariant Digits = QVariant::fromValue(ZEVPatternItem::digits());

ZEVFindPanelQuery query(const QVariantList &pattern, qint64 type = 0, bool insensitive = false)
{
    ZEVFindPanelQuery query;
    query.setSearchPattern(pattern);
    query.setMatchingType(type);
    query.setCaseInsensitiveSearch(insensitive);
    return query;
}

ZEVFindPanelQuery archivedAndRestored(const ZEVFindPanelQuery &query)
{
    const QByteArray archive = ZEVKeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(query));
    return ZEVKeyedUnarchiver::unarchivedObjectOfClass<ZEVFindPanelQuery>(archive).value();
}

/// A host's scope that wants to be archived.
class ArchivedScope : public ZEVFindPanelScope, public ZEVKeyedCoding {
public:
    using ZEVFindPanelScope::ZEVFindPanelScope;
    QString classNameForCoder() const override { return u"ArchivedScope"_s; }
    void encodeWithCoder(ZEVKeyedArchiver &archiver) const override
    {
        archiver.encodeObject(title().value_or(QString()), u"title");
    }
};

} // namespace

class tst_ZEVFindPanelQuery : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZEVErrorPresentation::setPresenter({}); }

    void matchingTypesWrapTheExpression_data()
    {
        QTest::addColumn<qint64>("type");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("title");
        QTest::newRow("contains") << qint64(0) << u"a\\.b(\\d+)"_s << u"Contains"_s;
        QTest::newRow("begins") << qint64(1) << u"^a\\.b(\\d+)"_s << u"Begins With"_s;
        QTest::newRow("word") << qint64(2) << u"\\ba\\.b(\\d+)\\b"_s << u"Matches Word"_s;
        QTest::newRow("ends") << qint64(3) << u"a\\.b(\\d+)$"_s << u"Ends With"_s;
        QTest::newRow("expression") << qint64(4) << u"a.b(\\d+)"_s << u"Regular Expression"_s;
        QTest::newRow("contents") << qint64(5) << u"^a\\.b(\\d+)$"_s << u"Matches Contents"_s;
        QTest::newRow("none") << qint64(6) << u"a\\.b(\\d+)"_s << u"(null)"_s;
        QTest::newRow("negative") << qint64(-1) << u"a\\.b(\\d+)"_s << u"(null)"_s;
    }
    void matchingTypesWrapTheExpression()
    {
        QFETCH(qint64, type);
        const auto made = query({u"a.b"_s, 7, Digits}, type, true); // the 7 is skipped
        QTEST(made.searchExpression()->pattern(), "pattern");
        QCOMPARE(made.searchExpression()->options(), ZEVRegularExpression::CaseInsensitive);
        QTEST(ZEVFindPanelQuery::titleForMatchingType(type).value_or(u"(null)"_s), "title");
    }

    void theTemplateIsNeverSearchedFor()
    {
        QCOMPARE(query({QVariant::fromValue(ZEVPatternItem::tab())}).searchExpression()->pattern(), u"(\\t)");
    }

    void noPatternIsNilWithoutAMessage()
    {
        int presented = 0;
        ZEVErrorPresentation::setPresenter([&](const ZEVError &) { ++presented; });
        QVERIFY(!ZEVFindPanelQuery().searchExpression());
        QVERIFY(!query({}).searchExpression());
        QVERIFY(query({u""_s}).searchExpression()); // an empty text is a pattern
        QCOMPARE(presented, 0);
    }

    void whatDoesNotCompileIsPresentedAtEveryCall()
    {
        QStringList presented;
        ZEVErrorPresentation::setPresenter(
            [&](const ZEVError &error) { presented.append(error.localizedDescription()); });
        const auto broken = query({u"(a"_s}, ZEVFindPanelQuery::RegularExpression);
        QVERIFY(!broken.searchExpression() && !broken.searchExpression());
        QCOMPARE(presented.size(), 2);
        QVERIFY(presented.first().contains(u"(a"));
        QVERIFY(query({u"(a"_s}).searchExpression()); // a literal parenthesis elsewhere
    }

    void theTitleNamesScopeTypePatternAndCase()
    {
        auto made = query({u"abc"_s}, 0, true);
        QCOMPARE(made.attributedTitle().string(), u"Contains \"abc\"");
        made.setCaseInsensitiveSearch(false);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        QCOMPARE(made.attributedTitle().string(), u"Library, Contains \"abc\", Case Sensitive");
        made.setSearchPattern(QVariantList{u"a"_s, Digits});
        const ZEVAttributedString title = made.attributedTitle();
        QCOMPARE(title.string(), u"Library, Contains \"a  # \", Case Sensitive");
        QCOMPARE(title.formats().size(), 1);
        QCOMPARE(title.string().mid(title.formats().first().start, title.formats().first().length), u" # ");
        made.setSearchPattern(std::nullopt);
        made.setMatchingType(9);
        made.setScope(std::make_shared<ZEVFindPanelScope>());
        QCOMPARE(made.attributedTitle().string(), u"(null), (null) \"\", Case Sensitive");
    }

    void equalityAndHash()
    {
        const auto base = query({u"a"_s, Digits}, 2, true);
        QCOMPARE(base, query({u"a"_s, Digits}, 2, true));
        QCOMPARE(base.hash(), query({u"a"_s, Digits}, 2, true).hash());
        QVERIFY(base != query({u"a"_s, Digits}, 2, false));
        QVERIFY(base.hash() != query({u"a"_s, Digits}, 2, false).hash());
        QVERIFY(base != query({u"a"_s, Digits}, 3, true));
        QVERIFY(base != query({Digits, u"a"_s}, 2, true));
        QVERIFY(query({u"\u00E9"_s}) != query({u"e\u0301"_s})); // by code units
        auto nilPattern = query({});
        nilPattern.setSearchPattern(std::nullopt);
        QVERIFY(nilPattern != query({}));
    }

    void aCopyWithAScopeIsUnequal()
    {
        auto made = query({u"a"_s});
        QCOMPARE(made.copy(), made);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        const auto copied = made.copy();
        QVERIFY(copied != made);
        QCOMPARE(*copied.scope()->title(), u"Library");
        QVERIFY(!copied.scope()->isEqualToScope(*made.scope()));
    }

    void archivesNarrowTheMatchingType_data()
    {
        QTest::addColumn<qint64>("type");
        QTest::addColumn<qint64>("restored");
        QTest::newRow("0") << qint64(0) << qint64(0);
        QTest::newRow("3") << qint64(3) << qint64(1);
        QTest::newRow("256 has no low byte") << qint64(256) << qint64(0);
        QTest::newRow("-1") << qint64(-1) << qint64(1);
    }
    void archivesNarrowTheMatchingType()
    {
        QFETCH(qint64, type);
        QTEST(archivedAndRestored(query({}, type)).matchingType(), "restored");
    }

    void archivesKeepPatternAndCaseAndLoseThePlainScope()
    {
        auto made = query({u"a"_s, Digits, QVariant(), u""_s}, 0, true);
        QCOMPARE(archivedAndRestored(made), made);
        QCOMPARE(archivedAndRestored(ZEVFindPanelQuery()).searchPattern(), std::nullopt);
        made.setScope(std::make_shared<ZEVFindPanelScope>(u"Library"_s));
        QVERIFY(!archivedAndRestored(made).scope());

        ZEVKeyedUnarchiver::registerClass(u"ArchivedScope"_s, [](ZEVKeyedUnarchiver &unarchiver) {
            const auto title = unarchiver.decodeString(u"title");
            return QVariant::fromValue<std::shared_ptr<ZEVFindPanelScope>>(
                std::make_shared<ArchivedScope>(title));
        });
        made.setScope(std::make_shared<ArchivedScope>(u"Selection"_s));
        QCOMPARE(*archivedAndRestored(made).scope()->title(), u"Selection");
    }
};

QTEST_MAIN(tst_ZEVFindPanelQuery)
#include "tst_ZEVFindPanelQuery.moc"
