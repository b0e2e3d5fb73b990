// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QPropertyAnimation;
class ZEVInnerImageView;

/// How the picture of an artwork well fades and grows: when it is new, and under a drag.
class ZEVArtworkMotion : public QObject {
    Q_OBJECT

public:
    explicit ZEVArtworkMotion(ZEVInnerImageView *picture);

    QPropertyAnimation *alphaAnimation() const { return m_alphaAnimation; }
    QPropertyAnimation *scaleAnimation() const { return m_scaleAnimation; }

    /// New artwork fades in and grows.
    void appear();

    /// A drag makes the picture pale at once; where it leaves, the picture is as it was.
    void beginHovering();
    void endHovering();

    /// The drag has ended here, and the picture comes back by and by.
    void settle();

private:
    void setOpacity(qreal opacity);

    ZEVInnerImageView *m_picture;
    QPropertyAnimation *m_alphaAnimation;
    QPropertyAnimation *m_scaleAnimation;
    QPropertyAnimation *m_alphaAnimationOut;
};
