// SPDX-License-Identifier: MIT
#include "platform/pasteboard/SelectionTargets.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char utf8Text[] = "text/plain;charset=utf-8";
constexpr char latin1Text[] = "text/plain;charset=iso-8859-1";

// Before the semicolon of a MIME type; "*" behind it stands for any parameters.
const QByteArrayList styledTargets{"application/x-flat-rtfd", "text/rtf", "application/rtf", "text/richtext",
    "text/html;charset=utf-8", "text/html;*", "text/html"};
const QByteArrayList plainTargets{"UTF8_STRING", utf8Text, "text/plain;*", "text/plain", "TEXT", "STRING"};
const QByteArrayList fileTargets{
    "text/uri-list", "application/x-kde4-urilist", "x-special/gnome-copied-files"};
// What owners know that cannot say what they know.
const QByteArrayList untoldTargets{"UTF8_STRING", "STRING"};

/// Case counts in the names of ICCCM, but not in MIME types; blanks may stand behind a semicolon.
QByteArray normalized(const QByteArray &target)
{
    return target.contains('/') ? target.toLower().replace(' ', "").replace('"', "") : target;
}

bool matches(const QByteArray &target, const QByteArray &pattern)
{
    if (!pattern.endsWith('*'))
        return normalized(target) == pattern;
    return normalized(target).startsWith(pattern.chopped(1));
}

QByteArrayList chosen(const QByteArrayList &patterns, const QByteArrayList &offered)
{
    QByteArrayList targets;
    for (const QByteArray &pattern : patterns) {
        std::copy_if(offered.begin(), offered.end(), std::back_inserter(targets),
            [&](const QByteArray &target) { return matches(target, pattern) && !targets.contains(target); });
    }
    return targets;
}

/// The MIME type of a target that is none itself.
QByteArray mimeTypeOf(const QByteArray &encoding)
{
    return encoding == "UTF8_STRING" ? utf8Text : latin1Text;
}

} // namespace

QList<QByteArrayList> SelectionTargets::wanted(
    SelectionContent content, const std::optional<QByteArrayList> &offered)
{
    if (content == SelectionContent::Files)
        return {offered ? chosen(fileTargets, *offered) : fileTargets};
    if (!offered)
        return {untoldTargets};
    return {chosen(styledTargets, *offered), chosen(plainTargets, *offered)};
}

std::optional<SelectionTargets::Form> SelectionTargets::form(
    const QByteArray &target, const QByteArray &type, QByteArray bytes)
{
    if (target.contains('/'))
        return Form{QString::fromLatin1(target), std::move(bytes)};
    // Without its escape sequences a compound text is ISO 8859-1 (Compound Text Encoding 1.1).
    if (target == "TEXT" && type == "COMPOUND_TEXT" && bytes.contains('\x1b'))
        return std::nullopt;
    // Some programs end a text with a NUL, as a C string.
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    return Form{QString::fromLatin1(mimeTypeOf(target == "TEXT" ? type : target)), std::move(bytes)};
}
