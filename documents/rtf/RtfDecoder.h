// SPDX-License-Identifier: MIT
// RtfDecoder turns the bytes of a document into text in the current code page. It keeps a converter for each
// page of RtfCodePage.h that the document uses.
// Thread: one.  Owner: RtfInterpreter.
#pragma once

#include "documents/rtf/RtfCodePage.h"
#include "platform/text_encoding/EncodingConverter.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <array>
#include <memory>
#include <vector>

/// Bytes that are no character become U+FFFD. If characters of a page may take several bytes, bytes are held
/// back until finish(), which must be called before the page or the target changes.
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
        bool isLoaded = false;
        std::unique_ptr<std::array<char16_t, 256>> singleBytes; ///< null if characters take several bytes
        std::unique_ptr<const EncodingConverter> converter; ///< for characters of several bytes
    };
    const Page &loadPage(const RtfCodePage *page);
    static void loadEncoding(const char *encoding, Page &target);

    std::vector<Page> m_pages; ///< by rtfCodePageIndex()
    QByteArray m_pending;
    const EncodingConverter *m_pendingConverter = nullptr;
};
