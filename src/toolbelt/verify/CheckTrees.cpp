// How deep objects stand inside one another, and how many one load makes.
#include <algorithm>
#include <map>

#include "base/WorkDepth.h"
#include "object/ObjectFactory.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

// What hangs below one object, itself included.
struct TreeSize {
  int height = 1;
  long loaded = 1;  // objects that are made: global ones are there already
  long steps = 1;   // of a walk, to which global objects are like others
};

class TreeMeasure {
 public:
  explicit TreeMeasure(const CheckContext& context) : context_(context) {}

  // The model's objects in their order: those known to others come first, so this goes no deeper
  // than they were read.
  const TreeSize& Of(const ModelObject& object) {
    if (const auto known = sizes_.find(&object); known != sizes_.end()) return known->second;
    TreeSize size;
    for (const ModelChild& child : object.children) {
      if (child.object != nullptr) Add(object, child, size);
    }
    return sizes_[&object] = size;
  }

 private:
  void Add(const ModelObject& object, const ModelChild& child, TreeSize& size) {
    const TreeSize& below = Of(*child.object);
    if (below.height == kDeepestNesting) {
      context_.Tell(Check::kTooDeep, object, child.line.place, NestedTooDeep(child.object->name));
    }
    size.height = std::max(size.height, below.height + 1);
    const long loaded = child.object->role == ModelRole::kGlobal ? 0 : below.loaded;
    Grow(object, child, size.loaded, loaded, Work::kObject, "object files in one load");
    Grow(object, child, size.steps, below.steps, Work::kTreeWalk, "steps in one walk");
  }

  void Grow(const ModelObject& object, const ModelChild& child, long& sum, long more, Work work,
            const char* things) {
    const long most = WorkDepth::MostOf(work);
    if (sum <= most && more <= most && sum + more > most) {
      context_.Tell(Check::kTooMany, object, child.line.place,
                    "with \"" + child.object->name + "\" it makes more than " +
                        std::to_string(most) + " " + things + ": the content multiplies");
    }
    sum = std::min(sum + more, most + 1);
  }

  const CheckContext& context_;
  std::map<const ModelObject*, TreeSize> sizes_;
};

}  // namespace

void CheckTrees(const CheckContext& context) {
  TreeMeasure measure(context);
  for (const ModelObjectRef& object : context.model.objects) measure.Of(*object);
}

}  // namespace quendle
