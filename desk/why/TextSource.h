// SPDX-License-Identifier: MIT
// TextSource reads what the user opens, pastes or drops, in the background and in the sandbox of the readers.
// Thread: main.  Owner: WhyPage.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/BackgroundWork.h"
#include "platform/system/Result.h"

#include <QMimeData>
#include <QObject>

#include <optional>

class TextSource : public QObject {
    Q_OBJECT

public:
    /// Whether there is anything that read() may read.
    static bool canRead(const QMimeData &data);

    // Both cancel what is being read. A signal reports the end, later.
    void readFile(const QUrl &file);
    /// The first file among the URLs, or else the richest form.
    void read(const QMimeData &data);

    void cancel();
    [[nodiscard]] bool isReading() const { return m_work.has_value(); }

Q_SIGNALS:
    /// name: of the file; empty for pasted text.
    void finished(const AttributedString &text, const QString &name);
    /// problem: for the user, with the file's name.
    void failed(const QString &problem);

private:
    using Outcome = Result<AttributedString, QString>;
    void start(std::function<Outcome(const std::stop_token &)> work, const QString &name);

    std::optional<BackgroundWork<Outcome>> m_work;
};
