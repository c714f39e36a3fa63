// SPDX-License-Identifier: MIT
// Notes decides for every format whether footnotes and endnotes are text.
// Thread: any; a constant.
#pragma once

/// If true, notes follow the body; if false, they are not counted.
inline constexpr bool notesAreText = true;
