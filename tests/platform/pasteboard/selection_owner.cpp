// SPDX-License-Identifier: MIT
// selection_owner SELECTION MANNER [TARGET FILE]…: owns a selection and hands the files over, as an
// application does; prints "owned" when it owns it. Contents of more than 200,000 bytes go in pieces. MANNER:
// "good", or what it does wrong or unusually; see manner() below. A file named "-" is a form that is offered
// and then refused.
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr size_t pieceSize = 200'000;

struct Form {
    xcb_atom_t target;
    std::optional<std::string> bytes;
};

struct Transfer {
    const std::string *bytes;
    xcb_atom_t type;
    size_t position = 0;
    int pieces = 0;
};

class Owner {
public:
    Owner(const char *selection, std::string manner)
        : m_manner(std::move(manner))
    {
        const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_create_window(m_connection, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_connection, m_window, atom(selection), XCB_CURRENT_TIME);
    }

    void add(const char *target, const char *file)
    {
        Form form{atom(target), std::nullopt};
        if (std::string(file) != "-") {
            std::ifstream stream(file, std::ios::binary);
            form.bytes.emplace(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
        }
        m_forms.push_back(std::move(form));
    }

    [[noreturn]] void run()
    {
        free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        std::puts("owned");
        std::fflush(stdout);
        while (xcb_generic_event_t *const event = xcb_wait_for_event(m_connection)) {
            const int kind = event->response_type & 0x7f;
            if (kind == XCB_SELECTION_REQUEST)
                answer(reinterpret_cast<xcb_selection_request_event_t &>(*event));
            else if (kind == XCB_PROPERTY_NOTIFY)
                goOn(reinterpret_cast<xcb_property_notify_event_t &>(*event));
            std::free(event);
            xcb_flush(m_connection);
        }
        std::exit(0);
    }

private:
    [[nodiscard]] bool manner(const char *name) const { return m_manner == name; }

    xcb_atom_t atom(const std::string &name)
    {
        xcb_intern_atom_reply_t *const reply = xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, false, static_cast<uint16_t>(name.size()), name.data()), nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }

    void answer(const xcb_selection_request_event_t &request)
    {
        const bool asksForTargets = request.target == atom("TARGETS");
        if (manner("silent") || (manner("silent-about-contents") && !asksForTargets))
            return;
        xcb_selection_notify_event_t notify{};
        notify.response_type = XCB_SELECTION_NOTIFY;
        notify.time = request.time;
        notify.requestor = request.requestor;
        notify.selection = request.selection;
        notify.target = request.target;
        const bool isAnswered = asksForTargets ? putTargets(request) : putContents(request);
        notify.property = isAnswered ? request.property : xcb_atom_t{XCB_ATOM_NONE};
        if (manner("sends-other-events-first")) {
            xcb_selection_notify_event_t other = notify;
            other.target = atom("OTHER");
            send(other);
        }
        send(notify);
    }

    void send(const xcb_selection_notify_event_t &notify)
    {
        xcb_send_event(m_connection, false, notify.requestor, 0, reinterpret_cast<const char *>(&notify));
    }

    bool putTargets(const xcb_selection_request_event_t &request)
    {
        if (manner("without-targets"))
            return false;
        std::vector<xcb_atom_t> atoms{atom("TARGETS")};
        for (const Form &form : m_forms)
            atoms.push_back(form.target);
        if (manner("tells-atoms-that-are-none"))
            atoms.insert(atoms.begin(), {0, 0xfffffff0U});
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
            XCB_ATOM_ATOM, 32, static_cast<uint32_t>(atoms.size()), atoms.data());
        return true;
    }

    bool putContents(const xcb_selection_request_event_t &request)
    {
        const auto form = std::find_if(m_forms.begin(), m_forms.end(),
            [&](const Form &candidate) { return candidate.target == request.target; });
        if (form == m_forms.end() || !form->bytes)
            return false;
        // The type of a TEXT is its encoding.
        const xcb_atom_t type = request.target == atom("TEXT") ? atom(m_manner) : request.target;
        if (form->bytes->size() <= pieceSize || manner("at-once")) {
            put(request.requestor, request.property, type, *form->bytes);
            return true;
        }
        const auto announced =
            manner("announces-4-GB") ? 0xffffffffU : static_cast<uint32_t>(form->bytes->size());
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection, request.requestor, XCB_CW_EVENT_MASK, &events);
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
            atom("INCR"), 32, 1, &announced);
        m_transfers[{request.requestor, request.property}] = {&*form->bytes, type};
        return true;
    }

    void goOn(const xcb_property_notify_event_t &event)
    {
        const auto found = m_transfers.find({event.window, event.atom});
        if (event.state != XCB_PROPERTY_DELETE || found == m_transfers.end())
            return;
        Transfer &transfer = found->second;
        if (manner("stops-in-the-middle") && transfer.pieces == 2)
            return;
        ++transfer.pieces;
        const std::string piece = transfer.bytes->substr(transfer.position, pieceSize);
        transfer.position += piece.size();
        put(event.window, event.atom, transfer.type, piece); // an empty piece marks the end
        if (piece.empty())
            m_transfers.erase(found);
    }

    void put(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const std::string &bytes)
    {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
            static_cast<uint32_t>(bytes.size()), bytes.data());
    }

    xcb_connection_t *const m_connection = xcb_connect(nullptr, nullptr);
    const xcb_window_t m_window = xcb_generate_id(m_connection);
    const std::string m_manner;
    std::vector<Form> m_forms;
    std::map<std::pair<xcb_window_t, xcb_atom_t>, Transfer> m_transfers;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    Owner owner(arguments[1], arguments[2]);
    for (int i = 3; i + 1 < argumentCount; i += 2)
        owner.add(arguments[i], arguments[i + 1]);
    owner.run();
}
