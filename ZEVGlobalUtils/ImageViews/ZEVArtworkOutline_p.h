// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ZEVDragImageView;

/// The outline of an artwork well: when it shows, when its label does, and what that says.
class ZEVArtworkOutline : public QObject {
    Q_OBJECT

public:
    explicit ZEVArtworkOutline(ZEVDragImageView *well);

    /// In an editable well without artwork or under a drag, or as the well's rule says.
    bool isDrawn() const;

    /// To be called when any of that has changed.
    void update();
    void updateLabel();

Q_SIGNALS:
    void drawnChanged(bool isDrawn);

private:
    ZEVDragImageView *m_well;
    bool m_wasDrawn = false;
};
