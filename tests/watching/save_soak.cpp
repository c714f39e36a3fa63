// SPDX-License-Identifier: MIT
// save_soak COUNT [SEED]: lets another process save a watched document that often, with random modes, sizes
// and pauses, and prints the model's reports. Exits with 1 after a mistake of the model: a wrong name, a
// failure, or no report of the last saved text.
#include "tests/harness/ChildProcess.h"
#include "tests/harness/TestHome.h"
#include "tests/harness/WaitUntil.h"
#include "tests/platform/file_coordination/SaveModes.h"
#include "tests/watching/RecordingDelegate.h"
#include "watching/WatchTextFileModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <random>

namespace {

class Soak {
public:
    Soak(const QString &path, unsigned seed)
        : m_model(QUrl::fromLocalFile(path), &m_delegate, m_activity)
        , m_random(seed)
    {
        m_delegate.whenTold = [this] { count(); };
        m_model.beginWatchingTextFile();
        m_saver.start({QFile::encodeName(path)});
    }

    /// Saves one to three times in a row, and waits until the last save has been read.
    void saveOnce()
    {
        QString mode;
        const int saves = randomNumber(1, 3);
        for (int save = 0; save < saves; ++save) {
            mode = m_modes.at(randomNumber(0, static_cast<int>(m_modes.size()) - 1));
            ++m_number;
            const int lines = randomNumber(0, 9) ? randomNumber(1, 50) : randomNumber(1000, 20'000);
            const int pause =
                randomNumber(0, 9) ? randomNumber(0, 1000) : randomNumber(0, 100'000); // microseconds
            m_expected = (QString::number(m_number) + u'\n').repeated(lines);
            m_saver.writeLine(
                QStringLiteral("%1 %2:%3 %4").arg(mode).arg(m_number).arg(lines).arg(pause).toLatin1());
        }
        m_saves += saves;
        if (!waitUntil([this] { return m_delegate.lastText().string() == m_expected; }))
            report(QStringLiteral("save %1 (%2) did not come through; the last text told was of save %3")
                       .arg(m_number)
                       .arg(mode, m_delegate.lastText().string().section(u'\n', 0, 0)));
    }

    [[nodiscard]] int saves() const { return m_saves; }
    [[nodiscard]] int changes() const { return m_changes; }
    [[nodiscard]] int partial() const { return m_partial; }
    [[nodiscard]] const QStringList &mistakes() const { return m_mistakes; }

private:
    int randomNumber(int min, int max) { return std::uniform_int_distribution(min, max)(m_random); }
    void report(const QString &mistake) { m_mistakes << mistake; }

    void count()
    {
        const QString message = m_delegate.takeMessages().constFirst();
        if (!message.startsWith(QStringLiteral("text ")))
            report(QStringLiteral("told \"%1\" during save %2").arg(message).arg(m_number));
        ++m_changes;
        const QString &text = m_delegate.lastText().string();
        const QString line = text.first(text.indexOf(u'\n') + 1);
        m_partial += line.isEmpty() || line.repeated(text.size() / line.size()) != text;
    }

    const QStringList m_modes = SaveModes::names();
    ApplicationActivity m_activity{true};
    RecordingDelegate m_delegate;
    WatchTextFileModel m_model;
    ChildProcess m_saver{testProgram(QStringLiteral("file_saver"))};
    std::mt19937 m_random;
    QString m_expected;
    int m_number = 0;
    int m_saves = 0;
    int m_changes = 0;
    int m_partial = 0; // reports of a text that was never saved
    QStringList m_mistakes;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    TestHome::instance();
    const QCoreApplication application(argumentCount, arguments);
    const int count = application.arguments().value(1).toInt();
    const QString seed = application.arguments().value(2);
    const QString path = TestHome::instance().root() + QStringLiteral("/f.txt");
    QFile file(path);
    if (count <= 0 || !file.open(QIODevice::WriteOnly))
        return 2;
    file.close();
    Soak soak(path, seed.isEmpty() ? std::random_device()() : seed.toUInt());
    while (soak.saves() < count)
        soak.saveOnce();
    QTextStream output(stdout);
    output << soak.saves() << " saves, " << soak.changes() << " texts reported, " << soak.partial()
           << " of them half saved, " << soak.mistakes().size() << " mistakes\n";
    for (const QString &mistake : soak.mistakes())
        output << mistake << '\n';
    return soak.mistakes().isEmpty() ? 0 : 1;
}
