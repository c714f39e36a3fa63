// SPDX-License-Identifier: MIT
#include "platform/pasteboard/SelectionTargets.h"

#include "platform/pasteboard/MediaType.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char utf8Text[] = "text/plain;charset=utf-8";
constexpr char latin1Text[] = "text/plain;charset=iso-8859-1";

// In lower case and without blanks; "*" stands for any parameters.
const QByteArrayList styledTargets{"application/x-flat-rtfd", "text/rtf", "application/rtf", "text/richtext",
    "text/html;charset=utf-8", "text/html;*", "text/html"};
const QByteArrayList plainTargets{"UTF8_STRING", utf8Text, "text/plain;*", "text/plain", "TEXT", "STRING"};
const QByteArrayList fileTargets{
    "text/uri-list", "application/x-kde4-urilist", "x-special/gnome-copied-files"};
// For owners that do not list their targets.
const QByteArrayList commonTargets{"UTF8_STRING", "STRING"};

// Under these, programs request a text in UTF-8. STRING is Latin-1 by the letter of the ICCCM; those who ask
// for it alone get UTF-8 from other programs too.
const QByteArrayList offeredTextTargets{
    "UTF8_STRING", utf8Text, "text/plain;charset=UTF-8", "text/plain", "STRING", "TEXT"};

/// The names of ICCCM are case-sensitive, MIME types are not; blanks may follow a semicolon.
QByteArray normalize(const QByteArray &target)
{
    return target.contains('/') ? target.toLower().replace(' ', "").replace('"', "") : target;
}

bool matches(const QByteArray &target, const QByteArray &pattern)
{
    if (!pattern.endsWith('*'))
        return normalize(target) == pattern;
    return normalize(target).startsWith(pattern.chopped(1));
}

QByteArrayList chooseTargets(const QByteArrayList &patterns, const QByteArrayList &offered)
{
    QByteArrayList targets;
    for (const QByteArray &pattern : patterns) {
        std::copy_if(offered.begin(), offered.end(), std::back_inserter(targets),
            [&](const QByteArray &target) { return matches(target, pattern) && !targets.contains(target); });
    }
    return targets;
}

/// The MIME type for an ICCCM target or encoding.
QByteArray mimeTypeOf(const QByteArray &encoding)
{
    return encoding == "UTF8_STRING" ? utf8Text : latin1Text;
}

} // namespace

QList<QByteArrayList> SelectionTargets::targetsToRequest(
    SelectionContent content, const std::optional<QByteArrayList> &offered)
{
    if (content == SelectionContent::Files)
        return {offered ? chooseTargets(fileTargets, *offered) : fileTargets};
    if (!offered)
        return {commonTargets};
    return {chooseTargets(styledTargets, *offered), chooseTargets(plainTargets, *offered)};
}

std::optional<SelectionTargets::Form> SelectionTargets::makeForm(
    const QByteArray &target, const QByteArray &type, QByteArray bytes)
{
    if (target.contains('/'))
        return Form{QString::fromLatin1(target), std::move(bytes)};
    // Without its escape sequences a compound text is ISO 8859-1 (Compound Text Encoding 1.1).
    if (target == "TEXT" && type == "COMPOUND_TEXT" && bytes.contains('\x1b'))
        return std::nullopt;
    // Some programs end a text with a NUL.
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    return Form{QString::fromLatin1(mimeTypeOf(target == "TEXT" ? type : target)), std::move(bytes)};
}

QByteArrayList SelectionTargets::targetsToOffer(const QString &type)
{
    return MediaType::parse(type).name == QStringView(Pasteboard::plainTextType)
        ? offeredTextTargets
        : QByteArrayList{type.toLatin1()};
}
