// SPDX-License-Identifier: MIT
// document_follower FILE: watches the document and prints a line for each message of the model: "text
// WORD" with the last word of the document, "failed" or "renamed to NAME". Runs until it is killed.
#include "documents/loading/DocumentLoader.h"
#include "watching/WatchTextFileModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

namespace {

class Printer final : public WatchTextFileModelDelegate {
public:
    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel & /*watchModel*/) override
    {
        print(QStringLiteral("text ") + attributedString.string().simplified().section(u' ', -1));
    }
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel & /*watchModel*/) override
    {
        print(QStringLiteral("failed"));
    }
    /// Read at once, like the counting panel does.
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) override
    {
        const auto text = loadDocument(QFile::encodeName(docxData.toLocalFile()));
        if (text)
            currentlyWatchedTextFileDidUpdateWithAttributedString(text.value(), watchModel);
        else
            print(QStringLiteral("failed"));
    }
    void currentlyWatchedTextFileWasRenamed(
        const QString &newName, WatchTextFileModel & /*watchModel*/) override
    {
        print(QStringLiteral("renamed to ") + newName);
    }

private:
    void print(const QString &line) { m_output << line << Qt::endl; }

    QTextStream m_output{stdout};
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    Printer printer;
    ApplicationActivity activity(false);
    WatchTextFileModel model(QUrl::fromLocalFile(application.arguments().value(1)), &printer, activity);
    model.beginWatchingTextFile();
    QTextStream(stdout) << "watching" << Qt::endl;
    return QCoreApplication::exec();
}
