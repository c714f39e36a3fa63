// SPDX-License-Identifier: MIT
// TestHome is the environment of one test: a fresh HOME with its XDG folders, none of the caller's variables,
// a locale, a font configuration. Made once per process, emptied for every test, removed at exit.
// Thread: main.  Owner: the test program's main(), before any other code of the project runs.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>

class TestHome {
public:
    static TestHome &instance();

    TestHome();
    TestHome(const TestHome &) = delete;
    TestHome &operator=(const TestHome &) = delete;
    ~TestHome();

    /// Removes all files of the last test and restores the initial environment.
    void reset();

    /// The folder that contains all others; readable for all users.
    [[nodiscard]] QString root() const { return m_root; }
    [[nodiscard]] QString home() const { return m_root + QStringLiteral("/home"); }
    [[nodiscard]] QString configuration() const { return home() + QStringLiteral("/.config"); }
    [[nodiscard]] QString data() const { return home() + QStringLiteral("/.local/share"); }
    [[nodiscard]] QString runtime() const { return m_root + QStringLiteral("/runtime"); }
    /// The D-Bus address of a socket with that path.
    [[nodiscard]] static QString busAddress(const QString &path);

private:
    void remove() const;
    void makeFolders() const;
    void setEnvironment() const;

    QString m_root;
    std::map<QByteArray, QByteArray> m_firstEnvironment;
};
