// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Images/EncodedImages.h"
#include "../Rows.h"
#include "Motion.h"

#include <ZEVGlobalUtils/Images/Artwork/ZEVImageDescription.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPboardImageWriter.h>
#include <ZEVGlobalUtils/Images/Artwork/ZEVPreviewPanel.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Platform/Pasteboards/ZEVPasteboard.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPropertyAnimation>
#include <QTemporaryDir>
#include <QThreadPool>

#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

using Offers = QList<std::pair<QString, QByteArray>>;

QByteArray png(int width) { return EncodedImages::encoded(width, 8, "PNG"); }

std::unique_ptr<QMimeData> offering(const Offers &offers)
{
    auto data = std::make_unique<QMimeData>();
    for (const auto &[format, bytes] : offers)
        data->setData(format, bytes);
    return data;
}

Offers files(const QStringList &paths)
{
    QByteArray list;
    for (const QString &path : paths)
        list += QUrl::fromLocalFile(path).toEncoded() + "\r\n";
    return {{u"text/uri-list"_s, list}};
}

bool enter(QWidget &view, const QMimeData &data, Qt::DropActions actions = Qt::CopyAction)
{
    QDragEnterEvent event({20, 20}, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&view, &event);
    return event.isAccepted();
}

/// The whole way of a drop, whose data is gone as soon as it has been handled.
bool drop(QWidget &view, const Offers &offers, Qt::DropActions actions = Qt::CopyAction)
{
    const std::unique_ptr<QMimeData> data = offering(offers);
    if (!enter(view, *data, actions))
        return false;
    QDropEvent event({20, 20}, actions, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&view, &event);
    return event.isAccepted();
}

/// Keeps the answers for later.
struct Vetter : QObject, ZEVDragImageViewDelegate {
    bool acceptBitmapData(ZEVDragImageView *, const QByteArray &data, const Completion &completion) override
    {
        asked.append(data);
        answers.append(completion);
        return true;
    }
    std::optional<QString> exportNameForBitmapData(ZEVDragImageView *, const QByteArray &) override
    {
        return name;
    }
    QList<QByteArray> asked;
    QList<Completion> answers;
    std::optional<QString> name;
};

class Well : public ZEVDragImageView {
public:
    Well()
    {
        resize(100, 100);
        setReducedMotion(this, true);
        setReducedMotion(dashView(), true);
        setReducedMotion(imageView(), true);
        connect(this, &ZEVDragImageView::didUpdate, this,
                [this](const QVariantMap &info) { updates += info; });
    }
    using ZEVDragImageView::pasteboardWriter;
    /// Reading, decoding and vetting follow one another.
    void settle()
    {
        do {
            filePromiseQueue()->waitForDone();
            QCoreApplication::processEvents();
        } while (isImporting());
    }
    QList<QVariantMap> updates;
};

} // namespace

class tst_ZEVDragImageView : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(u"ä#1.png"_s);

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(m_file);
        QVERIFY(file.open(QFile::WriteOnly));
        QVERIFY(file.write(png(7)) > 0);
        mkfifo(QFile::encodeName(m_folder.filePath(u"pipe.png"_s)), 0600);
    }

    void init() { QGuiApplication::clipboard()->clear(); }

    void whenTheOutlineShows()
    {
        const std::tuple<const char *, bool, uint, bool, bool, bool> rows[] = {
            {"empty", true, 0, false, false, true},
            {"filled", true, 0, false, true, false},
            {"filled, under a drag", true, 0, true, true, true},
            {"never", true, 1, true, false, false},
            {"always", true, 2, false, true, true},
            {"beyond is automatic", true, 3, false, true, false},
            {"not editable", false, 2, true, false, false},
        };
        for (const auto &[name, editable, rule, highlighted, filled, draws] : rows) {
            Well well;
            bool told = true; // as it begins
            connect(&well, &ZEVDragImageView::drawDashesChanged, this, [&](bool now) { told = now; });
            well.setBitmapData(filled ? png(9) : QByteArray());
            well.setDashDisplayRule(rule);
            well.dashView()->setHighlighted(highlighted, false);
            well.setEditable(editable);
            COMPARE_ROW(name, well.drawDashes(), draws);
            COMPARE_ROW(name, told, draws);
            COMPARE_ROW(name, well.dashView()->drawLabel(), !filled && editable);
        }
    }

    void whatCanBeDropped()
    {
        const QString image = u"public.image"_s, pngType = u"image/png"_s, links = u"text/uri-list"_s;
        const auto at = [&](const QString &name) { return files({m_folder.filePath(name)}); };
        const std::tuple<const char *, Offers, int> rows[] = {
            {"the general type first", {{pngType, png(5)}, {image, png(6)}}, 6},
            {"a file", files({m_file}), 7},
            {"a file before bytes", files({m_file}) + Offers{{u"image/bmp"_s, png(5)}}, 7},
            {"a picture with its link", {{links, "https://a.example/"}, {pngType, png(5)}}, 5},
            {"two files", files({m_file, m_file}), 0},
            {"a link", {{links, "https://a.example/cover.png"}}, 0},
            {"a pipe", at(u"pipe.png"_s), 0},
            {"a drawing", {{u"image/svg+xml"_s, "<svg/>"}}, 0},
        };
        for (const auto &[name, offers, width] : rows) {
            Well well;
            COMPARE_ROW(name, drop(well, offers), width > 0);
            COMPARE_ROW(name, well.bitmapData().isNull(), true); // afterwards, not in the drop
            well.settle();
            COMPARE_ROW(name, well.imageDescription() ? int(well.imageDescription()->size().width()) : 0,
                        width);
            COMPARE_ROW(name, well.updates, QList<QVariantMap>(width > 0 ? 1 : 0));
        }
    }

    /// What would only put a blank in the place of good artwork.
    void whatCannotBeShownIsRefused()
    {
        const QString image = u"public.image"_s;
        const QByteArray icon = EncodedImages::encoded(16, 16, "ICO"),
                         ppm = EncodedImages::encoded(5, 5, "PPM");
        const std::tuple<const char *, Offers, QString> rows[] = {
            {"half a picture", {{u"image/png"_s, png(64).first(60)}}, u"damaged"_s},
            {"without a decoder", {{image, EncodedImages::avif(40, 30)}}, u"no decoder for AVIF"_s},
            {"an icon", {{image, icon}}, u"no known image format"_s},
            {"an icon under its name", {{u"image/vnd.microsoft.icon"_s, icon}}, {}},
            {"a pixmap under its name", {{u"image/x-portable-pixmap"_s, ppm}}, {}},
        };
        for (const auto &[name, offers, reason] : rows) {
            Well well;
            Vetter vetter;
            well.setDelegate(&vetter);
            well.setBitmapData(png(9));
            QString said;
            connect(&well, &ZEVDragImageView::importWasRefused, this,
                    [&](const QString &why) { said = why; });
            COMPARE_ROW(name, drop(well, offers), !reason.isEmpty());
            well.settle();
            COMPARE_ROW(name, said, reason);
            COMPARE_ROW(name, well.bitmapData(), png(9));
            COMPARE_ROW(name, vetter.asked.size(), 0);
        }
    }

    void artworkThatCannotBeShownSaysSo()
    {
        Well well;
        well.setBitmapData(EncodedImages::avif(40, 30));
        QCOMPARE(well.dashView()->label(), u"No decoder for AVIF\n40\u2006×\u200630 px, AVIF"_s);
        QVERIFY(well.drawDashes());
        well.setEditable(false);
        QVERIFY(well.dashView()->drawLabel());
        well.setBitmapData(png(5));
        QVERIFY(!well.dashView()->drawLabel());
        QCOMPARE(well.dashView()->label(), u"Drop Image Here"_s);
    }

    void aDragOverTheWell()
    {
        const auto data = offering({{u"image/png"_s, png(5)}});
        Well well;
        QVERIFY(!enter(well, *data, Qt::MoveAction));
        QVERIFY(enter(well, *data, Qt::CopyAction | Qt::MoveAction));
        QVERIFY(well.dashView()->isHighlighted());
        QCOMPARE(well.imageView()->opacity(), 0.55);
        QDragMoveEvent move({20, 20}, Qt::MoveAction | Qt::LinkAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(&well, &move);
        QVERIFY(!move.isAccepted());
        QDragLeaveEvent leave;
        QApplication::sendEvent(&well, &leave);
        QVERIFY(!well.dashView()->isHighlighted());
        QVERIFY(well.imageView()->opacity() == 1.0);
        QVERIFY(drop(well, {{u"image/png"_s, png(5)}}));
        QVERIFY(!well.dashView()->isHighlighted());
        QVERIFY(well.imageView()->opacity() == 1.0);
        well.setEditable(false);
        QVERIFY(!enter(well, *data));
        QVERIFY(!well.dashView()->isHighlighted());
    }

    void theDelegateAnswersWhenItLikes()
    {
        Vetter vetter;
        Well well;
        well.setDelegate(&vetter);
        for (int width : {5, 6, 7}) {
            QVERIFY(drop(well, {{u"image/png"_s, png(width)}}));
            well.settle();
        }
        QCOMPARE(vetter.asked, QList({png(5), png(6), png(7)}));
        QVERIFY(well.bitmapData().isNull());
        vetter.answers[1](png(16)); // the first never comes, the second twice
        well.settle();
        QCOMPARE(well.bitmapData(), png(16));
        vetter.answers[1](png(26));
        vetter.answers[0](png(15)); // older than what is shown
        vetter.answers[2]({}); // refused
        std::thread([&] { vetter.answers[2](png(17)); }).join();
        QCOMPARE(well.bitmapData(), png(16)); // not on that thread
        well.settle();
        QCOMPARE(well.bitmapData(), png(17));
        QCOMPARE(well.updates.size(), 2);
        drop(well, {{u"image/png"_s, png(8)}});
        well.settle();
        well.setBitmapData(png(1)); // the host's own
        vetter.answers[3](png(18));
        well.settle();
        QCOMPARE(well.bitmapData(), png(1));
        QCOMPARE(well.updates.size(), 2);
    }

    void whoeverGoesFirst()
    {
        auto vetter = std::make_unique<Vetter>();
        auto well = std::make_unique<Well>();
        well->setDelegate(vetter.get());
        drop(*well, {{u"image/png"_s, png(5)}});
        well->settle();
        drop(*well, files({m_file}));
        drop(*well, {{u"image/png"_s, png(6)}});
        well.reset(); // with a file and a drop on their way
        vetter->answers[0](png(15));
        QCoreApplication::processEvents();
        QCOMPARE(vetter->asked.size(), 1);
        Well other;
        other.setDelegate(vetter.get());
        vetter.reset();
        drop(other, {{u"image/png"_s, png(5)}});
        other.settle();
        QCOMPARE(other.bitmapData(), png(5));
    }

    /// The sanitizers see what touches a well that is no more.
    void aWellMayEndInEverySignal()
    {
        using Maker = std::function<void(ZEVDragImageView *, const std::function<void()> &)>;
        const auto at = [](auto signal) -> Maker {
            return [signal](ZEVDragImageView *well, const auto &end) { connect(well, signal, well, end); };
        };
        const std::pair<const char *, Maker> signalsOfWell[] = {
            {"editable", at(&ZEVDragImageView::editableChanged)},
            {"rule", at(&ZEVDragImageView::dashDisplayRuleChanged)},
            {"dashes", at(&ZEVDragImageView::drawDashesChanged)},
            {"description", at(&ZEVDragImageView::imageDescriptionChanged)},
            {"update", at(&ZEVDragImageView::didUpdate)},
            {"artwork", at(&ZEVDragImageView::artworkDidUpdate)},
            {"refusal", at(&ZEVDragImageView::importWasRefused)},
            {"image",
             [](auto *well, const auto &end) {
                 connect(well->imageView(), &ZEVImageView::imageChanged, well, end);
             }},
            {"highlight",
             [](auto *well, const auto &end) {
                 connect(well->dashView(), &ZEVDashView::highlightedChanged, well, end);
             }},
            {"clipboard",
             [](auto *well, const auto &end) {
                 connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, well, end);
             }},
        };
        const auto dragged = offering({{u"image/png"_s, png(5)}});
        const auto dropped = [](Well *well, const QByteArray &bytes) {
            const QPointer<Well> guard = well;
            const auto data = offering({{u"image/png"_s, bytes}});
            QDropEvent event({20, 20}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
            QApplication::sendEvent(well, &event);
            for (int step = 0; step < 4 && guard; ++step) {
                well->filePromiseQueue()->waitForDone();
                QCoreApplication::processEvents();
            }
        };
        const std::pair<const char *, std::function<void(Well *)>> deeds[] = {
            {"editable", [](Well *well) { well->setEditable(false); }},
            {"rule", [](Well *well) { well->setDashDisplayRule(2); }},
            {"new artwork", [](Well *well) { well->setBitmapData(png(6), true, true); }},
            {"none", [](Well *well) { well->clearImage(); }},
            {"cut", [](Well *well) { QTest::keyClick(well, Qt::Key_X, Qt::ControlModifier); }},
            {"drop", [&](Well *well) { dropped(well, png(7)); }},
            {"drop of a ruin", [&](Well *well) { dropped(well, png(64).first(60)); }},
            {"resize",
             [](Well *well) {
                 QResizeEvent event({50, 60}, {100, 100});
                 QApplication::sendEvent(well, &event);
             }},
        };
        int ended = 0;
        for (const auto &[signal, connectTo] : signalsOfWell) {
            for (const auto &[deed, act] : deeds) {
                const QPointer<Well> well = new Well;
                well->setBitmapData(png(5));
                enter(*well, *dragged);
                connectTo(well, [&] {
                    ++ended;
                    delete well.data();
                });
                act(well);
                delete well.data();
            }
        }
        QVERIFY2(ended >= 25, qPrintable(QString::number(ended))); // not all pairs meet
    }

    void whileAFileWaitsToBeRead()
    {
        const QString file = m_folder.filePath(u"waiting.png"_s), link = m_folder.filePath(u"link.png"_s);
        const std::pair<const char *, std::function<void(Well &)>> rows[] = {
            {"it is given up", [](Well &well) { QTest::keyClick(&well, Qt::Key_Escape); }},
            {"it vanishes", [&](Well &) { QFile::remove(file); }},
            {"a pipe takes its place", [&](Well &) { QFile::remove(file) && QFile::link(link, file); }},
            {"other artwork is set", [](Well &well) { well.setBitmapData(png(9)); }},
        };
        mkfifo(QFile::encodeName(link), 0600);
        for (const auto &[name, act] : rows) {
            QFile::remove(file);
            QVERIFY(QFile::copy(m_file, file));
            Well well;
            well.setBitmapData(png(9));
            QSemaphore mayGoOn;
            well.filePromiseQueue()->start([&] { mayGoOn.acquire(); });
            drop(well, files({file}));
            well.show();
            auto *const bar = well.findChild<QProgressBar *>();
            COMPARE_ROW(name, bar->isVisible(), false); // most are quick
            QTRY_VERIFY(bar->isVisible());
            act(well);
            COMPARE_ROW(name, bar->isVisible(), well.isImporting());
            mayGoOn.release();
            well.settle();
            COMPARE_ROW(name, bar->isVisible(), false);
            COMPARE_ROW(name, well.bitmapData(), png(9));
            COMPARE_ROW(name, well.updates.size(), 0);
        }
    }

    void theOriginIsThatOfTheArtworkThatGoes()
    {
        Well well;
        well.setBitmapData(png(5));
        const auto before = well.imageDescription();
        well.applyImportedImageData(png(6), QUrl(u"https://a.example/b"_s));
        well.applyImportedImageData("", {});
        QCOMPARE(before->originURL(), QUrl(u"https://a.example/b"_s));
        QVERIFY(well.imageDescription()->originURL().isEmpty());
        QVERIFY(well.updates.size() == 1);
    }

    void copyAndPaste()
    {
        NEEDS_A_SEAT;
        Vetter vetter;
        Well well;
        well.setDelegate(&vetter);
        well.copy();
        QVERIFY(ZEVPasteboard::generalPasteboard().types().isEmpty()); // nothing to copy
        QGuiApplication::setDesktopFileName(u"org.example.editor"_s);
        well.setBitmapData(png(5));
        well.cut();
        const ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
        QCOMPARE(general.dataForType(u"public.image"), png(5));
        QCOMPARE(QImage::fromData(general.dataForType(u"public.tiff"), "TIFF").size(), QSize(5, 8));
        QCOMPARE(general.dataForType(u"org.nspasteboard.source"), "org.example.editor");
        well.paste();
        well.settle();
        QCOMPARE(well.bitmapData(), png(5)); // vetted before
        QCOMPARE(well.updates, QList<QVariantMap>({{{u"imageCleared"_s, true}}, {}}));
        QGuiApplication::setDesktopFileName(u"org.example.other"_s);
        well.paste();
        well.settle();
        QCOMPARE(vetter.asked.size(), 1);
        vetter.answers[0](png(15));
        well.settle();
        QCOMPARE(well.bitmapData(), png(15));
        QGuiApplication::setDesktopFileName({}); // nothing is one's own without a name
        QGuiApplication::clipboard()->setMimeData(
            offering({{u"image/png"_s, png(6)}, {u"org.nspasteboard.source"_s, ""}}).release());
        well.paste();
        well.settle();
        QCOMPARE(vetter.asked.size(), 2);
    }

    void whatCanBeDone()
    {
        NEEDS_A_SEAT;
        Well well;
        QStringList titles;
        for (const QAction *item : well.menu()->actions())
            titles.append(item->isSeparator() ? u"-"_s : item->text());
        QCOMPARE(titles.join(u' '), u"Cut Copy Paste - Remove");
        const auto possible = [&] {
            QStringList names;
            for (const char *action : {"copy", "cut", "clearImage", "paste", "browse", "close", "fly"}) {
                if (well.validateUserInterfaceItem(action))
                    names.append(QString::fromLatin1(action));
            }
            return names.join(u' ');
        };
        QCOMPARE(possible(), u"browse close");
        QGuiApplication::clipboard()->setMimeData(offering({{u"image/png"_s, png(6)}}).release());
        QCOMPARE(possible(), u"paste browse close");
        well.setBitmapData(png(5));
        QCOMPARE(possible(), u"copy cut clearImage paste browse close");
        well.setEditable(false);
        QCOMPARE(possible(), u"copy close");
        QTest::keyClick(&well, Qt::Key_Delete);
        QCOMPARE(well.bitmapData(), png(5));
        well.setEditable(true);
        QTest::keyClick(&well, Qt::Key_X, Qt::ControlModifier);
        QVERIFY(well.bitmapData().isNull());
        QTest::keyClick(&well, Qt::Key_V, Qt::ControlModifier);
        well.settle();
        QCOMPARE(well.bitmapData(), png(5));
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
            QTest::keyClick(&well, key);
            QVERIFY(well.bitmapData().isNull());
            well.setBitmapData(png(5));
        }
        Q_EMIT well.menu()->aboutToShow();
        well.menu()->actions().at(4)->trigger();
        QVERIFY(well.bitmapData().isNull());
        QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
        key.ignore();
        QApplication::sendEvent(&well, &key);
        QVERIFY(key.isAccepted()); // before any menu of the window
    }

    void theKeyboardFindsItsWay()
    {
        NEEDS_A_SEAT;
        Well well;
        well.setBitmapData(png(5));
        well.show();
        well.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&well));
        well.clearFocus();
        const QImage without = well.grab().toImage();
        well.setFocus();
        QVERIFY(well.grab().toImage() != without); // a frame
        const QAccessibleInterface *const told = QAccessible::queryAccessibleInterface(&well);
        QCOMPARE(told->role(), QAccessible::Graphic);
        QCOMPARE(told->text(QAccessible::Name), u"Artwork");
        QCOMPARE(told->text(QAccessible::Description), well.imageDescription()->imageDescription());
        QTest::keyClick(&well, Qt::Key_Space);
        ZEVPreviewPanel *const panel = ZEVPreviewPanel::sharedPreviewPanel();
        QVERIFY(panel->isVisible());
        well.setBitmapData(png(6));
        QCOMPARE(panel->findChild<QLabel *>()->text(), well.imageDescription()->imageDescription());
        panel->hide();
    }

    void whatIsDraggedOut()
    {
        Vetter vetter;
        const std::tuple<std::optional<QString>, QByteArray, QString> rows[] = {
            {u""_s, EncodedImages::encoded(5, 5, "JPG"), u"Image.jpg"_s},
            {u"AC/DC 1.5"_s, png(5), u"AC:DC 1.5.png"_s},
            {std::nullopt, "\x01", u"Image.tiff"_s},
        };
        for (const auto &[name, bytes, file] : rows) {
            Well well;
            well.setDelegate(&vetter);
            vetter.name = name;
            well.setBitmapData(bytes);
            COMPARE_ROW(file, well.pasteboardWriter()->promisedFileName(), file);
            COMPARE_ROW(file, well.pasteboardWriter()->bitmapData(), bytes);
        }
    }

    void thePictureFitsTheWell()
    {
        Well well;
        well.setBitmapData(EncodedImages::encoded(30, 20, "PNG"));
        QCOMPARE(well.drawingImageRectInBounds(), QRect(0, 16, 100, 68));
        QCOMPARE(well.imageView()->image().deviceIndependentSize(), QSizeF(100, 100));
        well.show();
        well.resize(200, 180);
        QCOMPARE(well.imageView()->imageScaling(), ZEVImageView::ScaleProportionallyUpOrDown);
        QTRY_COMPARE(well.imageView()->image().deviceIndependentSize(), QSizeF(200, 180));
        QCOMPARE(well.imageView()->imageScaling(), ZEVImageView::ScaleProportionallyDown);
        ZEVImageView tall;
        tall.setImage(QImage(20, 200, QImage::Format_RGB32));
        QCOMPARE(tall.drawingRectForBounds({0, 0, 100, 100}), QRectF(45, 0, 10, 100));
    }

    void newArtworkFadesInAndGrows()
    {
        Well well;
        setReducedMotion(well.imageView(), false);
        well.setBitmapData(png(5), true, true);
        QCOMPARE(std::pair(well.imageView()->opacity(), well.imageView()->scale()), std::pair(0.55, 0.9));
        const auto data = offering({{u"image/png"_s, png(5)}});
        enter(well, *data);
        QCoreApplication::processEvents();
        QCOMPARE(well.imageView()->opacity(), 0.55); // the drag has the last word
    }

    /// An animation goes on from what is seen, at every second time, too.
    void nothingBlinks()
    {
        Well well;
        setReducedMotion(well.dashView(), false);
        well.dashView()->setHighlighted(true, false);
        for (int n = 0; n < 4; ++n) {
            const qreal before = well.dashView()->alpha();
            well.dashView()->setHighlighted(n % 2 == 1, true);
            QVERIFY2(std::abs(well.dashView()->alpha() - before) < 0.1, qPrintable(QString::number(n)));
            QTRY_COMPARE(well.dashView()->alpha(), n % 2 == 1 ? 1.0 : 0.5);
        }
    }

    void whatAPasteboardItemIsGiven()
    {
        Well well;
        const ZEVPasteboard general = ZEVPasteboard::generalPasteboard();
        QVERIFY(well.provideDataForType(general, nullptr, u"public.tiff").isNull());
        well.setBitmapData(EncodedImages::turned(EncodedImages::picture(6, 5), "JPG", 6));
        const QImage tiff =
            QImage::fromData(well.provideDataForType(general, nullptr, u"public.tiff"), "TIFF");
        QCOMPARE(tiff.size(), QSize(5, 6)); // upright
        QVERIFY(well.provideDataForType(general, nullptr, u"com.adobe.pdf").startsWith("%PDF"));
        QVERIFY(well.provideDataForType(general, nullptr, u"public.png").isNull());
    }

    void browsing()
    {
        Well well;
        well.setBrowseURL(QUrl::fromLocalFile(m_folder.path()));
        int response = ZEVOpenPanel::CancelResponse;
        const auto before = ZEVOpenPanel::setRunner([&](ZEVOpenPanel &panel) {
            panel.URL = QUrl::fromLocalFile(m_file);
            return panel.directoryURL == well.browseURL()
                    && panel.allowedContentTypes == QStringList{u"public.image"_s}
                ? response
                : 2;
        });
        well.browse();
        well.settle();
        QVERIFY(well.bitmapData().isNull());
        response = ZEVOpenPanel::OKResponse;
        well.browse();
        well.settle();
        QCOMPARE(well.bitmapData(), png(7));
        ZEVOpenPanel::setRunner(before);
    }
};

QTEST_MAIN(tst_ZEVDragImageView)
#include "tst_ZEVDragImageView.moc"
