#pragma once

/// The keys of the settings file. `PickModeColorListsKey` holds a mode, not lists, and
/// `HexColorLlstKey` is spelt with an "l" instead of an "i". Existing files use them, so they must
/// stay.
namespace vantorel {

inline constexpr const char16_t* ComponentDisplayKey = u"ComponentDisplay";
inline constexpr const char16_t* CodeSnippetNameKey = u"CodeSnippetName";
inline constexpr const char16_t* CodeDragTypeKey = u"CodeDragType";
inline constexpr const char16_t* PickModeColorListsKey = u"PickModeColorLists";
inline constexpr const char16_t* AddedColorListsKey = u"AddedColorLists";
inline constexpr const char16_t* HexColorLlstKey = u"HexColorLlst";
inline constexpr const char16_t* EntryFormKey = u"EntryForm";
inline constexpr const char16_t* NColorCubeRingsKey = u"NColorCubeRings";
inline constexpr const char16_t* UsePoundSignKey = u"UsePoundSign";
inline constexpr const char16_t* CreateColorListsKey = u"CreateColorLists";
inline constexpr const char16_t* CodeSnippetsKey = u"CodeSnippets";

}  // namespace vantorel
