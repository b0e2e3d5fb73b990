// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinderActor.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVItemModelFinderClient.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchColors.h>
#include <ZEVGlobalUtils/FindPanel/FinderClients/ZEVMatchHighlightDelegate.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize CellSize(200, 24);

/// One cell as the delegate draws it.
class Cell {
public:
    explicit Cell(const QString &text)
    {
        m_model.appendRow(new QStandardItem(text));
        m_option.rect = QRect(QPoint(), CellSize);
        m_option.state = QStyle::State_Enabled | QStyle::State_Active;
        m_option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    }

    void find(const QString &expression)
    {
        ZEVFindPanelQuery query;
        query.setSearchPattern(QVariantList{expression});
        query.setMatchingType(ZEVFindPanelQuery::RegularExpression);
        m_finder.performSearchAgainstExpression(query.searchExpression());
    }

    void goToNextMatch() { m_actor.performAction(ZEVFindActionNumber::NextMatch); }

    QStyleOptionViewItem &option() { return m_option; }

    /// The columns of pixels in which \a color stands, as first and last; -1 for none.
    std::pair<int, int> extentOf(const QColor &color) const
    {
        QImage image(CellSize, QImage::Format_RGB32);
        image.fill(m_option.palette.color(QPalette::Base));
        QPainter painter(&image);
        ZEVMatchHighlightDelegate(&m_client).paint(&painter, m_option, m_model.index(0, 0));
        std::pair<int, int> extent(-1, -1);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, image.height() / 2 + 6) != color.rgb())
                continue;
            extent.first = extent.first < 0 ? x : extent.first;
            extent.second = x;
        }
        return extent;
    }

    QColor matchColor(bool isCurrent, QPalette::ColorRole base = QPalette::Base) const
    {
        return ZEVMatchColors::forMatchOver(m_option.palette.color(base), isCurrent).background;
    }

private:
    QStandardItemModel m_model;
    ZEVTextFinder m_finder;
    ZEVItemModelFinderClient m_client{&m_model, nullptr, &m_finder};
    ZEVTextFinderActor m_actor{&m_finder};
    QStyleOptionViewItem m_option;
};

} // namespace

class tst_MatchHighlight : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneLineKeepsEveryUnit()
    {
        const ZEVHighlightDelegate delegate;
        QCOMPARE(delegate.displayText(u"a\nb\tc\u2028d\r\u0001e"_s, QLocale()), u"a↵b→c↵d  e"_s);
    }

    void hiddenMatchesMarkTheEllipsis_data()
    {
        QTest::addColumn<QList<ZEVRange>>("matches");
        QTest::addColumn<int>("current");
        QTest::addColumn<QList<ZEVRange>>("visible");
        QTest::addColumn<int>("visibleCurrent");
        const auto row = [](const char *name, QList<ZEVRange> in, int current, QList<ZEVRange> out,
                            int visible) { QTest::newRow(name) << in << current << out << visible; };
        // "Harbour Lights" shown as "Harbour…"
        row("before", {{0, 7}}, 0, {{0, 7}}, 0);
        row("across", {{5, 4}}, -1, {{5, 3}}, -1);
        row("behind", {{8, 2}}, 0, {{7, 1}}, 0);
        row("several behind are one", {{1, 1}, {8, 1}, {9, 1}, {10, 1}}, 0, {{1, 1}, {7, 1}}, 0);
        row("but for the current one", {{8, 1}, {9, 1}, {10, 1}}, 2, {{7, 1}, {7, 1}}, 1);
        row("empty at the end", {{14, 0}}, -1, {{7, 1}}, -1);
    }
    void hiddenMatchesMarkTheEllipsis()
    {
        QFETCH(QList<ZEVRange>, matches);
        QFETCH(int, current);
        const ZEVCellMatches visible =
            ZEVHighlightDelegate::visibleMatches({matches, current}, u"Harbour Lights"_s, u"Harbour…"_s);
        QTEST(visible.ranges, "visible");
        QTEST(int(visible.current), "visibleCurrent");
    }

    void marksLieWhereTheTextIs()
    {
        Cell cell(u"mmmm mmmm"_s);
        QCOMPARE(cell.extentOf(cell.matchColor(false)).first, -1);
        cell.find(u"m{4}"_s);
        const auto both = cell.extentOf(cell.matchColor(false));
        QVERIFY(both.first >= 0);
        QVERIFY(both.second > both.first);
        cell.goToNextMatch();
        const auto current = cell.extentOf(cell.matchColor(true));
        const auto other = cell.extentOf(cell.matchColor(false));
        QCOMPARE(current.first, both.first);
        QVERIFY(current.second < other.first);
        QCOMPARE(other.second, both.second);
    }

    void rightToLeftTextIsMarkedAtItsPlace()
    {
        Cell cell(u"ليل abc"_s); // the text begins on the right
        cell.find(u"abc"_s);
        const auto latin = cell.extentOf(cell.matchColor(false));
        cell.find(u"ليل"_s);
        const auto word = cell.extentOf(cell.matchColor(false));
        QVERIFY(latin.first >= 0);
        QVERIFY(latin.second < word.first);
    }

    void anEmptyMatchIsABar()
    {
        Cell cell(u"mm"_s);
        cell.find(u"$"_s);
        const auto bar = cell.extentOf(cell.matchColor(false));
        QVERIFY(bar.first > 0);
        QVERIFY(bar.second - bar.first <= 2);
    }

    void aSelectedCellIsMarkedToo()
    {
        Cell cell(u"mmmm"_s);
        cell.option().state |= QStyle::State_Selected;
        cell.find(u"mm$"_s);
        QVERIFY(cell.extentOf(cell.matchColor(false, QPalette::Highlight)).first > 0);
    }

    void textsStayReadable_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QPalette(QColor(239, 239, 239));
        QTest::newRow("dark") << QPalette(QColor(53, 53, 53));
    }
    void textsStayReadable()
    {
        QFETCH(QPalette, palette);
        for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::Highlight}) {
            const QColor base = palette.color(role);
            const auto match = ZEVMatchColors::forMatchOver(base, false);
            const auto current = ZEVMatchColors::forMatchOver(base, true);
            QVERIFY(ZEVMatchColors::contrast(match.background, match.text) >= 4.5);
            QVERIFY(ZEVMatchColors::contrast(current.background, current.text) >= 4.5);
            QVERIFY(match.background != base);
            QVERIFY(match.background != current.background);
        }
        const QColor dimmed = ZEVMatchColors::dimmedText(palette);
        QVERIFY(dimmed != palette.color(QPalette::Text));
        QVERIFY(ZEVMatchColors::contrast(dimmed, palette.color(QPalette::Base)) >= 4.5);
        const QColor error = ZEVMatchColors::errorText(palette);
        QVERIFY(ZEVMatchColors::contrast(error, palette.color(QPalette::Window)) >= 4.5);
    }
};

QTEST_MAIN(tst_MatchHighlight)
#include "tst_MatchHighlight.moc"
