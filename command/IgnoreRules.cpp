// SPDX-License-Identifier: MIT
#include "command/IgnoreRules.h"

#include <algorithm>

namespace {

/// Where a set such as [a-z] ends, behind its bracket; -1 if it does not.
qsizetype setEnd(QByteArrayView glob, qsizetype start)
{
    qsizetype at = start + 1;
    at += at < glob.size() && (glob[at] == '!' || glob[at] == '^') ? 1 : 0;
    at += at < glob.size() && glob[at] == ']' ? 1 : 0; // the first one is a member
    for (; at < glob.size(); ++at) {
        if (glob[at] == ']')
            return at + 1;
        // The bracket in [:alpha:] ends no set.
        if (glob.sliced(at).startsWith("[:")) {
            const qsizetype end = glob.indexOf(":]", at + 2);
            at = end < 0 ? at : end + 1;
        } else if (glob[at] == '\\') {
            ++at;
        }
    }
    return -1;
}

bool isInNamedSet(QByteArrayView name, char byte)
{
    const bool isLower = byte >= 'a' && byte <= 'z';
    const bool isUpper = byte >= 'A' && byte <= 'Z';
    const bool isDigit = byte >= '0' && byte <= '9';
    const bool isBlank = byte == ' ' || byte == '\t';
    const bool isPrintable = byte > 0x20 && byte < 0x7F;
    if (name == "alpha")
        return isLower || isUpper;
    if (name == "digit")
        return isDigit;
    if (name == "alnum")
        return isLower || isUpper || isDigit;
    if (name == "lower")
        return isLower;
    if (name == "upper")
        return isUpper;
    if (name == "blank")
        return isBlank;
    if (name == "space")
        return isBlank || (byte >= '\n' && byte <= '\r');
    if (name == "xdigit")
        return isDigit || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
    if (name == "punct")
        return isPrintable && !isLower && !isUpper && !isDigit;
    return false;
}

/// set: from bracket to bracket.
bool isInSet(QByteArrayView set, char byte)
{
    set = set.sliced(1).chopped(1);
    const bool isNegated = set.startsWith('!') || set.startsWith('^');
    if (isNegated)
        set = set.sliced(1);
    const auto value = [](char member) { return static_cast<unsigned char>(member); };
    bool isMember = false;
    for (qsizetype at = 0; at < set.size(); ++at) {
        if (set.sliced(at).startsWith("[:")) {
            const qsizetype end = set.indexOf(":]", at + 2);
            if (end >= 0) {
                isMember = isMember || isInNamedSet(set.sliced(at + 2, end - at - 2), byte);
                at = end + 1;
                continue;
            }
        }
        at += set[at] == '\\' && at + 1 < set.size() ? 1 : 0;
        const char first = set[at];
        char last = first;
        if (at + 2 < set.size() && set[at + 1] == '-') {
            at += 2;
            at += set[at] == '\\' && at + 1 < set.size() ? 1 : 0;
            last = set[at];
        }
        isMember = isMember || (value(byte) >= value(first) && value(byte) <= value(last));
    }
    return isMember != isNegated;
}

/// A part of a glob: what it matches, and how often.
struct Part {
    enum class Kind { Byte, AnyByte, Set, AnyName, AnyPath, AnyFolders } kind;
    QByteArrayView text;
};

std::optional<std::vector<Part>> partsOf(QByteArrayView glob, bool isPath)
{
    using Kind = Part::Kind;
    std::vector<Part> parts;
    for (qsizetype at = 0; at < glob.size();) {
        const bool isAtName = at == 0 || glob[at - 1] == '/';
        if (isPath && isAtName && glob.sliced(at).startsWith("**/")) {
            parts.push_back({Kind::AnyFolders, {}});
            at += 3;
        } else if (isPath && isAtName && glob.sliced(at) == "**") {
            parts.push_back({Kind::AnyPath, {}});
            at += 2;
        } else if (glob[at] == '*') {
            parts.push_back({Kind::AnyName, {}});
            while (at < glob.size() && glob[at] == '*')
                ++at;
        } else if (glob[at] == '?') {
            parts.push_back({Kind::AnyByte, {}});
            ++at;
        } else if (glob[at] == '[') {
            const qsizetype end = setEnd(glob, at);
            if (end < 0)
                return std::nullopt;
            parts.push_back({Kind::Set, glob.sliced(at, end - at)});
            at = end;
        } else {
            if (glob[at] == '\\')
                ++at;
            if (at == glob.size())
                return std::nullopt;
            parts.push_back({Kind::Byte, glob.sliced(at, 1)});
            ++at;
        }
    }
    return parts;
}

bool matchesByte(const Part &part, char byte)
{
    switch (part.kind) {
    case Part::Kind::Byte:
        return part.text[0] == byte;
    case Part::Kind::AnyByte:
        return byte != '/';
    case Part::Kind::Set:
        return byte != '/' && isInSet(part.text, byte);
    default:
        return false;
    }
}

/// Whether a repeated part may take this byte of the text.
bool isTaken(Part::Kind kind, char byte)
{
    return kind == Part::Kind::AnyName ? byte != '/' : true;
}

} // namespace

// The states are the places in the glob that the bytes so far can lead to.
bool matchesGlob(QByteArrayView glob, QByteArrayView text, bool isPath)
{
    using Kind = Part::Kind;
    const std::optional<std::vector<Part>> parts = partsOf(glob, isPath);
    if (!parts)
        return false;
    const size_t end = parts->size();
    std::vector<char> states(end + 1, 0);
    const auto isRepeated = [&](size_t i) { return i < end && (*parts)[i].kind >= Kind::AnyName; };
    // A repeated part may take nothing; "**/" only at the start of a name.
    const auto skipRepeated = [&](std::vector<char> &set) {
        for (size_t i = 0; i < end; ++i) {
            if (set[i] && isRepeated(i) && (*parts)[i].kind != Kind::AnyPath)
                set[i + 1] = 1;
        }
    };
    states[0] = 1;
    skipRepeated(states);
    std::vector<char> next;
    for (const char byte : text) {
        next.assign(end + 1, 0);
        for (size_t i = 0; i < end; ++i) {
            if (!states[i])
                continue;
            const Part &part = (*parts)[i];
            if (!isRepeated(i)) {
                if (matchesByte(part, byte))
                    next[i + 1] = 1;
            } else if (isTaken(part.kind, byte)) {
                next[i] = 1;
                if (part.kind == Kind::AnyPath)
                    next[i + 1] = 1;
            }
        }
        // Behind "**/" a name begins, so its place is only open after a slash.
        for (size_t i = 0; i < end; ++i) {
            if (!next[i] || !isRepeated(i) || (*parts)[i].kind == Kind::AnyPath)
                continue;
            if ((*parts)[i].kind != Kind::AnyFolders || byte == '/')
                next[i + 1] = 1;
        }
        states.swap(next);
    }
    return states[end] != 0;
}

IgnoreRules::IgnoreRules(QByteArrayView file)
{
    file = file.first(std::min(file.size(), maxFileLength));
    if (file.startsWith("\xEF\xBB\xBF"))
        file = file.sliced(3);
    while (!file.isEmpty()) {
        const qsizetype end = file.indexOf('\n');
        add(end < 0 ? file : file.first(end));
        file = end < 0 ? QByteArrayView() : file.sliced(end + 1);
    }
}

void IgnoreRules::add(QByteArrayView line)
{
    if (line.endsWith('\r'))
        line.chop(1);
    // Blanks at the end are no part of a pattern, unless a backslash is before them.
    while (line.endsWith(' ') && !line.endsWith("\\ "))
        line.chop(1);
    if (line.isEmpty() || line.startsWith('#') || line.size() > maxPatternLength)
        return;
    Pattern pattern;
    pattern.isNegated = line.startsWith('!');
    if (pattern.isNegated)
        line = line.sliced(1);
    pattern.isForFolders = line.endsWith('/');
    if (pattern.isForFolders)
        line.chop(1);
    pattern.isAnchored = line.contains('/');
    if (line.startsWith('/'))
        line = line.sliced(1);
    if (line.isEmpty())
        return;
    pattern.glob = line.toByteArray();
    m_patterns.push_back(std::move(pattern));
}

std::optional<bool> IgnoreRules::ignores(QByteArrayView path, bool isFolder) const
{
    const QByteArrayView name = path.sliced(path.lastIndexOf('/') + 1);
    const auto found = std::find_if(m_patterns.rbegin(), m_patterns.rend(), [&](const Pattern &pattern) {
        return (isFolder || !pattern.isForFolders)
            && matchesGlob(pattern.glob, pattern.isAnchored ? path : name, pattern.isAnchored);
    });
    return found == m_patterns.rend() ? std::nullopt : std::optional(!found->isNegated);
}
