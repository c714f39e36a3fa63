// SPDX-License-Identifier: MIT
// What of a LaTeX source is prose.
#include "documents/markup/LatexReader.h"

#include "tests/harness/QuillbayTest.h"

namespace {

std::string latexProse(const char *source)
{
    return proseOfLatex(QString::fromUtf8(source)).toStdString();
}

} // namespace

TEST(LatexReader, TheBodyOfADocumentIsRead)
{
    EXPECT_EQ(latexProse("\\documentclass[12pt]{article}\n\\title{Not here}\n\\begin{document}\nText.\n"
                         "\\end{document}\nnor this"),
        "Text.\n");
    EXPECT_EQ(latexProse("A part of a book.\n"), "A part of a book.\n");
}

TEST(LatexReader, ParagraphsAndLineEnds)
{
    EXPECT_EQ(latexProse("one\ntwo\n\n\nthree\\par four\\\\five\\\\[2pt]six"),
        "one two\nthree\nfour\u2028five\u2028six\n");
    EXPECT_EQ(latexProse("one\\newline two"), "one\u2028two\n");
}

TEST(LatexReader, CommandsAreNoTextButTheirArgumentsAre)
{
    EXPECT_EQ(latexProse("Some \\emph{stressed} and \\textbf{bold \\textit{text}} and {\\large big}."),
        "Some stressed and bold text and big.\n");
    EXPECT_EQ(
        latexProse("\\section[short]{A long \\emph{title}}\\label{sec:a}Text."), "A long title\nText.\n");
    EXPECT_EQ(latexProse("\\unknown[option]{shown} text"), "shown text\n");
    EXPECT_EQ(latexProse("\\chapter*{One}\nText"), "One\nText\n");
}

TEST(LatexReader, ReferencesFilesAndDefinitionsAreLeftOut)
{
    EXPECT_EQ(latexProse("As \\citet[p.~5]{knuth} says\\cite{a,b} in \\ref{x}."), "As says in .\n");
    EXPECT_EQ(latexProse("\\includegraphics[width=5cm]{a.png}\\input{chapter}\\vspace{2em}Text"), "Text\n");
    EXPECT_EQ(latexProse("\\newcommand{\\hi}[1]{Hello #1}\\renewcommand\\x{y}\\def\\z#1{no}Text"), "Text\n");
    EXPECT_EQ(latexProse("See \\href{https://example.org}{the page} and \\textcolor{red}{red}."),
        "See the page and red.\n");
}

TEST(LatexReader, CommentsEndWithTheirLine)
{
    EXPECT_EQ(latexProse("one% two\n  three"), "onethree\n");
    EXPECT_EQ(latexProse("5\\% of % all\nus"), "5% of us\n");
    EXPECT_EQ(latexProse("one % two\n\nthree"), "one\nthree\n");
    EXPECT_EQ(latexProse("a\n\\begin{comment}\nno\n\\end{comment}\nb \\iffalse no \\fi c"), "a\nb c\n");
}

TEST(LatexReader, FormulasAreLeftOut)
{
    EXPECT_EQ(latexProse("Let $x_1 = \\$2$ be \\(y\\) or $$z$$ and \\[w\\] end."), "Let be or and end.\n");
    EXPECT_EQ(latexProse("a\\begin{align*}x &= y\\end{align*}b"), "a\nb\n");
    EXPECT_EQ(latexProse("It costs 5$ here.\n\nAnd 6$ there."), "It costs 5$ here.\nAnd 6$ there.\n");
}

TEST(LatexReader, ListsTablesAndListings)
{
    EXPECT_EQ(
        latexProse("\\begin{itemize}\n\\item one\n\\item[two] three\n\\end{itemize}"), "one\n[two] three\n");
    EXPECT_EQ(latexProse("\\begin{tabular}{l|r}\na & b \\\\ \\hline\nc & d\n\\end{tabular}\nText & more"),
        "a\nb\nc\nd\nText & more\n");
    EXPECT_EQ(latexProse("\\begin{verbatim}\n\\no{text\n\\end{verbatim}\nUse \\verb|a{b|."), "Use a{b.\n");
    EXPECT_EQ(latexProse("\\begin{figure}[ht]\\caption{A boat}\\end{figure}"), "A boat\n");
}

TEST(LatexReader, FootnotesFollowTheBody)
{
    EXPECT_EQ(latexProse("One\\footnote{Note \\emph{one}.} two.\n\nThree\\footnote{Two}.\n"),
        "One two.\nThree.\nNote one.\nTwo\n");
}

TEST(LatexReader, CharactersAreWhatTheyStandFor)
{
    EXPECT_EQ(latexProse("Caf\\'e, Gr\\\"{o}\\ss e, na\\\"{\\i}ve, Ha\\v cek, \\c{c}a, \\o re"),
        "Café, Größe, naïve, Haček, ça, øre\n");
    EXPECT_EQ(latexProse("``Quoted'' -- 1--2 --- it's `so'~here\\ldots\\ end \\LaTeX{} now"),
        "“Quoted” – 1–2 — it's ‘so'\u00A0here… end LaTeX now\n");
    EXPECT_EQ(latexProse("dis\\-cre\\-tion\\/al \\& \\{x\\} a\\_b"), "discretional & {x} a_b\n");
}
