#include "shell/TesterRun.h"

#include <optional>
#include <utility>

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "diagnostics/SidecarWriter.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "platform/FileSystem.h"
#include "platform/Ports.h"

namespace quendle {
TesterRun::TesterRun(ObjectWorld& world, TesterOptions options)
    : world_(world), options_(std::move(options)) {}

TesterRun::~TesterRun() = default;

void TesterRun::Start(const std::shared_ptr<GameLogicLayer>& logic, const std::string& saved_game) {
  SidecarConditions conditions;
  conditions.version = QUENDLE_VERSION;
  conditions.seed = options_.seed;
  conditions.interval = options_.interval;
  conditions.content = options_.content_hash ? options_.content_hash() : "";
  auto keep = [&](const std::string& file, const std::string& name) {
    const ContentFiles& files = world_.media.content;
    std::optional<std::string> bytes = world_.media.ports.files.Read(PlayerPath(files, file));
    if (!bytes) return;
    TextReader lines(std::move(*bytes), file);
    SidecarFile& kept = conditions.files.emplace_back();
    kept.name = name;
    while (!lines.AtEndOfStream()) kept.lines.push_back(ToUtf8(lines.ReadLine(file)));
  };
  keep(saved_game, kSavedGameFile);
  keep(kHelpMemoryFile, kHelpMemoryFile);
  sidecar_ = std::make_unique<SidecarWriter>(world_, logic, std::move(conditions));
  tester_ = std::make_shared<IntelliTesterObj>(world_, reference_);
  tester_->SetWatcher(sidecar_.get());
  tester_->Initialize(options_.interval, logic, 0);
  tester_->RunTester();
  logic->SetTester(tester_);
}

void TesterRun::Key(int code) {
  if (sidecar_ != nullptr) sidecar_->Key(code);
}

void TesterRun::Focus(bool on) {
  if (sidecar_ != nullptr) sidecar_->Focus(on);
}

void TesterRun::Close() {
  if (sidecar_ != nullptr) sidecar_->Close();
}

}  // namespace quendle
