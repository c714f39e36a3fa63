// SPDX-License-Identifier: MIT
// SoundText checks what every reader of styled text must return.
// Thread: any.
#pragma once

#include "fuzz/FuzzerInput.h"
#include "platform/styled_text/AttributedString.h"

/// Requires that the runs cover the text in order, without gaps, that neighbours differ and that their
/// attributes exist.
inline void requireSound(const AttributedString &text)
{
    qsizetype end = 0;
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        require(run.start == end && run.length > 0);
        require(run.attributesIndex < text.distinctAttributes().size());
        require(i == 0 || run.attributesIndex != text.run(i - 1).attributesIndex);
        end += run.length;
    }
    require(end == text.length());
}

/// The text of an office document ends with the end of a paragraph.
inline void requireSoundParagraphs(const AttributedString &text)
{
    require(text.isEmpty() || text.string().endsWith(u'\n'));
    requireSound(text);
}
