// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVDashView.h>

#include <ZEVGlobalUtils/ImageViews/ZEVDashDrawingView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVViewEffect_p.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewAnimation_p.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewEasyConstraints.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVAppearanceHelpers.h>
#include <ZEVGlobalUtils/Platform/Desktop/ZEVNamedColors_p.h>

#include <QEvent>
#include <QLabel>
#include <QPropertyAnimation>

namespace {

constexpr qreal DashPadding = 1;
constexpr qreal LabelPadding = 7;
constexpr int LabelPointSize = 12; ///< of points that are pixels at scale factor 1
constexpr qreal RestingAlpha = 0.5;
constexpr qreal HighlightSeconds = 0.15;

/// Lines of whole words that are no longer than the \a room, but for the words that are.
QStringList wrapped(const QString &text, const QFontMetrics &metrics, int room)
{
    QStringList lines;
    for (const QString &paragraph : text.split(u'\n')) {
        lines.append(QString());
        for (const QString &word : paragraph.split(u' ')) {
            const QString longer = lines.last().isEmpty() ? word : lines.last() + u' ' + word;
            if (lines.last().isEmpty() || metrics.horizontalAdvance(longer) <= room)
                lines.last() = longer;
            else
                lines.append(word);
        }
    }
    return lines;
}

} // namespace

ZEVDashView::ZEVDashView(QWidget *parent)
    : QWidget(parent)
    , m_dashView(new ZEVDashDrawingView)
    , m_labelField(new QLabel)
    , m_effect(new ZEVViewEffect(this))
    , m_alphaAnimation(new QPropertyAnimation(this, "alpha", this))
{
    m_dashView->setVisible(m_drawDashes);
    setUpLabelField();
    ZEVViewEasyConstraints::addFittingSubview(this, m_dashView, DashPadding);
    ZEVViewEasyConstraints::addCenteredSubview(this, m_labelField, LabelPadding);
    setGraphicsEffect(m_effect);
    udpateShadow();
    setHighlighted(false, false);
}

void ZEVDashView::setUpLabelField()
{
    QFont font = m_labelField->font();
    font.setBold(true);
    font.setPixelSize(LabelPointSize);
    m_labelField->setFont(font);
    m_labelField->setTextFormat(Qt::PlainText);
    m_labelField->setAlignment(Qt::AlignCenter);
    m_labelField->setMinimumSize(1, 1); // elided rather than a hindrance to small wells
    QPalette colors = m_labelField->palette();
    colors.setColor(QPalette::WindowText, ZEVNamedColors::highlightWithLevel(m_dashView->dashColor(), 0.1F));
    m_labelField->setPalette(colors);
}

void ZEVDashView::setDrawLabel(bool draw)
{
    m_drawLabel = draw;
    m_labelField->setVisible(draw);
}

void ZEVDashView::setDrawDashes(bool draw)
{
    m_drawDashes = draw;
    m_dashView->setVisible(draw);
}

void ZEVDashView::setLabel(const QString &label)
{
    m_label = label;
    elideLabel();
}

/// A small view shows how the label begins, not its middle cut off on all sides.
void ZEVDashView::elideLabel()
{
    const QFontMetrics metrics = m_labelField->fontMetrics();
    const int room = std::max(1, width() - int(2 * LabelPadding));
    const int most = std::max(1, (height() - int(2 * LabelPadding)) / metrics.lineSpacing());
    QStringList lines = wrapped(m_label, metrics, room);
    if (lines.size() > most)
        lines = lines.first(most - 1) << lines.sliced(most - 1).join(u' ');
    for (QString &line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, room);
    const QString shown = lines.join(u'\n');
    m_labelField->setText(shown);
    m_labelField->setToolTip(shown.contains(u'\u2026') ? m_label : QString());
}

void ZEVDashView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    elideLabel();
}

qreal ZEVDashView::alpha() const { return m_effect->alpha(); }
void ZEVDashView::setAlpha(qreal alpha) { m_effect->setAlpha(alpha); }

void ZEVDashView::setHighlighted(bool highlighted, bool animated)
{
    const bool changes = std::exchange(m_highlighted, highlighted) != highlighted;
    const bool easesOut = animated && !highlighted;
    ZEVViewAnimation::animateTo(
        *m_alphaAnimation, highlighted ? 1.0 : RestingAlpha, animated ? HighlightSeconds : 0,
        easesOut ? ZEVViewAnimation::easeOutCurve() : ZEVViewAnimation::defaultCurve());
    if (changes)
        Q_EMIT highlightedChanged(highlighted);
}

void ZEVDashView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        udpateShadow();
}

void ZEVDashView::udpateShadow()
{
    const bool isDark = ZEVAppearanceHelpers::isDark(palette());
    m_effect->setShadow(isDark ? palette().color(QPalette::Shadow) : QColor(), {0, 1});
}
