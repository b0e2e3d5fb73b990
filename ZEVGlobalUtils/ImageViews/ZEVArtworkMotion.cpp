// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/ImageViews/ZEVArtworkMotion_p.h>

#include <ZEVGlobalUtils/ImageViews/ZEVInnerImageView.h>
#include <ZEVGlobalUtils/Menus/Layout/ZEVViewAnimation_p.h>

#include <QPropertyAnimation>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal HoveredOpacity = 0.55;
constexpr qreal SmallestScale = 0.9;

QPropertyAnimation *animation(ZEVInnerImageView *picture, const QByteArray &property, const QString &key)
{
    auto *const animation = new QPropertyAnimation(picture, property, picture);
    animation->setObjectName(key);
    animation->setEndValue(1.0);
    return animation;
}

} // namespace

ZEVArtworkMotion::ZEVArtworkMotion(ZEVInnerImageView *picture)
    : QObject(picture)
    , m_picture(picture)
    , m_alphaAnimation(animation(picture, "opacity", u"animateAlphas"_s))
    , m_scaleAnimation(animation(picture, "scale", u"animateScale"_s))
    , m_alphaAnimationOut(animation(picture, "opacity", u"alphaAnimatonOut"_s)) // kept: spelled so
{
    m_alphaAnimation->setStartValue(HoveredOpacity);
    m_scaleAnimation->setStartValue(SmallestScale);
}

void ZEVArtworkMotion::appear()
{
    m_alphaAnimationOut->stop();
    for (QPropertyAnimation *animation : {m_alphaAnimation, m_scaleAnimation})
        ZEVViewAnimation::run(*animation, ZEVViewAnimation::DefaultSeconds, ZEVViewAnimation::easeOutCurve());
}

void ZEVArtworkMotion::beginHovering() { setOpacity(HoveredOpacity); }
void ZEVArtworkMotion::endHovering() { setOpacity(1); }

void ZEVArtworkMotion::settle()
{
    ZEVViewAnimation::animateTo(*m_alphaAnimationOut, 1.0, ZEVViewAnimation::DefaultSeconds,
                                ZEVViewAnimation::defaultCurve());
}

/// Without any animation, whatever was going on.
void ZEVArtworkMotion::setOpacity(qreal opacity)
{
    m_alphaAnimation->stop();
    m_alphaAnimationOut->stop();
    m_picture->setOpacity(opacity);
}
