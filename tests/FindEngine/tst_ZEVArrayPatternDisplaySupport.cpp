// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVArrayPatternDisplaySupport.h>
#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/Platform/ZEVAttributedString.h>

#include <QGuiApplication>
#include <QPalette>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace ZEVArrayPatternDisplaySupport;

namespace {

QVariant digits() { return QVariant::fromValue(ZEVPatternItem::digits()); }

QVariant artist()
{
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(u"Artist"_s, std::nullopt, {}, u"(.*)"_s);
    item.setMetadataKeyPath(u"artist"_s);
    return QVariant::fromValue(item);
}

/// The text with the coloured stretches in < and >.
QString marked(const ZEVAttributedString &display)
{
    QString text = display.string();
    for (auto range = display.formats().crbegin(); range != display.formats().crend(); ++range) {
        text.insert(range->start + range->length, u'>');
        text.insert(range->start, u'<');
    }
    return text;
}

} // namespace

class tst_ZEVArrayPatternDisplaySupport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tokensLoseTheirOuterSpaceAtTheEnds_data()
    {
        QTest::addColumn<QVariantList>("pattern");
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("raw");
        QTest::newRow("empty") << QVariantList{} << QString() << QString();
        QTest::newRow("item alone") << QVariantList{digits()} << u"< # >"_s << u"[#]"_s;
        QTest::newRow("in the middle")
            << QVariantList{u"a"_s, digits(), u"b"_s} << u"a < # > b"_s << u"a[#]b"_s;
        QTest::newRow("text first") << QVariantList{u"Track "_s, digits(), u" - "_s} << u"Track  < # >  - "_s
                                    << u"Track [#] - "_s;
        QTest::newRow("neighbours") << QVariantList{digits(), artist()} << u"< # >  < Artist >"_s
                                    << u"[#][Artist]"_s;
        QTest::newRow("empty text counts") << QVariantList{u""_s, digits()} << u" < # >"_s << u"[#]"_s;
        QTest::newRow("skipped before") << QVariantList{12, digits()} << u"< # > "_s << u"[#]"_s;
        QTest::newRow("skipped between, the last keeps its space")
            << QVariantList{u"a"_s, QVariant(), digits()} << u"a < # > "_s << u"a[#]"_s;
    }
    void tokensLoseTheirOuterSpaceAtTheEnds()
    {
        QFETCH(QVariantList, pattern);
        QTEST(marked(patternDisplayString(pattern)), "display");
        QTEST(patternRawDisplayString(pattern), "raw");
    }

    void wildcardsAreGreenAndPlaceholdersTheHighlight()
    {
        const ZEVAttributedString display = patternDisplayString({digits(), artist()});
        QCOMPARE(display.formats().size(), 2);
        const QColor green = display.formats().at(0).format.background().color();
        QCOMPARE(green.name(QColor::HexArgb), u"#6632d8a9");
        QColor highlight = QGuiApplication::palette().color(QPalette::Highlight);
        highlight.setAlpha(102);
        QCOMPARE(display.formats().at(1).format.background().color().rgba(), highlight.rgba());
    }

    void anItemWithoutAnyTitleShowsThePlaceholderForNil()
    {
        QCOMPARE(patternRawDisplayString({QVariant::fromValue(ZEVPatternItem())}), u"[(null)]");
    }
};

QTEST_MAIN(tst_ZEVArrayPatternDisplaySupport)
#include "tst_ZEVArrayPatternDisplaySupport.moc"
