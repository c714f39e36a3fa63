// SPDX-License-Identifier: MIT
// The module that Thunar loads for Quillbay's menu items.
#include "file_managers/MenuEntries.h"

G_BEGIN_DECLS // some of the headers come without
#include <thunarx/thunarx.h>
    G_END_DECLS

    namespace
{

    constexpr FileManagerInterface thunar{
        [](gpointer file) { return thunarx_file_info_get_location(THUNARX_FILE_INFO(file)); },
        [](gpointer file) { return thunarx_file_info_get_mime_type(THUNARX_FILE_INFO(file)); },
        [](const char *name, const char *label, const char *tip, const char *icon) -> gpointer {
            return thunarx_menu_item_new(name, label, tip, icon);
        }};

    struct QuillbayMenu {
        GObject parent;
    };
    struct QuillbayMenuClass {
        GObjectClass parent;
    };

    void initInterface(ThunarxMenuProviderIface * interface)
    {
        interface->get_file_menu_items = [](ThunarxMenuProvider *, GtkWidget *, GList *files) {
            return newMenuItems(thunar, files);
        };
    }

    THUNARX_DEFINE_TYPE_EXTENDED(QuillbayMenu, quillbay_menu, G_TYPE_OBJECT, GTypeFlags(0),
        THUNARX_IMPLEMENT_INTERFACE(THUNARX_TYPE_MENU_PROVIDER, initInterface))

    void quillbay_menu_init(QuillbayMenu *) { }
    void quillbay_menu_class_init(QuillbayMenuClass *) { }

    GType types[1];

} // namespace

extern "C" {

G_MODULE_EXPORT void thunar_extension_initialize(ThunarxProviderPlugin *plugin)
{
    quillbay_menu_register_type(plugin);
    types[0] = quillbay_menu_get_type();
}

G_MODULE_EXPORT void thunar_extension_list_types(const GType **list, int *count)
{
    *list = types;
    *count = 1;
}

G_MODULE_EXPORT void thunar_extension_shutdown() { }
}
