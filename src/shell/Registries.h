#pragma once

#include <string>
#include <string_view>

#include "platform/Gdi.h"

namespace quendle {

struct Globals;

// The folder against which a line of a global list is resolved: that of the line itself, and that
// of the list for a line that begins with a token and has no folder of its own.
std::string FolderOfListLine(std::string_view line, const std::string& base_directory);

// Fill the registries from the lists in "\Info\". A missing list is fatal.
void LoadGlobalSounds(Globals& globals);
void LoadGlobalScripts(Globals& globals);
// The game's rules are the parent of every global object. An object may name an earlier one as its
// child.
void LoadGlobalObjects(Globals& globals, ContextHandle context);

}  // namespace quendle
