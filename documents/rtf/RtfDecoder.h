// SPDX-License-Identifier: MIT
// RtfDecoder turns the bytes of a document into text by the code page of the moment. It keeps a converter for
// each page it has met, of which RtfCodePage.h has a fixed number.
// Thread: one.  Owner: the reading of one document.
#pragma once

#include "documents/rtf/RtfCodePage.h"
#include "platform/text_encoding/EncodingConverter.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <array>
#include <memory>
#include <vector>

/// Bytes without a meaning become U+FFFD. Pages whose characters may take several bytes keep bytes back until
/// finish(), which must be called before the page or the target change.
class RtfDecoder {
public:
    RtfDecoder();
    RtfDecoder(const RtfDecoder &) = delete;
    RtfDecoder &operator=(const RtfDecoder &) = delete;

    void append(QByteArrayView bytes, const RtfCodePage *page, QString &target);
    [[nodiscard]] bool hasPendingBytes() const { return !m_pending.isEmpty(); }
    void finish(QString &target);

private:
    struct Page {
        bool isKnown = false;
        std::unique_ptr<std::array<char16_t, 256>> singleBytes; ///< null where one byte may be too few
        std::unique_ptr<const EncodingConverter> converter; ///< of the others
    };
    const Page &known(const RtfCodePage *page);
    static void fill(Page &known, const RtfCodePage *page);

    std::vector<Page> m_pages; ///< by rtfCodePageIndex()
    QByteArray m_pending;
    const EncodingConverter *m_pendingConverter = nullptr;
};
