#include "shell/Globals.h"

#include "diagnostics/TestingObject.h"
#include "logic/GameLogicLayer.h"
#include "shell/ObjectClasses.h"
#include "shell/TesterRun.h"

namespace quendle {

Globals::Globals(Settings& settings, Ports& ports, ContentFiles& content)
    : media(settings, ports, content), scripts(watch), objects(media, scripts, watch, factory) {
  RegisterObjectClasses(factory);
}

Globals::~Globals() {
  // The layer and its screens go before the registries that they look names up in.
  GameLogic.reset();
  objects.DropGlobalObjects();
}

}  // namespace quendle
