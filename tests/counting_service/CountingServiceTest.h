// SPDX-License-Identifier: MIT
// CountingServiceTest is the fixture of tests that use the real counting service on a private bus, which
// starts it by its service file.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/SealedMemory.h"
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

#include <sys/types.h>

#include <optional>
#include <vector>

/// The flat RTFD of a text; fails the test if it cannot be written.
QByteArray flatRtfd(const AttributedString &text);
QByteArray flatRtfd(const QString &text);

/// A process as the kernel shows it.
struct SeenProcess {
    pid_t identifier;
    pid_t parent;
    bool isZombie;
};
std::vector<SeenProcess> childrenOf(pid_t process);
/// Neither ended nor a zombie.
bool isRunning(pid_t process);
qsizetype openDescriptors(pid_t process);

class CountingServiceTest : public QuillbayTest {
protected:
    static inline const QString rtfdRequest = QStringLiteral("countWordsForAttributedStringRTFDData");
    static inline const QString docxRequest = QStringLiteral("countWordsForDocX");

    CountingServiceTest();
    /// Kills the service and waits until it has ended.
    ~CountingServiceTest() override;

    /// Writes the service file from that of the package. arguments: appended to its Exec line.
    void installService(const QString &arguments = {}) const;
    /// The same, with a limit on the descriptors of the service.
    void installServiceWithDescriptors(int limit) const;

    [[nodiscard]] QDBusMessage message(const QByteArray &payload, const QVariantMap &options = {}) const;
    [[nodiscard]] QDBusMessage message(const QString &request, int descriptor, quint64 length,
        bool absent = false, const QVariantMap &options = {}) const;

    [[nodiscard]] QDBusPendingCall send(const QDBusMessage &message) const;
    /// Waits; absent after an error, which does not fail the test.
    static std::optional<QBYWordCounterStats> statsOf(QDBusPendingCall call);
    /// Sends and waits; an error fails the test.
    [[nodiscard]] QBYWordCounterStats count(const QDBusMessage &message) const;

    /// Sends all of them, with no more pending at a time than the bus of the tests allows. The counts are in
    /// the order of the messages; absent after an error.
    [[nodiscard]] std::vector<std::optional<QBYWordCounterStats>> countAll(
        const std::vector<QDBusMessage> &messages) const;

    /// The process that owns the service's name; 0 if there is none.
    [[nodiscard]] pid_t service() const { return serviceOn(m_bus); }
    [[nodiscard]] static pid_t serviceOn(const QDBusConnection &bus);

    QDBusConnection m_bus;

private:
    void writeServiceFile(const QString &command) const;
};
