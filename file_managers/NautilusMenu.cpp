// SPDX-License-Identifier: MIT
// The module that Nautilus loads for Quillbay's menu items.
#include "file_managers/MenuEntries.h"

G_BEGIN_DECLS // the header comes without
#include <nautilus-extension.h>
    G_END_DECLS

    namespace
{

    constexpr FileManagerInterface nautilus{
        [](gpointer file) { return nautilus_file_info_get_location(NAUTILUS_FILE_INFO(file)); },
        [](gpointer file) { return nautilus_file_info_get_mime_type(NAUTILUS_FILE_INFO(file)); },
        [](const char *name, const char *label, const char *tip, const char *icon) -> gpointer {
            return nautilus_menu_item_new(name, label, tip, icon);
        }};

    struct QuillbayMenu {
        GObject parent;
    };
    struct QuillbayMenuClass {
        GObjectClass parent;
    };

    void initInterface(NautilusMenuProviderInterface * interface)
    {
        interface->get_file_items = [](NautilusMenuProvider *, GList *files) {
            return newMenuItems(nautilus, files);
        };
    }

    G_DEFINE_DYNAMIC_TYPE_EXTENDED(QuillbayMenu, quillbay_menu, G_TYPE_OBJECT, 0,
        G_IMPLEMENT_INTERFACE_DYNAMIC(NAUTILUS_TYPE_MENU_PROVIDER, initInterface))

    void quillbay_menu_init(QuillbayMenu *) { }
    void quillbay_menu_class_init(QuillbayMenuClass *) { }
    void quillbay_menu_class_finalize(QuillbayMenuClass *) { }

    GType types[1];

} // namespace

extern "C" {

G_MODULE_EXPORT void nautilus_module_initialize(GTypeModule *module)
{
    quillbay_menu_register_type(module);
    types[0] = quillbay_menu_get_type();
}

G_MODULE_EXPORT void nautilus_module_list_types(const GType **list, int *count)
{
    *list = types;
    *count = 1;
}

G_MODULE_EXPORT void nautilus_module_shutdown() { }
}
