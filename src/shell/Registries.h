#pragma once

#include "platform/Gdi.h"

namespace quendle {

struct Globals;

// Fill the registries from the lists in "\Info\". A missing list is fatal.
void LoadGlobalSounds(Globals& globals);
void LoadGlobalScripts(Globals& globals);
// The game's rules are the parent of every global object. An object may name an earlier one as its
// child.
void LoadGlobalObjects(Globals& globals, ContextHandle context);

}  // namespace quendle
