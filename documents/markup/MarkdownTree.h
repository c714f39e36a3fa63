// SPDX-License-Identifier: MIT
// MarkdownTree parses CommonMark and yields its parts in the order of the text. What they mean for the prose
// is left to MarkdownReader.
// Thread: one.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

struct MarkdownPart {
    enum class Kind {
        Text, ///< of a paragraph or a heading; code within a line too
        SoftBreak,
        HardBreak,
        HtmlTag, ///< a tag or a comment within a line
        HtmlBlock,
        BlockEnd, ///< of a paragraph or a heading
    };
    Kind kind;
    QByteArrayView content; ///< UTF-8; of texts and HTML only
    bool isFirstOfItem = false; ///< of BlockEnd: the block is the first of an item of a list
};

/// Reference definitions, thematic breaks and code blocks are no parts. False if memory runs out.
/// source: UTF-8.
bool forEachMarkdownPart(const QByteArray &source, const std::function<void(const MarkdownPart &)> &yield);
