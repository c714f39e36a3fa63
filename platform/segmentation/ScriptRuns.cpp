// SPDX-License-Identifier: MIT
#include "platform/segmentation/ScriptRuns.h"

#include "platform/segmentation/GraphemeClusters.h"

#include <unicode/uscript.h>

namespace {

constexpr quint32 tag(const char *letters)
{
    quint32 value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(letters[i]);
    return value;
}

constexpr quint32 latinScript = tag("Latn");

UScriptCode scriptOf(char32_t character)
{
    if (character < 0x80) {
        const char32_t lower = character | 0x20;
        return lower >= U'a' && lower <= U'z' ? USCRIPT_LATIN : USCRIPT_COMMON;
    }
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &status);
    const bool isShared = U_FAILURE(status) || script == USCRIPT_INHERITED || script == USCRIPT_UNKNOWN;
    return isShared ? USCRIPT_COMMON : script;
}

quint32 tagOf(UScriptCode script)
{
    if (script == USCRIPT_LATIN)
        return latinScript;
    const char *name = uscript_getShortName(script);
    return name && qstrlen(name) == 4 ? tag(name) : sharedScript;
}

} // namespace

ScriptRun scriptRunAt(QStringView text, qsizetype position, quint32 before)
{
    UScriptCode script = USCRIPT_COMMON;
    qsizetype end = position;
    while (end < text.size()) {
        const char32_t character = codePointAt(text, end);
        const UScriptCode own = scriptOf(character);
        if (own != USCRIPT_COMMON) {
            if (script != USCRIPT_COMMON && own != script)
                break;
            script = own;
        }
        end += character > 0xFFFF ? 2 : 1;
    }
    if (script == USCRIPT_COMMON)
        return {end, before ? before : sharedScript};
    return {end, tagOf(script)};
}
