// SPDX-License-Identifier: MIT
// Pasteboard has what the user selected or copied, in the forms that its owner offers. Selection.h reads one
// from the display, platform/services from the bus.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <map>

class Pasteboard {
public:
    // The supported MIME types; text/plain and text/html with any charset parameter.
    static constexpr char16_t flatRtfdType[] = u"application/x-flat-rtfd";
    static constexpr char16_t rtfType[] = u"text/rtf"; // and application/rtf, text/richtext
    static constexpr char16_t htmlType[] = u"text/html";
    static constexpr char16_t plainTextType[] = u"text/plain";
    static constexpr char16_t urlListType[] = u"text/uri-list"; // RFC 2483
    static constexpr char16_t gnomeFileListType[] = u"x-special/gnome-copied-files";
    static constexpr char16_t kdeFileListType[] = u"application/x-kde4-urilist";

    /// By MIME type, with its parameters.
    using Forms = std::map<QString, QByteArray>;

    Pasteboard() = default;
    explicit Pasteboard(Forms forms)
        : m_forms(std::move(forms))
    {
    }

    [[nodiscard]] const Forms &forms() const { return m_forms; }

    /// The local files among the URLs, in order and with duplicates. Skips relative and remote URLs.
    [[nodiscard]] QList<QUrl> readFileURLs() const;

private:
    Forms m_forms;
};
