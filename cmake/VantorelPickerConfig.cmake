# find_package(VantorelPicker) gives the target Vantorel::Picker and the functions
# vantorel_add_picker_plugin and vantorel_install_picker_plugin. The version is the number of the
# plug-in interface; a panel loads plug-ins of its own number alone.
include("${CMAKE_CURRENT_LIST_DIR}/VantorelPickerTargets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/VantorelPickerPlugin.cmake")
