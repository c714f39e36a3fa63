// SPDX-License-Identifier: MIT
// TestHome is the world of one test: a fresh HOME with its XDG folders, an environment with nothing of the
// user's in it, a locale, a font configuration. Made once per process, wiped for every test, removed at exit.
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

    /// Removes every file of the last test and puts the whole environment back to its start.
    void reset();

    /// The folder that holds all others; any user may look into it.
    [[nodiscard]] QString root() const { return m_root; }
    [[nodiscard]] QString home() const { return m_root + QStringLiteral("/home"); }
    [[nodiscard]] QString configuration() const { return home() + QStringLiteral("/.config"); }
    [[nodiscard]] QString data() const { return home() + QStringLiteral("/.local/share"); }
    [[nodiscard]] QString runtime() const { return m_root + QStringLiteral("/runtime"); }
    /// The D-Bus address of a socket with that path.
    [[nodiscard]] static QString busAddress(const QString &path);

private:
    void makeFolders() const;
    void setEnvironment() const;

    QString m_root;
    std::map<QByteArray, QByteArray> m_firstEnvironment;
};
