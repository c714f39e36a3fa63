// SPDX-License-Identifier: MIT
#include "tests/harness/TestHome.h"

#include <QDir>
#include <QFile>

#include <clocale>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <vector>

namespace {

// The only variables of the caller that tests see, besides those of tests/README.md.
const std::vector<QByteArray> keptVariables{"PATH", "TMPDIR", "LD_LIBRARY_PATH", "LOCPATH", "ASAN_OPTIONS",
    "LSAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "QUILLBAY_CORPORA", "QUILLBAY_SCREENSHOTS",
    "QUILLBAY_REQUIRE_PACKAGES", "QUILLBAY_SOAK_SAVES", "QUILLBAY_SOAK_SEED", "GTEST_OUTPUT", "GTEST_COLOR",
    "GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"};

void makeFolder(const QString &path, mode_t mode)
{
    if (!QDir().mkpath(path) || ::chmod(QFile::encodeName(path).constData(), mode) != 0)
        throw std::runtime_error("cannot make " + path.toStdString());
}

} // namespace

TestHome &TestHome::instance()
{
    static TestHome home;
    [[maybe_unused]] static const int isRegistered = std::at_quick_exit([] { instance().remove(); });
    return home;
}

TestHome::TestHome()
{
    ::umask(022);
    for (const QByteArray &name : keptVariables) {
        if (const char *value = std::getenv(name.constData()))
            m_firstEnvironment[name] = value;
    }
    const auto temporary = m_firstEnvironment.find("TMPDIR");
    QByteArray pattern = (temporary == m_firstEnvironment.end() ? QByteArray("/tmp") : temporary->second)
        + "/quillbay-test-XXXXXX";
    if (!::mkdtemp(pattern.data()))
        throw std::runtime_error("cannot make a temporary folder");
    m_root = QFile::decodeName(pattern);
    reset();
}

TestHome::~TestHome()
{
    remove();
}

void TestHome::remove() const
{
    // QDir leaves files whose names are not UTF-8.
    std::error_code ignored;
    std::filesystem::remove_all(m_root.toStdString(), ignored);
}

void TestHome::makeFolders() const
{
    makeFolder(m_root, 0755);
    makeFolder(home(), 0755);
    makeFolder(configuration(), 0755);
    makeFolder(data(), 0755);
    makeFolder(runtime(), 0700);
    makeFolder(m_root + QStringLiteral("/fonts"), 0755);
    makeFolder(home() + QStringLiteral("/.cache"), 0755);
    makeFolder(home() + QStringLiteral("/.local/state"), 0755);
}

void TestHome::setEnvironment() const
{
    ::clearenv();
    for (const auto &[name, value] : m_firstEnvironment)
        ::setenv(name.constData(), value.constData(), 1);
    const auto set = [](const char *name, const QString &value) {
        ::setenv(name, QFile::encodeName(value).constData(), 1);
    };
    set("HOME", home());
    set("XDG_CONFIG_HOME", configuration());
    set("XDG_DATA_HOME", data());
    set("XDG_CACHE_HOME", home() + QStringLiteral("/.cache"));
    set("XDG_STATE_HOME", home() + QStringLiteral("/.local/state"));
    set("XDG_RUNTIME_DIR", runtime());
    set("XDG_CONFIG_DIRS", m_root + QStringLiteral("/no-system-configuration"));
    set("FONTCONFIG_FILE", m_root + QStringLiteral("/fonts/fonts.conf"));
    set("LANG", QStringLiteral("en_US.UTF-8"));
    set("TZ", QStringLiteral("UTC"));
    // Addresses without a server: without these variables the libraries would use the user's own.
    set("DBUS_SESSION_BUS_ADDRESS", busAddress(runtime() + QStringLiteral("/no-bus")));
    set("CUPS_SERVER", runtime() + QStringLiteral("/no-print-server"));
    std::setlocale(LC_ALL, "C");
}

QString TestHome::busAddress(const QString &path)
{
    // D-Bus addresses are percent-encoded.
    return QStringLiteral("unix:path=")
        + QString::fromLatin1(QFile::encodeName(path).toPercentEncoding("/", "~"));
}

void TestHome::reset()
{
    std::error_code ignored;
    for (const auto &entry : std::filesystem::directory_iterator(m_root.toStdString())) {
        if (entry.path().filename() != "bus") // the session bus outlives the tests of one process
            std::filesystem::remove_all(entry.path(), ignored);
    }
    makeFolders();
    setEnvironment();
    QFile fonts(m_root + QStringLiteral("/fonts/fonts.conf"));
    if (!fonts.open(QIODevice::WriteOnly))
        throw std::runtime_error("cannot write the font configuration");
    fonts.write("<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n<fontconfig>\n"
                "<dir>/usr/share/fonts</dir>\n<cachedir>/var/cache/fontconfig</cachedir>\n"
                "<cachedir prefix=\"xdg\">fontconfig</cachedir>\n"
                // The desktop's font for labels; without a preference fontconfig could choose any font.
                "<alias><family>Sans Serif</family><prefer><family>DejaVu Sans</family></prefer></alias>\n"
                "</fontconfig>\n");
}
