// SPDX-License-Identifier: MIT
// CountingServiceTest is the fixture of tests that talk to the real counting service on a private bus, as any
// program would: the bus starts it by its service file.
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

/// The flat RTFD of a text; fails the test where none can be made.
QByteArray flatRtfd(const AttributedString &text);
QByteArray flatRtfd(const QString &text);

/// A process as the kernel shows it.
struct SeenProcess {
    pid_t identifier;
    pid_t parent;
    bool isZombie;
};
std::vector<SeenProcess> childrenOf(pid_t process);
/// Neither gone nor a zombie.
bool isRunning(pid_t process);
qsizetype openDescriptors(pid_t process);

class CountingServiceTest : public QuillbayTest {
protected:
    static inline const QString rtfdRequest = QStringLiteral("countWordsForAttributedStringRTFDData");
    static inline const QString docxRequest = QStringLiteral("countWordsForDocX");

    CountingServiceTest();
    /// Ends the service, and waits until it is gone.
    ~CountingServiceTest() override;

    /// Writes the service file, from the one that is installed; arguments: further words of its Exec line.
    void installService(const QString &arguments = {}) const;
    /// The same; the service may have no more than so many descriptors.
    void installServiceWithDescriptors(int limit) const;

    [[nodiscard]] QDBusMessage message(const QByteArray &payload, const QVariantMap &options = {}) const;
    [[nodiscard]] QDBusMessage message(const QString &request, int descriptor, quint64 length,
        bool absent = false, const QVariantMap &options = {}) const;

    [[nodiscard]] QDBusPendingCall send(const QDBusMessage &message) const;
    /// Absent where an error came back, which does not fail the test.
    static std::optional<QBYWordCounterStats> statsOf(QDBusPendingCall call);
    /// Sends and waits; an error fails the test.
    [[nodiscard]] QBYWordCounterStats count(const QDBusMessage &message) const;

    /// Sends all of them, but lets no more wait at a time than the bus of the tests allows; the counts in the
    /// order of the messages, absent for an error.
    [[nodiscard]] std::vector<std::optional<QBYWordCounterStats>> countAll(
        const std::vector<QDBusMessage> &messages) const;

    /// The process that owns the service's name; 0 where nobody does.
    [[nodiscard]] pid_t service() const { return serviceOn(m_bus); }
    [[nodiscard]] static pid_t serviceOn(const QDBusConnection &bus);

    QDBusConnection m_bus;

private:
    void writeServiceFile(const QString &command) const;
};
