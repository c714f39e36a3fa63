// SPDX-License-Identifier: MIT
// The module that Caja loads for Quillbay's menu items.
#include "file_managers/MenuEntries.h"

#include <libcaja-extension/caja-extension-types.h>
#include <libcaja-extension/caja-file-info.h>
#include <libcaja-extension/caja-menu-provider.h>

namespace {

constexpr FileManagerInterface caja{
    [](gpointer file) { return caja_file_info_get_location(CAJA_FILE_INFO(file)); },
    [](gpointer file) { return caja_file_info_get_mime_type(CAJA_FILE_INFO(file)); },
    [](const char *name, const char *label, const char *tip, const char *icon) -> gpointer {
        return caja_menu_item_new(name, label, tip, icon);
    }};

struct QuillbayMenu {
    GObject parent;
};
struct QuillbayMenuClass {
    GObjectClass parent;
};

void initInterface(CajaMenuProviderIface *interface)
{
    interface->get_file_items = [](CajaMenuProvider *, GtkWidget *, GList *files) {
        return newMenuItems(caja, files);
    };
}

G_DEFINE_DYNAMIC_TYPE_EXTENDED(QuillbayMenu, quillbay_menu, G_TYPE_OBJECT, 0,
    G_IMPLEMENT_INTERFACE_DYNAMIC(CAJA_TYPE_MENU_PROVIDER, initInterface))

void quillbay_menu_init(QuillbayMenu *) { }
void quillbay_menu_class_init(QuillbayMenuClass *) { }
void quillbay_menu_class_finalize(QuillbayMenuClass *) { }

GType types[1];

} // namespace

extern "C" {

G_MODULE_EXPORT void caja_module_initialize(GTypeModule *module)
{
    quillbay_menu_register_type(module);
    types[0] = quillbay_menu_get_type();
}

G_MODULE_EXPORT void caja_module_list_types(const GType **list, int *count)
{
    *list = types;
    *count = 1;
}

G_MODULE_EXPORT void caja_module_shutdown() { }
}
