// SPDX-License-Identifier: MIT
// file_saver FILE: for each line of standard input, "MODE CONTENTS PAUSE", saves the contents in the mode of
// that name, with pauses of that many microseconds between the steps, and prints "saved". CONTENTS: a number
// and a number of lines with a colon between them; the file gets so many lines with the first number in each.
#include "tests/platform/file_coordination/SaveModes.h"

#include <QTextStream>

#include <chrono>
#include <thread>

int main(int argumentCount, char **arguments)
{
    const QString path = QString::fromLocal8Bit(argumentCount > 1 ? arguments[1] : "");
    QTextStream input(stdin);
    QTextStream output(stdout);
    for (QString line = input.readLine(); !line.isNull(); line = input.readLine()) {
        const QStringList words = line.split(u' ');
        if (words.size() != 3)
            return 1;
        const QStringList contents = words[1].split(u':');
        const QByteArray text = (contents[0].toLatin1() + '\n').repeated(contents.value(1).toInt());
        const std::chrono::microseconds pause(words[2].toInt());
        if (!SaveModes::save(words[0], path, text, [&] { std::this_thread::sleep_for(pause); }))
            return 1;
        output << "saved" << Qt::endl;
    }
    return 0;
}
