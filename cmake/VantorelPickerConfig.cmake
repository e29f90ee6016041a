# find_package(VantorelPicker) provides the target Vantorel::Picker and the functions
# vantorel_add_picker_plugin and vantorel_install_picker_plugin. The package version is the number of the
# plug-in interface; a panel loads only plug-ins with its own number.
include("${CMAKE_CURRENT_LIST_DIR}/VantorelPickerTargets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/VantorelPickerPlugin.cmake")
