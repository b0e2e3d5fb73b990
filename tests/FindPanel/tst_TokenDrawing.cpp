// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "Fields.h"

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBackgroundView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakeCellView.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVGreenTokenAttachmentCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVRoundTokenAttachmentCell.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

namespace {

/// What is left of white under \a color.
QColor onWhite(const QColor &color)
{
    const auto mixed = [&](float part) { return 1 - color.alphaF() * (1 - part); };
    return QColor::fromRgbF(mixed(color.redF()), mixed(color.greenF()), mixed(color.blueF()));
}

bool isNear(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) <= 2 && std::abs(a.green() - b.green()) <= 2
        && std::abs(a.blue() - b.blue()) <= 2;
}

QPalette palette(bool dark)
{
    QPalette palette(dark ? QColor(40, 40, 40) : QColor(240, 240, 240));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0, 90, 200));
    return palette;
}

/// The width of a cell of no text: twice its inset and spacing.
template <typename Cell>
qreal emptyWidth(int size, bool withoutSpacing = false)
{
    Cell cell;
    cell.setControlSize(ZEVControlSize(size));
    if constexpr (std::is_same_v<Cell, ZEVRoundTokenAttachmentCell>)
        cell.setWithoutSpacing(withoutSpacing);
    return cell.cellSize().width();
}

QColor pixel(QWidget &widget, QPoint place)
{
    return widget.grab().toImage().pixelColor(place * widget.devicePixelRatio());
}

} // namespace

class tst_TokenDrawing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void measuresCells()
    {
        QList<qreal> plain, round, narrow;
        for (int size = 0; size <= 5; ++size) {
            plain << emptyWidth<ZEVTokenAttachmentCell>(size);
            round << emptyWidth<ZEVRoundTokenAttachmentCell>(size);
            narrow << emptyWidth<ZEVRoundTokenAttachmentCell>(size, true);
        }
        QCOMPARE(plain, QList<qreal>({28, 14, 6, 34, 38, 0}));
        QCOMPARE(round, QList<qreal>({24, 14, 6, 28, 32, 0}));
        QCOMPARE(narrow, QList<qreal>({18, 14, 6, 22, 26, 0}));

        ZEVRoundTokenAttachmentCell cell;
        QFont font;
        font.setPixelSize(20);
        cell.setFont(font);
        cell.setTitle(u"Word"_s);
        const QFontMetricsF metrics(font);
        QCOMPARE(cell.cellSize(), QSizeF(24 + metrics.horizontalAdvance(u"Word"_s), metrics.height()));
        QCOMPARE(cell.cornerRadius(), std::floor(metrics.height() / 2));
        QCOMPARE(cell.tokenRectForBounds({10, 20, 100, 40}),
                 QRectF(13, 60 - metrics.capHeight() - 6, 94, metrics.capHeight() + 6));
    }

    void choosesColors()
    {
        const QColor accent(0, 90, 200);
        const QPalette light = palette(false);
        const ZEVTokenAttachmentCell token;
        const ZEVGreenTokenAttachmentCell green;
        COMPARE_ROW("selected", token.tokenFillColorForDrawingMode(2, light), accent);
        COMPARE_ROW("resting", token.tokenFillColorForDrawingMode(0, light),
                    QColor::fromRgbF(0.5F, (90 / 255.0F + 1) / 2, (200 / 255.0F + 1) / 2, 0.3F));
        COMPARE_ROW("green", green.tokenFillColorForDrawingMode(2, light),
                    QColor::fromRgbF(0.196F, 0.849F, 0.664F));
        COMPARE_ROW("green at rest", green.tokenFillColorForDrawingMode(1, light),
                    QColor::fromRgbF(0.3568F, 0.8792F, 0.7312F, 0.3F));
    }

    void drawsTokensInTheirModes()
    {
        Field field;
        field.window.setPalette(palette(false));
        field.field.setObjectValue(pattern(u"<Title>"_s));
        field.press(Qt::Key_End);
        const auto drawn = [&] {
            // Between the left end of the capsule and its title.
            const QPoint place = field.centreOf(0) - QPoint(18, 0);
            return pixel(field.field, field.field.viewport()->mapTo(&field.field, place));
        };
        const ZEVTokenAttachmentCell token;
        const auto filled = [&](qint64 mode) {
            return onWhite(token.tokenFillColorForDrawingMode(mode, palette(false)));
        };
        QFont font = field.field.font();
        font.setPixelSize(13);
        field.field.setFont(font);
        QVERIFY2(isNear(drawn(), filled(0)), qPrintable(drawn().name()));
        field.field.selectAll();
        QVERIFY2(isNear(drawn(), filled(2)), qPrintable(drawn().name()));
        // The ground of a selected capsule is the field's, not the selection's.
        const QPoint ear = field.field.characterRect(0).toAlignedRect().topLeft() + QPoint(1, 2);
        QCOMPARE(pixel(field.field, field.field.viewport()->mapTo(&field.field, ear)), QColor(Qt::white));
        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QColor disabled = onWhite(ZEVNamedColors::colorNamed(u"tokenDisabledColor", palette(false)));
        QVERIFY2(isNear(drawn(), disabled), qPrintable(drawn().name()));
    }

    void drawsBehindWhatIsComposed()
    {
        Field field;
        field.window.setPalette(palette(false));
        field.field.setObjectValue(pattern(u"<Title>"_s));
        field.press(Qt::Key_Home);
        const auto leftEnd = [&] {
            const QImage image = field.field.grab().toImage();
            const int y = int(field.field.height() * field.field.devicePixelRatio() / 2);
            int x = 6; // behind the frame and the cursor
            while (x < image.width() && image.pixelColor(x, y).blueF() <= image.pixelColor(x, y).redF())
                ++x;
            return x;
        };
        const int before = leftEnd();
        QInputMethodEvent composing(u"かな"_s, {});
        QCoreApplication::sendEvent(&field.field, &composing);
        QVERIFY2(leftEnd() > before + 10, qPrintable(QString::number(leftEnd())));
        QInputMethodEvent committing;
        committing.setCommitString(u"仮名"_s);
        QCoreApplication::sendEvent(&field.field, &committing);
        QCOMPARE(field.shownValue(), u"仮名<Title>"_s);
    }

    void placesButtons()
    {
        Field field;
        auto *cell = static_cast<ZEVTokenFieldCell *>(field.field.cell());
        const QRectF bounds(10, 20, 200, 30);
        QVERIFY(cell->buttonRectForBounds(bounds).isNull());
        QVERIFY(cell->rightButtonRectForBounds(bounds).isNull());
        QPointer<QAbstractButton> menu =
            ZEVTokenFieldCell::cellButtonWithImageNamed(u"icoAddTemplate", [] {});
        QPointer<QAbstractButton> right =
            ZEVTokenFieldCell::cellButtonWithImageNamed(u"icoAddTemplate", [] {});
        cell->setActionButton(menu);
        cell->setRightButton(right);
        QCOMPARE(menu->accessibleName(), u"Show Menu"_s);
        QCOMPARE(cell->buttonRectForBounds(bounds), QRectF(11, 21, 18, 28));
        QCOMPARE(cell->rightButtonRectForBounds(bounds), QRectF(184, 21, 24, 28));
        QCOMPARE(cell->drawingRectForBounds(bounds).left(), 28.0);
        QCOMPARE(cell->drawingRectForBounds(bounds).right(), 186.0);
        QVERIFY(cell->drawingRectForBounds(bounds).top() > 20); // the bezel's
        field.field.setBezeled(false);
        QCOMPARE(cell->drawingRectForBounds(bounds), QRectF(28, 20, 158, 30));

        const auto textLeft = [&] { return field.field.viewport()->geometry().left(); };
        const int narrow = textLeft();
        cell->setButtonWidth(30); // of a field that is laid out
        QCOMPARE(textLeft(), narrow + 12);
        cell->setButtonWidth(18);

        field.window.resize(300, 100);
        QCoreApplication::processEvents();
        QCOMPARE(right->geometry().right(), field.field.width() - 3);
        field.window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(menu->geometry().right(), field.field.width() - 2);
        QVERIFY(field.field.viewport()->geometry().left() > 24);
        cell->setActionButton(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!menu);
        QVERIFY(right);
    }

    void hasTheHeightOfALineEdit()
    {
        Field field;
        for (const int pixels : {9, 13, 27}) {
            QFont font;
            font.setPixelSize(pixels);
            field.field.setFont(font);
            field.other.setFont(font);
            QCOMPARE(field.field.sizeHint().height(), field.other.sizeHint().height());
        }
    }

    void drawsBackdrops_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<QColor>("background");
        QTest::newRow("light") << false << false << QColor::fromRgbF(0, 0, 0, 0.05F);
        QTest::newRow("light, focused") << false << true << QColor(Qt::white);
        QTest::newRow("dark") << true << false << QColor::fromRgbF(1, 1, 1, 0.15F);
        QTest::newRow("dark, focused") << true << true << QColor::fromRgbF(0.118F, 0.118F, 0.118F);
    }
    void drawsBackdrops()
    {
        QFETCH(bool, dark);
        QFETCH(bool, focused);
        QFETCH(QColor, background);
        ZEVTextFinderFakeCellView view;
        view.resize(60, 30);
        view.setPalette(palette(!dark));
        view.setFocused(focused);
        view.setPalette(palette(dark)); // a change of theme
        QImage image(view.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        view.render(&image, {}, {}, {});
        QCOMPARE(image.pixelColor(30, 15).alpha(), background.alpha());
        QVERIFY(isNear(image.pixelColor(30, 15), background));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // a round corner
        if (focused) // at rest the border is as faint as the ground
            QVERIFY(image.pixelColor(0, 15) != image.pixelColor(30, 15));
    }

    void pinsTheBackground()
    {
        QWidget first, second;
        first.resize(100, 50);
        auto *view = new ZEVTextFinderBackgroundView(&first);
        view->setGeometry(10, 5, 20, 20);
        first.show();
        first.resize(150, 60);
        QTRY_COMPARE(view->geometry(), QRect(0, 5, 150, 20));
        view->setParent(&second);
        QCOMPARE(view->width(), second.width());
        first.resize(90, 60);
        QCoreApplication::processEvents();
        QCOMPARE(view->width(), second.width());
    }

    void tellsWhetherItFilters()
    {
        QLabel noResults;
        ZEVFilterSearchFieldCell field;
        field.setNoResultsField(&noResults);
        QCOMPARE(noResults.text(), u"No Results"_s);
        QCOMPARE(field.sizeHint().height(), 24);
        auto *cancel = field.findChild<QToolButton *>();
        field.setText(u"  "_s);
        QVERIFY(!field.isActive());
        QVERIFY(cancel->isVisibleTo(&field));
        field.setText(u"jazz "_s);
        QVERIFY(field.isActive());
        cancel->click();
        QVERIFY(!field.isActive());
        QVERIFY(field.text().isEmpty());
        QVERIFY(cancel->isHidden());
        QCOMPARE(field.searchTextRectForBounds({0, 0, 200, 24}), QRectF(26, 0, 150, 24));
        field.setText(u"x"_s);
        QTest::keyClick(&field, Qt::Key_Escape);
        QCOMPARE(field.text(), QString());
    }

    void drawsTheFilterField()
    {
        QWidget window;
        auto *field = new ZEVFilterSearchFieldCell(&window);
        field->setGeometry(10, 10, 120, 24);
        const QColor ground = pixel(window, {2, 2});
        const QColor idle = pixel(window, {70, 30});
        QCOMPARE(pixel(window, {10, 10}), ground); // outside the outline
        field->setText(u"x"_s);
        QCOMPARE(pixel(window, {70, 30}), QGuiApplication::palette().color(QPalette::Base));
        QVERIFY(idle != pixel(window, {70, 30}));
        field->setRoundedLook(true);
        QCOMPARE(pixel(window, {12, 12}), ground);
    }
};

QTEST_MAIN(tst_TokenDrawing)
#include "tst_TokenDrawing.moc"
