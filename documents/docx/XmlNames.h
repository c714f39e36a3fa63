// SPDX-License-Identifier: MIT
// The names of elements and attributes as the readers of parts see them: a namespace, the same for the
// transitional and the strict form, and a tag, which is quick to compare.
// Thread: any; values.
#pragma once

#include <QByteArrayView>

/// The namespaces that something is read from.
enum class XmlSpace : quint8 {
    None, ///< an attribute without a prefix, an element without a namespace
    Word,
    Math,
    Drawing,
    Relationships, ///< r:id
    PackageRelationships,
    ContentTypes,
    Compatibility, ///< mc:AlternateContent
    Xml, ///< xml:space
    Understood, ///< of pictures, shapes and extensions: known, but nothing is read from it
    Unknown,
};

/// Stands for a local name: its FNV-1a hash. Two names of one document that share a hash by design of its
/// author are the same to us, which does no harm.
using XmlTag = quint64;

constexpr XmlTag xmlTag(const char *name, size_t length)
{
    XmlTag hash = 0xCBF29CE484222325U;
    for (size_t i = 0; i < length; ++i)
        hash = (hash ^ static_cast<unsigned char>(name[i])) * 0x100000001B3U;
    return hash;
}

constexpr XmlTag operator""_tag(const char *name, size_t length)
{
    return xmlTag(name, length);
}

struct XmlName {
    XmlSpace space = XmlSpace::None;
    XmlTag tag = 0;

    bool operator==(const XmlName &) const = default;
};

constexpr XmlName wordName(XmlTag tag)
{
    return {XmlSpace::Word, tag};
}

constexpr XmlName plainName(XmlTag tag)
{
    return {XmlSpace::None, tag};
}
