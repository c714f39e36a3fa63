// SPDX-License-Identifier: MIT
// XmlMutator changes XML element by element, so that most results are still well-formed and reach the reader
// behind the parser.
// Thread: any; values.
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>

class XmlMutator {
public:
    /// What may stand in a document of the format; wrappers have their content at the bar.
    XmlMutator(std::span<const char *const> wrappers, std::span<const char *const> leaves)
        : m_wrappers(wrappers)
        , m_leaves(leaves)
    {
    }

    /// Changes an input that is the contents of several parts, separated by NUL bytes, in place, as
    /// LLVMFuzzerCustomMutator() does: elements in three cases of four, the first part in every other one,
    /// and bytes in the rest. Inputs that begin as an archive are changed byte by byte. Returns the new
    /// length.
    size_t mutateParts(uint8_t *data, size_t size, size_t maxBytes, unsigned seed) const;

private:
    /// The same XML with one change: an element repeated, removed, moved, wrapped or unwrapped, or one of the
    /// format inserted. xml: need not be well-formed.
    [[nodiscard]] QByteArray mutate(const QByteArray &xml, std::mt19937 &random) const;
    [[nodiscard]] QByteArray wrap(const QByteArray &content, std::mt19937 &random) const;
    [[nodiscard]] QByteArray fragment(std::mt19937 &random) const;

    std::span<const char *const> m_wrappers;
    std::span<const char *const> m_leaves;
};
