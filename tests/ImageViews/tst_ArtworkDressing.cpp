// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../Rows.h"
#include "Motion.h"

#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtBarSeparatorView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVArtFocusView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashDrawingView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVExportImageView.h>

#include <QLabel>
#include <QPropertyAnimation>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// The widget alone, on nothing.
QImage drawn(QWidget &view)
{
    QImage picture(view.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    view.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

QPalette darkPalette() { return {QColor(30, 30, 30), QColor(30, 30, 30)}; }

/// Where the one animation of a view stands after half of its time, from 0 to 1.
qreal halfWay(QObject &view, qreal from, qreal to)
{
    auto *const animation = view.findChild<QPropertyAnimation *>();
    animation->pause();
    animation->setCurrentTime(animation->duration() / 2);
    return (animation->currentValue().toReal() - from) / (to - from);
}

struct Exporter : QObject, ZEVExportImageViewDelegate {
    std::shared_ptr<ZEVPasteboardWriting> pasteboardWriterForExport(ZEVExportImageView *) override
    {
        ++asked;
        return nullptr;
    }
    int asked = 0;
};

void sendMouse(QWidget &view, QEvent::Type type, QPoint at, Qt::MouseButton button)
{
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, at, view.mapToGlobal(QPointF(at)), moves ? Qt::NoButton : button, button, {});
    QApplication::sendEvent(&view, &event);
}

} // namespace

class tst_ArtworkDressing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theBorderIsThreePointsOfDashes()
    {
        ZEVDashDrawingView view;
        view.resize(200, 100);
        const QImage picture = drawn(view);
        const auto isDrawn = [&](int x, int y) { return picture.pixelColor(x, y).alpha() > 250; };
        const int middle = 100;
        QCOMPARE(view.dashColor().name(), u"#7b7b7e"); // a tenth of the way to white
        int on = 0, off = 0;
        for (int x = middle - 33; x < middle + 33; ++x) { // six dashes with their gaps
            on += isDrawn(x, 1);
            off += picture.pixelColor(x, 1).alpha() < 5;
        }
        QVERIFY2(on >= 38 && on <= 54 && off >= 8 && off <= 18, qPrintable(u"%1 %2"_s.arg(on).arg(off)));
        for (int x = 15; x < 185; ++x)
            QVERIFY(!isDrawn(x, 3)); // half of the line is cut off
        QCOMPARE(picture.pixelColor(1, 1).alpha(), 0); // a round corner
    }

    void highlightingFades()
    {
        ZEVDashView view;
        setReducedMotion(&view, false);
        QSignalSpy changes(&view, &ZEVDashView::highlightedChanged);
        QCOMPARE(view.alpha(), 0.5);
        view.setHighlighted(true);
        QVERIFY(qAbs(halfWay(view, 0.5, 1) - 0.8024) < 0.01); // the default curve
        view.setHighlighted(true, false);
        view.setHighlighted(false);
        QVERIFY(qAbs(halfWay(view, 1, 0.5) - 0.6846) < 0.01); // ease-out
        QCOMPARE(view.findChild<QPropertyAnimation *>()->duration(), 150);
        QCOMPARE(changes.count(), 2);
        setReducedMotion(&view, true);
        view.setHighlighted(true);
        QCOMPARE(view.alpha(), 1.0);
    }

    void theShadowFollowsTheAppearance()
    {
        QWidget ground;
        ground.setPalette({Qt::white, Qt::white});
        auto *const view = new ZEVDashView(&ground);
        view->resize(120, 60);
        view->setDrawLabel(false);
        view->setDrawDashes(true);
        view->setHighlighted(true, false);
        ground.show();
        // How many pixels of a row of the upper border are dark.
        const auto dark = [&](int y) {
            const QImage picture = ground.grab(view->geometry()).toImage();
            int count = 0;
            for (int x = 20; x < 100; ++x)
                count += picture.pixelColor(x, y).lightness() < 160;
            return count;
        };
        QVERIFY(dark(3) > 40);
        QCOMPARE(dark(4), 0);
        view->setPalette(darkPalette());
        QVERIFY(dark(4) > 40);
        view->setPalette({QColor(240, 240, 240), QColor(240, 240, 240)});
        QCOMPARE(dark(4), 0);
        view->setDrawDashes(false);
        QCOMPARE(dark(3), 0);
    }

    void whatHasLittleRoomOrTooMuch()
    {
        ZEVDashView view;
        view.setLabel(u"Drop Image Here"_s);
        view.resize(400, 100);
        view.grab(); // only then is it told of its size
        QCOMPARE(view.labelField()->text(), u"Drop Image Here"_s);
        view.resize(80, 80);
        view.grab();
        QVERIFY(view.labelField()->text().contains(u'\n')); // wrapped where there is room for it
        QCOMPARE(view.labelField()->text().replace(u'\n', u' '), view.label());
        view.resize(80, 30);
        view.grab();
        QVERIFY(view.labelField()->text().startsWith(u"D"));
        QVERIFY(view.labelField()->text().endsWith(u'…'));
        QCOMPARE(view.label(), u"Drop Image Here"_s);
        ZEVArtBarSeparatorView separator;
        separator.resize(9, 60);
        const QImage picture = drawn(separator);
        for (int x = 0; x < 9; ++x)
            COMPARE_ROW(x, picture.pixelColor(x, 30).alpha() > 0, x == 4);
    }

    void theToolbarShowsWhileTheMouseIsInside()
    {
        NEEDS_A_SEAT;
        QWidget window;
        window.resize(300, 200);
        auto *const view = new ZEVArtFocusView(&window);
        auto *const toolbar = new QToolButton(&window);
        auto *const elsewhere = new QToolButton(&window);
        elsewhere->setFocusPolicy(Qt::StrongFocus);
        elsewhere->setFocus();
        toolbar->setFocusPolicy(Qt::StrongFocus);
        view->setGeometry(50, 50, 100, 100);
        setReducedMotion(view, true);
        view->setToolbarView(toolbar);
        QCursor::setPos(window.screen()->geometry().bottomRight());
        view->setHidesToolbarView(true);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(view->toolbarAlpha(), 0.0);
        QCursor::setPos(view->mapToGlobal(QPoint(40, 40)));
        QTRY_COMPARE(view->toolbarAlpha(), 1.0);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(view, &leave); // but the mouse is still there
        QCOMPARE(view->toolbarAlpha(), 1.0);
        QCursor::setPos(window.screen()->geometry().bottomRight());
        QTRY_COMPARE(view->toolbarAlpha(), 0.0);
        toolbar->setFocus();
        QTRY_COMPARE(view->toolbarAlpha(), 1.0); // the keyboard needs to see where it is
        elsewhere->setFocus();
        QTRY_COMPARE(view->toolbarAlpha(), 0.0);
        view->setHidesToolbarView(false);
        QCOMPARE(view->toolbarAlpha(), 1.0);
        delete toolbar;
        view->setHidesToolbarView(true);

        QCursor::setPos(view->mapToGlobal(QPoint(40, 40)));
        ZEVArtFocusView late(&window);
        QToolButton other;
        late.setToolbarView(&other);
        late.setHidesToolbarView(true);
        late.setGeometry(view->geometry());
        late.show(); // under the mouse, which never entered
        QCOMPARE(late.toolbarAlpha(), 1.0);
    }

    void anExportViewAsksItsDelegateWhenADragBegins()
    {
        Exporter exporter;
        ZEVExportImageView view;
        view.setImage(EncodedImages::picture(40, 20));
        view.resize(80, 80);
        QCOMPARE(view.drawingRectForBounds(view.rect()), QRectF(20, 30, 40, 20));
        QCOMPARE(view.drawingRectForBounds({0, 0, 20, 20}), QRectF(0, 5, 20, 10));
        view.setDelegate(&exporter);
        const std::tuple<const char *, Qt::MouseButton, QPoint, int> rows[] = {
            {"a shaky click", Qt::LeftButton, {6, 6}, 0},
            {"another button", Qt::RightButton, {60, 60}, 0},
            {"a drag", Qt::LeftButton, {60, 60}, 1},
        };
        for (const auto &[name, button, to, asked] : rows) {
            sendMouse(view, QEvent::MouseButtonPress, {5, 5}, button);
            sendMouse(view, QEvent::MouseMove, to, button);
            sendMouse(view, QEvent::MouseMove, to + QPoint(1, 1),
                      button); // of one drag, the first move counts
            COMPARE_ROW(name, std::exchange(exporter.asked, 0), asked);
        }
    }
};

QTEST_MAIN(tst_ArtworkDressing)
#include "tst_ArtworkDressing.moc"
