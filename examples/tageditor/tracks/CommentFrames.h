// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tstringlist.h>

namespace TagLib::ID3v2 {
class Tag;
}

/// The comments of an ID3v2 tag, which programs put into two kinds of frames, often the same text into both.
namespace CommentFrames {

/// Without those that say again what another says.
TagLib::StringList distinct(const TagLib::StringList &values);

/// A frame keeps its language where its text is another one. What other programs note under a description of
/// their own stays.
void replace(TagLib::ID3v2::Tag &tag, const TagLib::StringList &values);

} // namespace CommentFrames
