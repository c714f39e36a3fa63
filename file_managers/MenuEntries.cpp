// SPDX-License-Identifier: MIT
#include "file_managers/MenuEntries.h"

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <memory>
#include <ranges>
#include <string>
#include <vector>

namespace {

/// Each file gets a window.
constexpr guint maxFiles = 100;

constexpr const char *actionFiles[] = {"quillbay-watch.desktop", "quillbay-count.desktop"};
constexpr char actionGroup[] = "Desktop Entry";

struct Free {
    void operator()(char *text) const { g_free(text); }
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(GError *error) const { g_error_free(error); }
};
using Text = std::unique_ptr<char, Free>;
using KeyFile = std::unique_ptr<GKeyFile, Free>;

struct UnrefObject {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Program = std::unique_ptr<GDesktopAppInfo, UnrefObject>;
using File = std::unique_ptr<GFile, UnrefObject>;

struct SelectedFile {
    File location;
    std::string name;
    std::string mimeType;
};
using Selection = std::vector<SelectedFile>;

/// In the user's language; empty if there is none.
std::string textIn(GKeyFile *action, const char *key)
{
    const Text text(g_key_file_get_locale_string(action, actionGroup, key, nullptr, nullptr));
    return text ? text.get() : "";
}

std::vector<std::string> listIn(GKeyFile *file, const std::string &group, const char *key)
{
    gsize count = 0;
    char **const texts = g_key_file_get_string_list(file, group.c_str(), key, &count, nullptr);
    const std::vector<std::string> list(texts, texts + count);
    g_strfreev(texts);
    return list;
}

/// Null if it is not installed. That of the user comes before those of the system.
KeyFile readActionFile(const char *name)
{
    KeyFile file(g_key_file_new());
    const std::string path = std::string("file-manager/actions/") + name;
    const bool isRead =
        g_key_file_load_from_data_dirs(file.get(), path.c_str(), nullptr, G_KEY_FILE_NONE, nullptr) != FALSE;
    return isRead ? std::move(file) : nullptr;
}

/// Null if one of the files has no path on this machine.
std::shared_ptr<const Selection> selectionOf(const FileManagerInterface &interface, GList *files)
{
    auto selection = std::make_shared<Selection>();
    for (const GList *file = files; file; file = file->next) {
        File location(interface.location(file->data));
        const Text path(location ? g_file_get_path(location.get()) : nullptr);
        const Text mimeType(interface.mimeType(file->data));
        if (!path || !mimeType)
            return nullptr;
        const Text name(g_path_get_basename(path.get()));
        selection->push_back({std::move(location), name.get(), mimeType.get()});
    }
    return selection;
}

/// Whether the profile of an action is for the files, as the freedesktop proposal for file manager actions
/// defines it. profile: the name of its group.
bool isForAll(GKeyFile *action, const std::string &profile, const Selection &selection)
{
    const std::vector<std::string> types = listIn(action, profile, "MimeTypes");
    const std::vector<std::string> patterns = listIn(action, profile, "Basenames");
    return std::ranges::all_of(selection, [&](const SelectedFile &file) {
        const Text name(g_ascii_strdown(file.name.c_str(), -1));
        const bool hasName =
            patterns.empty() || std::ranges::any_of(patterns, [&](const std::string &pattern) {
                return g_pattern_match_simple(pattern.c_str(), name.get()) != FALSE;
            });
        return hasName && std::ranges::any_of(types, [&](const std::string &type) {
            return g_content_type_is_a(file.mimeType.c_str(), type.c_str()) != FALSE;
        });
    });
}

/// The group of the first profile that is for all files; empty if none is.
std::string profileFor(GKeyFile *action, const Selection &selection)
{
    for (const std::string &name : listIn(action, actionGroup, "Profiles")) {
        std::string profile = "X-Action-Profile " + name;
        if (isForAll(action, profile, selection))
            return profile;
    }
    return {};
}

/// The command of a profile is that of a desktop entry, so GIO starts it, which passes on names of any bytes.
/// Null if its program is missing.
Program programOf(GKeyFile *action, const std::string &profile, const std::string &name)
{
    const Text command(g_key_file_get_value(action, profile.c_str(), "Exec", nullptr));
    if (!command)
        return nullptr;
    const KeyFile entry(g_key_file_new());
    g_key_file_set_string(entry.get(), actionGroup, "Type", "Application");
    g_key_file_set_string(entry.get(), actionGroup, "Name", name.c_str());
    g_key_file_set_value(entry.get(), actionGroup, "Exec", command.get());
    return Program(g_desktop_app_info_new_from_keyfile(entry.get()));
}

/// What an item starts when it is chosen.
struct Start {
    Program program;
    std::shared_ptr<const Selection> selection;
};

void startProgram(gpointer, gpointer data)
{
    const auto *const start = static_cast<const Start *>(data);
    GList *files = nullptr;
    for (const auto &file : *start->selection | std::views::reverse)
        files = g_list_prepend(files, file.location.get());
    GError *failure = nullptr;
    if (!g_app_info_launch(G_APP_INFO(start->program.get()), files, nullptr, &failure)) {
        const std::unique_ptr<GError, Free> error(failure);
        g_warning("quillbay: %s", error->message);
    }
    g_list_free(files);
}

void deleteStart(gpointer data, GClosure *)
{
    delete static_cast<Start *>(data);
}

/// Null if the action is not installed or not for these files.
gpointer newMenuItem(
    const FileManagerInterface &interface, const char *actionFile, std::shared_ptr<const Selection> selection)
{
    const KeyFile action = readActionFile(actionFile);
    const std::string profile = action ? profileFor(action.get(), *selection) : "";
    if (profile.empty())
        return nullptr;
    const std::string label = textIn(action.get(), "Name");
    Program program = programOf(action.get(), profile, label);
    if (!program)
        return nullptr;
    gpointer item = interface.newItem(actionFile, label.c_str(), textIn(action.get(), "Description").c_str(),
        textIn(action.get(), "Icon").c_str());
    g_signal_connect_data(item, "activate", G_CALLBACK(startProgram),
        new Start{std::move(program), std::move(selection)}, deleteStart, GConnectFlags(0));
    return item;
}

} // namespace

GList *newMenuItems(const FileManagerInterface &interface, GList *files)
{
    if (!files || g_list_length(files) > maxFiles)
        return nullptr;
    const std::shared_ptr<const Selection> selection = selectionOf(interface, files);
    if (!selection)
        return nullptr;
    GList *items = nullptr;
    for (const char *const actionFile : actionFiles) {
        if (gpointer item = newMenuItem(interface, actionFile, selection))
            items = g_list_append(items, item);
    }
    return items;
}
