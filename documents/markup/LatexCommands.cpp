// SPDX-License-Identifier: MIT
#include "documents/markup/LatexCommands.h"

#include <algorithm>
#include <array>

namespace {

struct CommandRow {
    QStringView name;
    LatexCommand command;
};

constexpr LatexCommand skips(int count)
{
    return {LatexEffect::None, count};
}
constexpr LatexCommand block{LatexEffect::Block, 0};

constexpr std::array commands{
    CommandRow{u"\\", {LatexEffect::LineBreak, 0}},
    CommandRow{u"newline", {LatexEffect::LineBreak, 0}},
    CommandRow{u"tabularnewline", {LatexEffect::LineBreak, 0}},
    CommandRow{u"par", {LatexEffect::Break, 0}},
    CommandRow{u"item", {LatexEffect::Break, 0}},
    CommandRow{u"maketitle", {LatexEffect::Break, 0}},
    CommandRow{u"newpage", {LatexEffect::Break, 0}},
    CommandRow{u"clearpage", {LatexEffect::Break, 0}},
    CommandRow{u"footnote", {LatexEffect::Note, 0}},
    CommandRow{u"footnotetext", {LatexEffect::Note, 0}},
    CommandRow{u"endnote", {LatexEffect::Note, 0}},
    CommandRow{u"thanks", {LatexEffect::Note, 0}},
    CommandRow{u"marginpar", {LatexEffect::Note, 0}},
    CommandRow{u"verb", {LatexEffect::Verbatim, 0}},
    CommandRow{u"lstinline", {LatexEffect::Verbatim, 0}},
    CommandRow{u"part", block},
    CommandRow{u"chapter", block},
    CommandRow{u"section", block},
    CommandRow{u"subsection", block},
    CommandRow{u"subsubsection", block},
    CommandRow{u"paragraph", block},
    CommandRow{u"subparagraph", block},
    CommandRow{u"caption", block},
    CommandRow{u"title", block},
    CommandRow{u"author", block},
    CommandRow{u"date", block},
    CommandRow{u"href", skips(1)},
    CommandRow{u"textcolor", skips(1)},
    CommandRow{u"colorbox", skips(1)},
    CommandRow{u"color", skips(1)},
    CommandRow{u"foreignlanguage", skips(1)},
    CommandRow{u"selectlanguage", skips(1)},
    CommandRow{u"parbox", skips(1)},
    CommandRow{u"raisebox", skips(1)},
    CommandRow{u"multicolumn", skips(2)},
    CommandRow{u"multirow", skips(2)},
    CommandRow{u"hyperref", skips(0)},
    CommandRow{u"label", skips(1)},
    CommandRow{u"ref", skips(1)},
    CommandRow{u"eqref", skips(1)},
    CommandRow{u"pageref", skips(1)},
    CommandRow{u"autoref", skips(1)},
    CommandRow{u"nameref", skips(1)},
    CommandRow{u"vref", skips(1)},
    CommandRow{u"cref", skips(1)},
    CommandRow{u"Cref", skips(1)},
    CommandRow{u"nocite", skips(1)},
    CommandRow{u"bibitem", {LatexEffect::Break, 1}},
    CommandRow{u"bibliography", skips(1)},
    CommandRow{u"bibliographystyle", skips(1)},
    CommandRow{u"addbibresource", skips(1)},
    CommandRow{u"includegraphics", skips(1)},
    CommandRow{u"graphicspath", skips(1)},
    CommandRow{u"input", skips(1)},
    CommandRow{u"include", skips(1)},
    CommandRow{u"index", skips(1)},
    CommandRow{u"glossary", skips(1)},
    CommandRow{u"todo", skips(1)},
    CommandRow{u"usepackage", skips(1)},
    CommandRow{u"RequirePackage", skips(1)},
    CommandRow{u"documentclass", skips(1)},
    CommandRow{u"newcommand", skips(2)},
    CommandRow{u"renewcommand", skips(2)},
    CommandRow{u"providecommand", skips(2)},
    CommandRow{u"DeclareMathOperator", skips(2)},
    CommandRow{u"newenvironment", skips(3)},
    CommandRow{u"newtheorem", skips(2)},
    CommandRow{u"newlength", skips(1)},
    CommandRow{u"setlength", skips(2)},
    CommandRow{u"addtolength", skips(2)},
    CommandRow{u"newcounter", skips(1)},
    CommandRow{u"setcounter", skips(2)},
    CommandRow{u"addtocounter", skips(2)},
    CommandRow{u"definecolor", skips(3)},
    CommandRow{u"hypersetup", skips(1)},
    CommandRow{u"lstset", skips(1)},
    CommandRow{u"pagestyle", skips(1)},
    CommandRow{u"thispagestyle", skips(1)},
    CommandRow{u"pagenumbering", skips(1)},
    CommandRow{u"addcontentsline", skips(3)},
    CommandRow{u"markboth", skips(2)},
    CommandRow{u"markright", skips(1)},
    CommandRow{u"vspace", skips(1)},
    CommandRow{u"hspace", skips(1)},
    CommandRow{u"rule", skips(2)},
    CommandRow{u"fontsize", skips(2)},
    CommandRow{u"linespread", skips(1)},
    CommandRow{u"hyphenation", skips(1)},
    CommandRow{u"phantom", skips(1)},
    CommandRow{u"cline", skips(1)},
    CommandRow{u"cmidrule", skips(1)},
};

struct SymbolRow {
    QStringView name;
    QStringView text;
};

constexpr std::array symbols{
    SymbolRow{u"%", u"%"},
    SymbolRow{u"&", u"&"},
    SymbolRow{u"$", u"$"},
    SymbolRow{u"#", u"#"},
    SymbolRow{u"_", u"_"},
    SymbolRow{u"{", u"{"},
    SymbolRow{u"}", u"}"},
    SymbolRow{u" ", u" "},
    SymbolRow{u"\n", u" "},
    SymbolRow{u"\t", u" "},
    SymbolRow{u",", u"\u202F"},
    SymbolRow{u";", u" "},
    SymbolRow{u":", u" "},
    SymbolRow{u"ss", u"ß"},
    SymbolRow{u"o", u"ø"},
    SymbolRow{u"O", u"Ø"},
    SymbolRow{u"l", u"ł"},
    SymbolRow{u"L", u"Ł"},
    SymbolRow{u"ae", u"æ"},
    SymbolRow{u"AE", u"Æ"},
    SymbolRow{u"oe", u"œ"},
    SymbolRow{u"OE", u"Œ"},
    SymbolRow{u"aa", u"å"},
    SymbolRow{u"AA", u"Å"},
    SymbolRow{u"i", u"ı"},
    SymbolRow{u"j", u"ȷ"},
    SymbolRow{u"S", u"§"},
    SymbolRow{u"P", u"¶"},
    SymbolRow{u"dag", u"†"},
    SymbolRow{u"copyright", u"©"},
    SymbolRow{u"pounds", u"£"},
    SymbolRow{u"euro", u"€"},
    SymbolRow{u"ldots", u"…"},
    SymbolRow{u"dots", u"…"},
    SymbolRow{u"textellipsis", u"…"},
    SymbolRow{u"textendash", u"–"},
    SymbolRow{u"textemdash", u"—"},
    SymbolRow{u"textbackslash", u"\\"},
    SymbolRow{u"textasciitilde", u"~"},
    SymbolRow{u"textbar", u"|"},
    SymbolRow{u"glqq", u"„"},
    SymbolRow{u"grqq", u"“"},
    SymbolRow{u"guillemotleft", u"«"},
    SymbolRow{u"guillemotright", u"»"},
    SymbolRow{u"og", u"«\u00A0"},
    SymbolRow{u"fg", u"\u00A0»"},
    SymbolRow{u"TeX", u"TeX"},
    SymbolRow{u"LaTeX", u"LaTeX"},
    SymbolRow{u"quad", u" "},
    SymbolRow{u"qquad", u" "},
};

struct AccentRow {
    QStringView name;
    char16_t mark;
};

constexpr std::array accents{
    AccentRow{u"`", 0x300},
    AccentRow{u"'", 0x301},
    AccentRow{u"^", 0x302},
    AccentRow{u"~", 0x303},
    AccentRow{u"=", 0x304},
    AccentRow{u"u", 0x306},
    AccentRow{u".", 0x307},
    AccentRow{u"\"", 0x308},
    AccentRow{u"r", 0x30A},
    AccentRow{u"H", 0x30B},
    AccentRow{u"v", 0x30C},
    AccentRow{u"d", 0x323},
    AccentRow{u"c", 0x327},
    AccentRow{u"k", 0x328},
    AccentRow{u"b", 0x331},
};

struct EnvironmentRow {
    QStringView name;
    LatexEnvironment environment;
};

constexpr LatexEnvironment leftOut{false, false, 0};
constexpr LatexEnvironment table(int skipped)
{
    return {true, true, skipped};
}
constexpr LatexEnvironment text(int skipped)
{
    return {true, false, skipped};
}

constexpr std::array environments{
    EnvironmentRow{u"math", leftOut},
    EnvironmentRow{u"displaymath", leftOut},
    EnvironmentRow{u"equation", leftOut},
    EnvironmentRow{u"eqnarray", leftOut},
    EnvironmentRow{u"align", leftOut},
    EnvironmentRow{u"alignat", leftOut},
    EnvironmentRow{u"flalign", leftOut},
    EnvironmentRow{u"gather", leftOut},
    EnvironmentRow{u"multline", leftOut},
    EnvironmentRow{u"verbatim", leftOut},
    EnvironmentRow{u"Verbatim", leftOut},
    EnvironmentRow{u"lstlisting", leftOut},
    EnvironmentRow{u"minted", leftOut},
    EnvironmentRow{u"comment", leftOut},
    EnvironmentRow{u"tikzpicture", leftOut},
    EnvironmentRow{u"picture", leftOut},
    EnvironmentRow{u"filecontents", leftOut},
    EnvironmentRow{u"tabular", table(1)},
    EnvironmentRow{u"tabularx", table(2)},
    EnvironmentRow{u"tabulary", table(2)},
    EnvironmentRow{u"longtable", table(1)},
    EnvironmentRow{u"minipage", text(1)},
    EnvironmentRow{u"multicols", text(1)},
    EnvironmentRow{u"wrapfigure", text(2)},
    EnvironmentRow{u"thebibliography", text(1)},
    EnvironmentRow{u"otherlanguage", text(1)},
};

template <typename Rows>
auto rowNamed(const Rows &rows, QStringView name)
{
    return std::find_if(rows.begin(), rows.end(), [name](const auto &row) { return row.name == name; });
}

} // namespace

LatexCommand latexCommand(QStringView name)
{
    const auto *const row = rowNamed(commands, name);
    if (row != commands.end())
        return row->command;
    // The many commands of citation packages: \citep, \citeauthor, \parencite, \textcite …
    return name.contains(u"cite") || name.contains(u"Cite") ? skips(1) : LatexCommand();
}

std::optional<QStringView> latexSymbol(QStringView name)
{
    const auto *const row = rowNamed(symbols, name);
    return row == symbols.end() ? std::nullopt : std::optional(row->text);
}

std::optional<char16_t> latexAccent(QStringView name)
{
    const auto *const row = rowNamed(accents, name);
    return row == accents.end() ? std::nullopt : std::optional(row->mark);
}

LatexEnvironment latexEnvironment(QStringView name)
{
    const auto *const row = rowNamed(environments, name);
    return row == environments.end() ? LatexEnvironment() : row->environment;
}
