// SPDX-License-Identifier: MIT
#include "platform/styled_text/TextAttributes.h"

bool TextAttributes::operator==(const TextAttributes &other) const
{
    const bool sameAttachment = attachment == other.attachment
        || (attachment && other.attachment && *attachment == *other.attachment);
    return sameAttachment && font == other.font && paragraphStyle == other.paragraphStyle
        && language == other.language;
}

size_t qHash(const FontAttributes &font, size_t seed)
{
    return qHashMulti(seed, font.family, font.pointSize, font.weight, static_cast<int>(font.slant),
        font.tracking, font.baselineOffset);
}

size_t qHash(const ParagraphStyle &style, size_t seed)
{
    size_t hash = qHashMulti(seed, static_cast<int>(style.alignment), static_cast<int>(style.direction),
        style.firstLineHeadIndent, style.headIndent, style.tailIndent, style.defaultTabInterval,
        style.lineSpacing, style.paragraphSpacingBefore, style.paragraphSpacing);
    for (const TabStop &stop : style.tabStops)
        hash = qHashMulti(hash, stop.position, static_cast<int>(stop.alignment));
    return hash;
}

size_t qHash(const TextAttributes &attributes, size_t seed)
{
    size_t hash = qHashMulti(seed, attributes.paragraphStyle, attributes.language);
    if (attributes.font)
        hash = qHash(*attributes.font, hash);
    if (attributes.attachment)
        hash = qHashMulti(hash, attributes.attachment->fileName, attributes.attachment->contents.size());
    return hash;
}
