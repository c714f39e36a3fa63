// SPDX-License-Identifier: MIT
// Whether footnotes and endnotes are text: one answer for every format that has them.
// Thread: any.
#pragma once

/// Notes follow the body; where this is false they do not count at all.
inline constexpr bool notesAreText = true;
