#include "base/WorkDepth.h"

namespace quendle {
namespace {

const char* Noun(Work work) {
  switch (work) {
    case Work::kMessage:
      return "message";
    case Work::kScript:
      return "script line";
    case Work::kLoad:
      return "file";
    case Work::kTreeWalk:
      return "walk over the tree";
  }
  return "work";
}

}  // namespace

void WorkDepth::ForgetFailure() {
  noted_ = false;
  failed_object_.clear();
  failed_text_.clear();
  failed_place_ = {};
}

void DepthGuard::Refuse() {
  Note();
  throw FatalError("more than " + std::to_string(WorkDepth::kLimit) +
                       " levels deep: the content goes round in circles at " + Noun(work_) + " \"" +
                       std::string(text_) + "\"",
                   origin_ == nullptr ? FilePlace{} : *origin_);
}

void DepthGuard::Note() noexcept {
  try {
    // Each is taken from the innermost level that knows it: a message that the rules refuse still
    // leads to the object that it passed, and to the script line that sent it.
    if (place_ != nullptr && depth_.failed_object_.empty()) {
      depth_.failed_object_ = place_->WorkPath();
    }
    const bool says = work_ == Work::kMessage || work_ == Work::kScript;
    if (says && depth_.failed_text_.empty()) depth_.failed_text_ = text_;
    if (origin_ != nullptr && depth_.failed_place_.file.empty()) depth_.failed_place_ = *origin_;
    depth_.noted_ = !depth_.failed_object_.empty() && !depth_.failed_text_.empty() &&
                    !depth_.failed_place_.file.empty();
  } catch (...) {
    depth_.noted_ = true;  // no memory to describe the fault: its own text must do
  }
}

}  // namespace quendle
