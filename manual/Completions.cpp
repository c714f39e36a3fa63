// SPDX-License-Identifier: MIT
#include "manual/Completions.h"

#include "manual/ManualPages.h"

#include <algorithm>

std::vector<CompletedProgram> completedPrograms()
{
    std::vector<CompletedProgram> programs{{quillbayPage(), {}}, {deskPage(), {}}};
    for (const ManualPage *const page : manualPages()) {
        if (page->command)
            programs.front().commands.push_back(page);
    }
    return programs;
}

QByteArray functionName(const ManualPage &page)
{
    return '_' + QByteArray(page.program).replace('-', '_');
}

QByteArray firstClause(const char *text)
{
    const QByteArray whole(text);
    const auto end = std::find_if(
        whole.begin(), whole.end(), [](char byte) { return byte == ';' || byte == ':' || byte == '('; });
    return whole.first(end - whole.begin()).trimmed();
}

QByteArray quotedForShell(const QByteArray &text, const QByteArray &quote)
{
    return '\'' + QByteArray(text).replace('\'', quote) + '\'';
}

QByteArrayList termNames(const ManualPage &page)
{
    QByteArrayList names;
    for (const ManualTerm &term : page.terms)
        names.append(term.name);
    return names;
}

std::vector<std::pair<QByteArray, QByteArrayList>> termsByValues(const ManualPage &page)
{
    std::vector<std::pair<QByteArray, QByteArrayList>> groups;
    for (const ManualTerm &term : page.terms) {
        if (term.values.empty())
            continue;
        QByteArrayList values;
        for (const char *const value : term.values)
            values.append(value);
        const QByteArray words = values.join(' ');
        const auto group = std::find_if(
            groups.begin(), groups.end(), [&words](const auto &row) { return row.first == words; });
        if (group == groups.end())
            groups.emplace_back(words, QByteArrayList{term.name});
        else
            group->second.append(term.name);
    }
    return groups;
}
