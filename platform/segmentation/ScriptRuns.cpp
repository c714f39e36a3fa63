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

} // namespace

quint32 scriptOf(char32_t character)
{
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &status);
    if (U_FAILURE(status) || script == USCRIPT_INHERITED || script == USCRIPT_UNKNOWN)
        return sharedScript;
    const char *name = uscript_getShortName(script);
    return name && qstrlen(name) == 4 ? tag(name) : sharedScript;
}

ScriptRun ScriptRuns::runAt(QStringView text, qsizetype position, quint32 before)
{
    quint32 script = sharedScript;
    qsizetype end = position;
    while (end < text.size()) {
        const char16_t unit = text.utf16()[end];
        const bool isPair = QChar::isSurrogate(unit);
        const char32_t character = isPair ? codePointAt(text, end) : char32_t{unit};
        const quint32 own = isPair ? scriptOf(character) : m_scripts.at(unit);
        if (own != sharedScript) {
            if (script != sharedScript && own != script)
                break;
            script = own;
        }
        end += character > 0xFFFF ? 2 : 1;
    }
    return {end, script == sharedScript && before ? before : script};
}
