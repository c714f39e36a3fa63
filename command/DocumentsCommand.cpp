// SPDX-License-Identifier: MIT
// "quillbay documents": the list of documents that the user keeps an eye on.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/ProgressAccess.h"
#include "platform/system/StandardOutput.h"

#include <QFileInfo>

#include <algorithm>

namespace {

int printDocuments(ProgressStore &store)
{
    const auto documents = store.documents();
    reportBrokenFile(store);
    if (!documents)
        return reportStoreFault(store, documents.error());
    QByteArray text;
    for (const ListedDocument &document : documents.value())
        text += printableName(document.path) + '\n';
    return printText(text);
}

int addDocuments(ProgressStore &store, const QByteArrayList &names)
{
    QByteArrayList paths;
    for (const QByteArray &name : names) {
        const QByteArray path = pathOfName(name);
        if (QFileInfo::exists(QFile::decodeName(path)))
            paths.append(path);
        else
            reportError(CommandText::tr("%1: there is no such file; check its name")
                            .arg(QString::fromUtf8(printableName(name))));
    }
    const bool areAllThere = paths.size() == names.size();
    if (paths.isEmpty())
        return 1;
    const auto added = store.add(paths);
    if (const int status = statusOf(store, added ? std::nullopt : std::optional(added.error())))
        return status;
    const auto documents = store.documents();
    const bool isFull = documents && documents.value().size() >= ProgressStore::maxDocuments
        && !std::ranges::any_of(documents.value(),
            [&](const ListedDocument &document) { return document.path == paths.constLast(); });
    if (isFull)
        reportError(CommandText::tr("the list is full; remove documents with 'quillbay documents --remove'"));
    return areAllThere && !isFull ? 0 : 1;
}

} // namespace

int runDocumentsCommand(const CommandWords &words)
{
    const bool removes = words.switches.contains("remove");
    if (removes && words.operands.isEmpty())
        return reportWrongUsage("documents", CommandText::tr("no file given"));
    ProgressStore store;
    if (words.operands.isEmpty())
        return printDocuments(store);
    if (!removes)
        return addDocuments(store, words.operands);
    QByteArrayList paths;
    for (const QByteArray &name : words.operands)
        paths.append(pathOfName(name));
    return statusOf(store, store.remove(paths));
}
