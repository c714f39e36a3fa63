// SPDX-License-Identifier: MIT
// LatexReader turns the bytes of a LaTeX source into its prose, so that commands are not counted. It runs no
// TeX: it knows the common commands by their names, and includes no other files. Without it, LaTeX is plain
// text, with its commands.
// Thread: any.
//
// The text is that between \begin{document} and \end{document}, or all of a file that has neither:
//  - A paragraph ends at an empty line, at \par, and around headings, captions, items and environments, with
//    U+000A. Other line ends are spaces; \\ and \newline are U+2028, and in tables end a cell, as & does.
//  - Accents, quotation marks, dashes and special letters are the characters that they stand for.
//  - Footnotes follow the body, each as a paragraph.
//  - Of commands with two arguments, such as \href and \textcolor, the one that is read counts. The arguments
//    of unknown commands count, optional ones do not.
//  - Not text are comments, formulas in a line or displayed, verbatim listings and pictures that are drawn,
//    labels, references and citations, the names of files, and definitions.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

/// charset: as of readPlainText(). Takes time proportional to the length.
Result<AttributedString, DocumentError> readLatex(QByteArrayView bytes, const QByteArray &charset = {});

/// The same for a text that has been decoded.
QString proseOfLatex(QStringView source);
