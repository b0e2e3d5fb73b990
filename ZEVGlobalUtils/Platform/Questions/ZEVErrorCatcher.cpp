// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorCatcher.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

ZEVErrorCatcher::ZEVErrorCatcher(QString &text)
    : m_previous(ZEVErrorPresentation::setPresenter(
        [&text](const ZEVError &error) { text = error.localizedDescription(); }))
{
}

ZEVErrorCatcher::~ZEVErrorCatcher() { ZEVErrorPresentation::setPresenter(m_previous); }
