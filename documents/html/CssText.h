// SPDX-License-Identifier: MIT
// CssText finds the pieces of CSS text: declarations, and the rules of a style sheet that apply on a screen.
// What they mean is left to HtmlStyleAttribute, CssSelector and StyleSheets.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

/// The position of the first of some bytes at or behind a position, outside of comments, strings, escapes,
/// and parentheses, brackets and braces that open there (CSS Syntax, "consume a simple block"). The length of
/// the text if there is none. Takes time proportional to the distance.
qsizetype findInCss(QByteArrayView text, qsizetype start, QByteArrayView bytes);

/// The text without comments. Takes time proportional to its length.
QByteArray removeCssComments(QByteArrayView text);

QByteArrayView trimCss(QByteArrayView text);

/// Whether a list of media queries, such as that of @media, applies to a screen. Of conditions, only
/// "min-width" and "max-width" in px, em and rem are supported, for a window of 1280 CSS pixels; a query with
/// another one does not apply. An empty list applies.
bool appliesToScreen(QByteArrayView mediaQueries);

/// Passes the style rules of a sheet to a function, in their order: those at the top, in @layer, in @media if
/// it applies to a screen, and in @supports unless it begins with "not". Layers are not ordered. All other
/// at-rules and what is nested in style rules is skipped. Takes time proportional to the length.
using RuleConsumer = std::function<void(QByteArrayView selectors, QByteArrayView declarations)>;
void readStyleRules(QByteArrayView sheet, const RuleConsumer &consume);
