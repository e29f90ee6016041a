#pragma once

#include "ForeignFiles.h"

#include <string>

/// The folders in which `ForeignFiles` has palettes of our own and of other programs.
namespace vantorel {

inline const std::string ours = ForeignFiles::ours;
inline const std::string installed = "/home/machine/opt/vantorel/share/vantorel/palettes/";
inline const std::string userGimp = "/home/user/.config/GIMP/2.10/palettes/";
inline const std::string userOldGimp = "/home/user/.config/GIMP/2.8/palettes/";
inline const std::string userInkscape = "/home/user/.config/inkscape/palettes/";
inline const std::string userKrita = "/home/user/.local/share/krita/palettes/";
inline const std::string userKde = "/home/user/.config/colors/";
inline const std::string localGimp = "/home/machine/usr/local/share/gimp/2.0/palettes/";
inline const std::string gimp = "/home/machine/usr/share/gimp/2.0/palettes/";
inline const std::string newGimp = "/home/machine/usr/share/gimp/3.0/palettes/";
inline const std::string inkscape = "/home/machine/usr/share/inkscape/palettes/";
inline const std::string krita = "/home/machine/usr/share/krita/palettes/";
inline const std::string create = "/home/machine/usr/share/create/swatches/";
inline const std::string kde = "/home/machine/etc/xdg/colors/";

}  // namespace vantorel
