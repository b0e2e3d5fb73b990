// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Fields.h"

#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/ZEVRoundTokenAttachmentCell.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVTextAttachment.h>

#include <QRandomGenerator>

namespace {

constexpr int Seeds = 12;
constexpr int StepsOfASeed = 1000;

struct Painted {
    QRectF frame; ///< in the coordinates of what is painted
    QString title;
    QFont font;
    ZEVControlSize size;
};
using Painting = QMap<qsizetype, Painted>;
Painting painting;

class NotingCell : public ZEVRoundTokenAttachmentCell {
public:
    void drawWithFrame(QPainter *painter, const QRectF &frame, const QWidget *view, qsizetype index) override
    {
        painting.insert(index, {painter->deviceTransform().mapRect(frame), title(), font(), controlSize()});
        ZEVRoundTokenAttachmentCell::drawWithFrame(painter, frame, view, index);
    }
};

class NotingTokens : public ZEVPatternTokens {
public:
    using ZEVPatternTokens::ZEVPatternTokens;
    AttachmentCellClass attachmentCellClassForRepresentedObject(const OEXTokenField *,
                                                                const QVariant &) const override
    {
        return [] { return std::make_unique<NotingCell>(); };
    }
};

/// A person and a program at one field, who do whatever comes to their minds.
class Walk {
    template <typename List>
    auto oneOf(const List &list)
    {
        return list[m_random.bounded(quint32(std::size(list)))];
    }

public:
    explicit Walk(quint32 seed)
        : m_random(seed)
    {
        m_field.field.setDelegate(&m_tokens);
        QObject::connect(&m_field.field, &OEXTokenField::objectValueChanged,
                         [this] { m_told = m_field.field.objectValue(); });
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    ~Walk() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void step() { (this->*oneOf(m_steps))(); }

    /// What is wrong now; empty for nothing.
    QString fault()
    {
        const QVariantList value = m_field.field.objectValue();
        if (m_told != value)
            return u"told of %1, not of %2"_s.arg(shown(m_told), shown(value));
        if (m_field.field.document()->blockCount() != 1)
            return u"several lines"_s;
        const QString paint = faultOfPainting(value);
        return paint.isEmpty() ? paint : paint + u" in "_s + shown(value);
    }

private:
    /// All tokens, in their order and beside each other, and those in a part of the field once more in the same
    /// places when only that part is painted.
    QString faultOfPainting(const QVariantList &value)
    {
        ZEVTokenField &field = m_field.field;
        painting.clear();
        QImage whole(10, 10, QImage::Format_ARGB32);
        QPainter painter(&whole);
        field.document()->drawContents(&painter);
        const Painting all = std::exchange(painting, {});
        QString stored, painted;
        for (const QVariant &object : value)
            stored +=
                object.canConvert<ZEVPatternItem>() ? *object.value<ZEVPatternItem>().title() : QString();
        QRectF before;
        QList<QRectF> frames;
        for (const Painted &token : all) {
            painted += token.title;
            frames << token.frame;
            if (token.font != field.font() || token.size != field.controlSize())
                return u"a token of another font or size"_s;
        }
        if (stored != painted)
            return u"painted "_s + painted;
        std::ranges::sort(frames, {}, &QRectF::left);
        for (qsizetype i = 1; i < frames.size(); ++i) {
            if (frames[i].left() < frames[i - 1].right() - 1)
                return u"tokens upon each other"_s;
        }
        return faultOfPart(all);
    }

    QString faultOfPart(const Painting &all)
    {
        QWidget *viewport = m_field.field.viewport();
        const int left = int(m_random.bounded(quint32(viewport->width())));
        const QRect part(left, 0, 1 + int(m_random.bounded(60U)), viewport->height());
        viewport->grab(part);
        const QScrollBar *bar = m_field.field.horizontalScrollBar();
        const int offset = m_field.field.isRightToLeft() ? bar->maximum() - bar->value() : bar->value();
        const Painting inPart = std::exchange(painting, {});
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            // The picture of a part begins where the part does.
            const QRectF frame = it->frame.translated(-offset - part.left(), 0);
            const bool isSeen = frame.right() > 1 && frame.left() < part.width() - 1;
            if (isSeen
                && (!inPart.contains(it.key()) || qAbs(inPart[it.key()].frame.left() - frame.left()) > 1))
                return u"token %1 missing at %2"_s.arg(it.key()).arg(left);
        }
        return {};
    }

    QString text() { return oneOf(m_texts); }

    void type() { m_field.type(oneOf(QStringList{u"a"_s, u"b"_s, u" "_s, u"%"_s, u"1"_s})); }
    void typeAnyScript()
    {
        QKeyEvent press(QEvent::KeyPress, 0, {}, text().left(1));
        QCoreApplication::sendEvent(&m_field.field, &press);
    }
    void typeToken() { m_field.type(u"%Title%"_s); }
    void pressKey() { m_field.press(oneOf(m_keys), oneOf(m_modifiers)); }
    void undo() { m_field.press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { m_field.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    void copy() { m_field.press(oneOf(m_copyKeys), Qt::ControlModifier); }
    void paste() { m_field.press(Qt::Key_V, Qt::ControlModifier); }
    void select()
    {
        const auto length = quint32(m_field.field.textStorage()->length() + 1);
        m_field.field.setSelectedRange({m_random.bounded(length), m_random.bounded(4U)});
    }
    void compose()
    {
        QInputMethodEvent event(text(), {{QInputMethodEvent::Cursor, 1, 1}});
        QCoreApplication::sendEvent(&m_field.field, &event);
    }
    void commit()
    {
        QInputMethodEvent event;
        event.setCommitString(text() + (m_random.bounded(4U) ? QString() : u"\n"_s));
        QCoreApplication::sendEvent(&m_field.field, &event);
    }
    void set()
    {
        m_field.field.setObjectValue(pattern(text() + u"<Title>"_s + text() + u"<Artist>"_s + text()));
    }
    void insertToken() { m_field.field.insertToken(QVariant::fromValue(item(u"Artist"_s))); }
    void click()
    {
        const auto width = quint32(m_field.field.viewport()->width());
        const QPoint place(int(m_random.bounded(width)), m_field.field.viewport()->height() / 2);
        if (m_random.bounded(2U))
            QTest::mouseClick(m_field.field.viewport(), Qt::LeftButton, {}, place);
        else
            QTest::mouseDClick(m_field.field.viewport(), Qt::LeftButton, {}, place);
    }
    void changeFont()
    {
        QFont font = m_field.field.font();
        font.setPixelSize(9 + int(m_random.bounded(20U)));
        m_field.field.setFont(font);
        m_field.field.setControlSize(ZEVControlSize(m_random.bounded(4U)));
    }
    void resize()
    {
        m_field.window.resize(60 + int(m_random.bounded(500U)), 100);
        QCoreApplication::processEvents();
    }
    void turn() { m_field.field.setLayoutDirection(Qt::LayoutDirection(m_random.bounded(2U))); }
    void leave()
    {
        m_field.other.setFocus();
        m_field.field.setFocus();
    }

    using Step = void (Walk::*)();
    const Step m_steps[24] = {&Walk::type,       &Walk::typeAnyScript, &Walk::typeToken,   &Walk::pressKey,
                              &Walk::pressKey,   &Walk::undo,          &Walk::redo,        &Walk::copy,
                              &Walk::paste,      &Walk::select,        &Walk::select,      &Walk::compose,
                              &Walk::commit,     &Walk::set,           &Walk::insertToken, &Walk::click,
                              &Walk::changeFont, &Walk::resize,        &Walk::turn,        &Walk::leave,
                              &Walk::undo,       &Walk::type,          &Walk::pressKey,    &Walk::click};
    const QStringList m_texts{u"abc"_s, u"שלום "_s, u"عربي"_s, u"12 "_s,  u"漢字"_s,
                              u" "_s,   u"a\n"_s,   u"🎵"_s,    u"é(ש)"_s, u"%"_s};
    const QList<Qt::Key> m_keys{Qt::Key_Left, Qt::Key_Right,     Qt::Key_Home,
                                Qt::Key_End,  Qt::Key_Backspace, Qt::Key_Delete};
    const QList<Qt::KeyboardModifiers> m_modifiers{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    const QList<Qt::Key> m_copyKeys{Qt::Key_C, Qt::Key_X, Qt::Key_A};

    QRandomGenerator m_random;
    NotingTokens m_tokens{{{item(u"Title"_s)}, {item(u"Artist"_s)}}};
    Field m_field;
    QVariantList m_told;
};

} // namespace

class tst_TokenFieldAtRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void paintsWhatItStores_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= Seeds; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void paintsWhatItStores()
    {
        QFETCH(quint32, seed);
        Walk walk(seed);
        for (int step = 0; step < StepsOfASeed; ++step) {
            walk.step();
            const QString fault = walk.fault();
            QVERIFY2(fault.isEmpty(), qPrintable(u"Step %1: %2"_s.arg(step).arg(fault)));
        }
    }
};

QTEST_MAIN(tst_TokenFieldAtRandom)
#include "tst_TokenFieldAtRandom.moc"
