// SPDX-License-Identifier: MIT
#include "platform/pasteboard/Selection.h"

#include "platform/pasteboard/SelectionTargets.h"
#include "platform/pasteboard/SelectionTransfer.h"
#include "platform/pasteboard/WaylandSelection.h"
#include "platform/wayland/FocusedWindow.h"
#include "platform/wayland/WaylandConnection.h"

#include <QCoreApplication>

#include <chrono>
#include <new>

using namespace std::chrono_literals;

namespace {

using Cause = SelectionFailure::Cause;
using Source = SelectionSource;

constexpr auto focusTimeout = 2s;

class Display {
public:
    Display() = default;
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;
    ~Display() { xcb_disconnect(m_connection); }

    [[nodiscard]] xcb_connection_t *connection() const { return m_connection; }
    [[nodiscard]] bool isConnected() const { return xcb_connection_has_error(m_connection) == 0; }

private:
    xcb_connection_t *m_connection = xcb_connect(nullptr, nullptr);
};

Cause causeOf(Source::Failure failure)
{
    switch (failure) {
    case Source::Failure::Refused:
        return Cause::Refused;
    case Source::Failure::TooLarge:
        return Cause::TooLarge;
    case Source::Failure::NoAnswer:
        break;
    }
    return Cause::NoAnswer;
}

class SelectionReader {
public:
    SelectionReader(SelectionContent content, Source &source)
        : m_content(content)
        , m_source(source)
    {
    }

    Result<Pasteboard, Cause> run()
    {
        const Result<QByteArrayList, Source::Failure> offered = m_source.targets();
        if (!offered && offered.error() != Source::Failure::Refused)
            return causeOf(offered.error());
        const auto groups = SelectionTargets::targetsToRequest(
            m_content, offered ? std::optional(offered.value()) : std::nullopt);
        for (const QByteArrayList &targets : groups) {
            if (const std::optional<Cause> cause = takeFirstForm(targets))
                return *cause;
        }
        if (!m_forms.empty())
            return Pasteboard(std::move(m_forms));
        if (m_hasEmptyForm)
            return Cause::NothingSelected;
        return offered ? Cause::OtherContent : Cause::Refused;
    }

private:
    /// Takes the first form that the owner provides and that is not empty.
    std::optional<Cause> takeFirstForm(const QByteArrayList &targets)
    {
        for (const QByteArray &target : targets) {
            Result<Source::Content, Source::Failure> content = m_source.convert(target);
            if (!content && content.error() != Source::Failure::Refused)
                return causeOf(content.error());
            if (content && add(target, std::move(content).value()))
                break;
        }
        return std::nullopt;
    }

    bool add(const QByteArray &target, Source::Content content)
    {
        std::optional<SelectionTargets::Form> form =
            SelectionTargets::makeForm(target, content.type, std::move(content.bytes));
        if (!form)
            return false;
        m_hasEmptyForm |= form->bytes.isEmpty();
        if (form->bytes.isEmpty())
            return false;
        m_forms.emplace(std::move(form->type), std::move(form->bytes));
        return true;
    }

    const SelectionContent m_content;
    Source &m_source;
    Pasteboard::Forms m_forms;
    bool m_hasEmptyForm = false;
};

Result<Pasteboard, Cause> readFrom(Source &source, SelectionContent content)
{
    return source.hasOwner() ? SelectionReader(content, source).run() : Cause::NothingSelected;
}

Result<Pasteboard, Cause> readFromXDisplay(SelectionName name, SelectionContent content, quint64 maxBytes)
{
    const Display display;
    if (!display.isConnected())
        return Cause::NoDisplay;
    SelectionTransfer transfer(
        display.connection(), name == SelectionName::Primary ? "PRIMARY" : "CLIPBOARD", maxBytes);
    return readFrom(transfer, content);
}

Result<Pasteboard, Cause> readWithFocus(
    WaylandConnection &wayland, SelectionName name, SelectionContent content, quint64 maxBytes)
{
    constexpr auto access = WaylandSelection::Access::FocusedProgram;
    if (!WaylandSelection::isOffered(wayland, access, name))
        return Cause::NothingShown;
    // First, as the compositor reports the selection before the focus.
    WaylandSelection selection(wayland, access, name, maxBytes);
    FocusedWindow window(wayland);
    if (!window.takeFocus(QDeadlineTimer(focusTimeout)))
        return Cause::NothingShown;
    return readFrom(selection, content);
}

Result<Pasteboard, Cause> read(SelectionName name, SelectionContent content, quint64 maxBytes)
{
    // The compositor knows what X clients have selected too, as long as one of them has the focus, but some
    // compositors show X clients nothing while none of them has it.
    constexpr auto access = WaylandSelection::Access::AnyProgram;
    WaylandConnection wayland;
    const bool isShown = wayland.isConnected() && WaylandSelection::isOffered(wayland, access, name);
    if (isShown) {
        WaylandSelection selection(wayland, access, name, maxBytes);
        Result<Pasteboard, Cause> pasteboard = readFrom(selection, content);
        if (pasteboard || pasteboard.error() != Cause::NothingSelected)
            return pasteboard;
    }
    Result<Pasteboard, Cause> pasteboard = readFromXDisplay(name, content, maxBytes);
    if (pasteboard || pasteboard.error() != Cause::NoDisplay || !wayland.isConnected())
        return pasteboard;
    return isShown ? Cause::NothingSelected : readWithFocus(wayland, name, content, maxBytes);
}

} // namespace

Result<Pasteboard, SelectionFailure> readSelection(
    SelectionName name, SelectionContent content, quint64 maxBytes)
{
    Result<Pasteboard, Cause> pasteboard = Cause::NotEnoughMemory;
    // A selection can have any size.
    try {
        pasteboard = read(name, content, maxBytes);
    } catch (const std::bad_alloc &) {
    }
    if (!pasteboard)
        return SelectionFailure{pasteboard.error(), name, content};
    return std::move(pasteboard).value();
}

QString causeText(const SelectionFailure &failure)
{
    const bool isClipboard = failure.name == SelectionName::Clipboard;
    const auto text = [isClipboard](const char *ofClipboard, const char *ofSelection) {
        return QCoreApplication::translate("platform/pasteboard", isClipboard ? ofClipboard : ofSelection);
    };
    switch (failure.cause) {
    case Cause::NoDisplay:
        return text(
            QT_TRANSLATE_NOOP("platform/pasteboard",
                "there is no display to take the clipboard from; 'quillbay count' counts a text from a pipe"),
            QT_TRANSLATE_NOOP("platform/pasteboard",
                "there is no display to take the selection from; 'quillbay count' counts a text from a "
                "pipe"));
    case Cause::NothingSelected:
        return text(QT_TRANSLATE_NOOP("platform/pasteboard", "the clipboard is empty"),
            QT_TRANSLATE_NOOP("platform/pasteboard", "nothing is selected"));
    case Cause::NothingShown:
        return text(QT_TRANSLATE_NOOP("platform/pasteboard",
                        "this desktop shows the clipboard to no other program; copy the text and run "
                        "'quillbay text' in a terminal, or open its file with 'quillbay text FILE'"),
            QT_TRANSLATE_NOOP("platform/pasteboard",
                "this desktop shows the selection to no other program; copy the text and run "
                "'quillbay text' in a terminal, or open its file with 'quillbay text FILE'"));
    case Cause::OtherContent:
        return failure.content == SelectionContent::Text
            ? text(QT_TRANSLATE_NOOP("platform/pasteboard", "the clipboard holds no text"),
                QT_TRANSLATE_NOOP("platform/pasteboard", "the selection holds no text"))
            : text(QT_TRANSLATE_NOOP("platform/pasteboard", "the clipboard holds no files"),
                QT_TRANSLATE_NOOP("platform/pasteboard", "the selection holds no files"));
    case Cause::Refused:
        return text(QT_TRANSLATE_NOOP("platform/pasteboard",
                        "the application that has the clipboard does not hand it over"),
            QT_TRANSLATE_NOOP(
                "platform/pasteboard", "the application that has the selection does not hand it over"));
    case Cause::NoAnswer:
        return text(QT_TRANSLATE_NOOP(
                        "platform/pasteboard", "the application that has the clipboard does not answer"),
            QT_TRANSLATE_NOOP(
                "platform/pasteboard", "the application that has the selection does not answer"));
    case Cause::TooLarge:
        return text(QT_TRANSLATE_NOOP("platform/pasteboard", "the clipboard is too large"),
            QT_TRANSLATE_NOOP("platform/pasteboard", "the selection is too large"));
    case Cause::NotEnoughMemory:
        break;
    }
    return text(QT_TRANSLATE_NOOP("platform/pasteboard", "not enough memory for the clipboard"),
        QT_TRANSLATE_NOOP("platform/pasteboard", "not enough memory for the selection"));
}
