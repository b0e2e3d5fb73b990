// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Translations {

/// The application, which must be there, speaks the first of the user's languages that it knows, and Qt's own
/// texts are in the same one. Without any it is English, whose table tells one from many.
void install();

} // namespace Translations
