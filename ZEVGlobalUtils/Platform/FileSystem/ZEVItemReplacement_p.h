// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Platform/FileSystem/ZEVPlace_p.h>

/// An item that comes to a place, where another one may stand: until it is finished, all can be taken back.
/// What is replaced is never hidden before its place is taken, so that whenever the process is killed, the old
/// item or the new one stands there, or, where a file system cannot let two items change places, the old one
/// has a number after its name. Results are errnos.
class ZEVItemReplacement {
public:
    ZEVItemReplacement(const ZEVEntry &to, const ZEVEntry &from)
        : m_to(to)
        , m_from(from)
    {
    }

    int put();
    int takeBack();

    /// Removes what was replaced, as far as possible; an error says that nothing of it could be.
    int finish();

private:
    int putWhereFree();
    int exchange();
    int exchangeInSteps();

    ZEVEntry m_to;
    ZEVEntry m_from;
    ZEVEntry m_old; ///< where what was replaced stands now; without a name where nothing was
};
