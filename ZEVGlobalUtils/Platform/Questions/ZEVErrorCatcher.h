// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>

#include <QString>

/// While this lives, errors that are meant for the user end up in a text instead of an alert.
class ZEV_EXPORT ZEVErrorCatcher {
public:
    /// \a text receives the description of the last error; it outlives the catcher.
    explicit ZEVErrorCatcher(QString &text);
    ~ZEVErrorCatcher();
    Q_DISABLE_COPY_MOVE(ZEVErrorCatcher)

private:
    ZEVErrorPresentation::Presenter m_previous;
};
